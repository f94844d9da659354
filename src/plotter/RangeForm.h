#pragma once

#include <QWidget>
#include <array>

#include "plotter/PlotRanges.h"

class QCheckBox;
class QGridLayout;

namespace vexa {

class RangeEdit;

/// The four boxes of the ranges and the check boxes of the options.
class RangeForm : public QWidget {
  Q_OBJECT

 public:
  /// `leastHeight`: of a box, where the form has little room.
  RangeForm(int leastHeight, QWidget* parent);

  /// What the boxes hold: exact, also where a box has no room to show it so.
  RangeTexts Texts() const;
  void SetTexts(const RangeTexts& texts);
  PlotOptions Options() const;
  void SetOptions(const PlotOptions& options);
  RangeEdit* Box(RangeBox box) const { return boxes[static_cast<std::size_t>(box)]; }
  const std::array<RangeEdit*, kRangeBoxCaptions.size()>& Boxes() const { return boxes; }

 signals:
  /// The text of a box changed.
  void RangesChanged();

 private:
  void BuildBoxes(QGridLayout* grid, int leastHeight);

  std::array<RangeEdit*, kRangeBoxCaptions.size()> boxes;
  std::array<QCheckBox*, kPlotOptionCaptions.size()> checks;
};

}  // namespace vexa
