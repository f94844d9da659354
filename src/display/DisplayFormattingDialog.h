#pragma once

#include "display/DisplayFormatting.h"
#include "toolkit/Dialog.h"

class QButtonGroup;
class QLineEdit;

namespace vexa {

/// Chooses how numbers are shown. After it was accepted, `displayType` and `decimalPlaces` hold the
/// choice.
class DisplayFormattingDialog : public Dialog {
  Q_OBJECT

 public:
  /// Opens on a type, which may lie outside the enum (then none is chosen), and a number of decimal
  /// places.
  DisplayFormattingDialog(DisplayType type, int decimals, QWidget* parent);

  DisplayType displayType;
  int decimalPlaces;

  /// Takes the values, or says what is wrong and stays open.
  void accept() override;

 private:
  void BuildChoices();
  void EnableDecimals();
  DisplayType ChosenType() const;

  QButtonGroup* choices;
  QLineEdit* decimalsBox = nullptr;
};

}  // namespace vexa
