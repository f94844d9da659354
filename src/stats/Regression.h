#pragma once

#include "stats/DataList.h"
#include "stats/RegressionModel.h"

namespace vexa {

/// Fits the chosen model to the rows of a list with two columns of values. Nothing is checked: what
/// logarithms, divisions and powers outside their domain leave is the result.
class Regression {
 public:
  /// `fittedList` must outlive the object.
  explicit Regression(const DataList& fittedList) : list(fittedList) {}

  RegressionModel Model() const { return model; }
  void ChooseModel(RegressionModel chosen);
  /// The rows have changed: the next request fits anew.
  void Invalidate() { coefficientsValid = false; }

  /// Fits the current model, unless the coefficients are valid still, and adds up what else the
  /// results take. False: `watcher` stopped it.
  bool Fit(const ProgressWatcher& watcher);
  /// The coefficients of the current model, fitted unless they are valid still. A code outside the
  /// enum keeps what is there.
  const Coefficients& Fitted();
  /// Fits one of the models that are not linear, with `count` coefficients (3 for the quadratic
  /// one, else 2), unless the coefficients are valid, and returns one of them: A at index 0 and B
  /// at any other; of the quadratic model C, B and A at 0, 1 and 2.
  double FitCoefficients(RegressionModel fittedModel, std::size_t count, int index);
  /// Whether the current model's fit weighs some row by half: a model that is not linear takes
  /// counts as weights in half of its equations only, which is nothing while every count is 1.
  bool HalvesCounts() const;
  /// The linear correlation coefficient of the rows, whatever the model.
  double Correlation() const;

  /// The curve's Y at `x`. Without a model this and PredictX are no numbers.
  double PredictY(double x);
  /// The X where the curve has the value `y`; no number for the quadratic
  /// model, which has two of them.
  double PredictX(double y);
  /// The two X where the quadratic curve has the value `y`.
  double FirstRoot(double y);
  double SecondRoot(double y);

 private:
  bool FitCurve(RegressionModel fittedModel, std::size_t count, const ProgressWatcher& watcher);

  const DataList& list;
  RegressionModel model = RegressionModel::Linear;
  Coefficients coefficients;
  bool coefficientsValid = false;
};

}  // namespace vexa
