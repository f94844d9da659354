#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "toolkit/KeypadState.h"
#include "toolkit/ModeScreen.h"

class QDialog;

namespace vexa {

class EditLine;
class Keypad;
class TextHistory;

/// What the screens with an edit line and a keypad share: keys that insert texts, the editing keys,
/// the layers, the "Edit" menu, and giving the line its focus back.
class ExpressionScreen : public ModeScreen {
  Q_OBJECT

 protected:
  /// `keys` must outlive the screen. The line is still to be placed.
  ExpressionScreen(Mode mode, std::span<const Key> keys, QWidget* parent);

  /// The rule state that decides which keys are shown and enabled.
  virtual KeypadState State() const = 0;
  /// Runs the command of the key with this caption, which inserts nothing.
  virtual void RunKey(std::wstring_view caption) = 0;

  /// Makes the keypad, below the controls that have been placed and after those that have been
  /// made: the Tab key goes this way, too.
  void PlaceKeypad(int stretch);
  /// Adds the "Edit" menu, whose commands work on the line.
  void BuildEditMenu();
  /// Shows and enables the keys as State() says.
  void RefreshKeypad();
  /// Offers the entries of `history`, the newest first; `chosen` gets the number of the chosen one.
  void ShowHistory(const TextHistory& history, std::function<void(int)> chosen);
  /// Gives the line the focus again when `dialog` is closed, and opens it.
  void OpenDialog(QDialog* dialog);
  /// Inserts a text that was chosen; without room for it the user is told so.
  void InsertIntoLine(const std::wstring& text);
  /// What is typed where it has no meaning goes to the line.
  void keyPressEvent(QKeyEvent* event) override;

  EditLine* Line() const { return line; }
  Keypad* Keys() const { return keypad; }
  bool IsShifted() const { return shifted; }

 private:
  struct EditingKey {
    std::wstring_view caption;
    void (ExpressionScreen::*run)();
  };
  static const EditingKey kEditingKeys[];

  void PressKey(int index);
  void Backspace();
  void Delete();
  void Clear();
  void ToggleShift();

  std::span<const Key> keys;
  EditLine* line;
  Keypad* keypad = nullptr;
  bool shifted = false;
};

}  // namespace vexa
