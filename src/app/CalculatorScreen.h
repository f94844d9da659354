#pragma once

#include "app/Calculator.h"
#include "toolkit/ExpressionScreen.h"

namespace vexa {

class ResultLine;

/// The scientific calculator's screen: edit line, result line and keypad. It shows and forwards;
/// Calculator and the key table decide.
class CalculatorScreen : public ExpressionScreen {
  Q_OBJECT

 public:
  /// Reads the settings. `store` must outlive the screen.
  CalculatorScreen(SettingsStore& store, QWidget* parent);
  /// Writes the settings.
  ~CalculatorScreen() override;

  void StoreState() override;

 protected:
  KeypadState State() const override;
  void RunKey(std::wstring_view caption) override;

 private:
  struct KeyCommand {
    std::wstring_view caption;
    void (CalculatorScreen::*run)();
  };
  static const KeyCommand kKeyCommands[];

  void BuildFileMenu();
  void Refresh();

  void Evaluate();
  void ToggleAngle();
  void RecallHistory();
  void ChooseBase();
  void InsertMacro();
  void ConvertUnits();
  void EditConversions();
  void OpenMemoryMenu();
  void RecallVariable();
  void StoreVariable();
  void Configure();
  void EditMacros();

  SettingsStore& store;
  Calculator calculator;
  ResultLine* resultLine;
};

}  // namespace vexa
