#pragma once

#include "app/Calculator.h"
#include "toolkit/ModeScreen.h"

class QDialog;

namespace vexa {

class EditLine;
class Keypad;
class ResultLine;

/// The scientific calculator's screen: edit line, result line and keypad. It shows and forwards;
/// Calculator and the key table decide.
class CalculatorScreen : public ModeScreen {
  Q_OBJECT

 public:
  /// Reads the settings. `store` must outlive the screen.
  CalculatorScreen(SettingsStore& store, QWidget* parent);
  /// Writes the settings.
  ~CalculatorScreen() override;

 private:
  struct KeyCommand {
    std::wstring_view caption;
    void (CalculatorScreen::*run)();
  };
  static const KeyCommand kKeyCommands[];

  void BuildFileMenu();
  void BuildEditMenu();
  void PressKey(int index);
  void Refresh();

  void Evaluate();
  void Backspace();
  void Delete();
  void Clear();
  void ToggleAngle();
  void RecallHistory();
  void ToggleShift();
  void ChooseBase();
  void InsertMacro();
  void InsertMacroCall(int index);
  void ConvertUnits();
  void EditConversions();
  void OpenMemoryMenu();
  void RunMemoryCommand(int command);
  void RecallVariable();
  void StoreVariable();
  void Configure();
  void EditMacros();
  void Cut();
  void Copy();
  void Paste();

  /// Gives the edit line the focus again when `dialog` is closed, and opens it.
  void OpenDialog(QDialog* dialog);
  void InsertIntoLine(const std::wstring& text);

  SettingsStore& store;
  Calculator calculator;
  bool shifted = false;
  EditLine* editLine;
  ResultLine* resultLine;
  Keypad* keypad;
};

}  // namespace vexa
