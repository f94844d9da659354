#pragma once

#include <optional>

#include "stats/Regression.h"

namespace vexa {

/// The linear model in closed form.
Coefficients FitLine(const DataList& list);
/// The linear correlation coefficient.
double CorrelationOf(const DataList& list);

/// The other models by least squares on transformed data, with `count` coefficients of the
/// transformed curve. The right-hand sides take the basis of count times x, not of x; meant: with
/// every count 1 the fit is the ordinary one. A model without such a fit leaves no numbers. None:
/// `watcher` stopped it.
std::optional<Coefficients> FitCurve(const DataList& list, RegressionModel model, std::size_t count,
                                     const ProgressWatcher& watcher);

}  // namespace vexa
