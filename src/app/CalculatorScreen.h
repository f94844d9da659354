#pragma once

#include "app/Calculator.h"
#include "toolkit/ModeScreen.h"

class QLabel;

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

  void BuildEditMenu();
  void PressKey(int index);
  void Refresh();

  void Evaluate();
  void Backspace();
  void Delete();
  void Clear();
  void ToggleAngle();
  void RecallHistory();
  void Cut();
  void Copy();
  void Paste();

  Calculator calculator;
  EditLine* editLine;
  ResultLine* resultLine;
  Keypad* keypad;
  QLabel* baseLabel;
};

}  // namespace vexa
