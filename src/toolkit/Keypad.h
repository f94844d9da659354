#pragma once

#include <QWidget>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "toolkit/Key.h"

class QGridLayout;

namespace vexa {

class KeyButton;

/// The keys of a table in a grid of even cells. Says which key was pressed; what it does is the
/// screen's affair.
class Keypad : public QWidget {
  Q_OBJECT

 public:
  using KeyTest = std::function<bool(const Key&)>;

  /// `keyTable` must outlive the keypad.
  Keypad(std::span<const Key> keyTable, QWidget* parent);

  /// Shows and enables the keys as the tests say. Keys that share a cell: at most one is shown.
  void Refresh(const KeyTest& isShown, const KeyTest& isEnabled);
  /// The button with this caption, or null.
  KeyButton* Button(std::wstring_view caption) const;

 signals:
  /// The key at `index` of the table was pressed.
  void KeyPressed(int index);

 private:
  void AddCell(QWidget* button, const Key& key);

  std::span<const Key> keys;
  std::vector<KeyButton*> buttons;
  QGridLayout* grid;
};

}  // namespace vexa
