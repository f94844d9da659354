#pragma once

#include <string>

#include "converter/UnitConverter.h"
#include "toolkit/Dialog.h"

class QLabel;
class QLineEdit;

namespace vexa {

class Keypad;
class ResultLine;
class TouchComboBox;

/// Converts units. UnitConverter decides; after the dialog has closed, however, its positions and
/// memory are the caller's to take back, and after "OK" its result text.
class UnitConverterDialog : public Dialog {
  Q_OBJECT

 public:
  UnitConverterDialog(SettingsStore& settingsStore, const ConverterPositions& positions,
                      double memory, const std::wstring& inputText, QWidget* parent);

  const UnitConverter& Converter() const { return converter; }

  /// Closes the dialog, unless the text is no number or the result is out of range.
  void accept() override;

 private:
  void BuildMenus();
  void BuildCategory();
  void BuildButtons();
  void BuildInput();
  void BuildOutput();
  /// After a choice in the open list of `units` what is typed is the value.
  void TypeAfterChoice(const TouchComboBox* units);
  void FocusInput();
  /// Shows what the converter says, without converting again.
  void Refresh();
  void ShowOutput();

  void PressKey(int index);
  void ChangeCategory(int chosen);
  void ChooseInput(int position);
  void ChooseOutput(int position);
  void EnterText(const QString& text);
  void OpenMemoryMenu();
  void RecallMemory();
  void RecallVariable();
  void StoreVariable();
  void EditConversions();
  void OpenOverInput(QDialog* dialog);

  SettingsStore& store;
  UnitConverter converter;
  TouchComboBox* category;
  Keypad* buttons;
  QLineEdit* input;
  QLabel* notice;
  TouchComboBox* inputUnit;
  ResultLine* outputLine;
  ResultLine* outputBlock;
  TouchComboBox* outputUnit;
};

}  // namespace vexa
