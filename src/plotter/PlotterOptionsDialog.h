#pragma once

#include "plotter/PlotRanges.h"
#include "toolkit/Dialog.h"

namespace vexa {

class RangeForm;

/// Edits the ranges and options that a graph shows. After it was accepted, `ranges` and `options`
/// hold them.
class PlotterOptionsDialog : public Dialog {
  Q_OBJECT

 public:
  PlotterOptionsDialog(const PlotRanges& shown, const PlotOptions& chosen, QWidget* parent);

  PlotRanges ranges;
  PlotOptions options;

  /// Takes ranges and options, or says what is wrong and stays open.
  void accept() override;

 private:
  RangeForm* form;
};

}  // namespace vexa
