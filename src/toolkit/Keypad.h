#pragma once

#include <QWidget>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "toolkit/Key.h"

namespace vexa {

class KeyButton;

/// The keys of a table in a grid of even cells, which stay where they are whatever is shown. Says
/// which key was pressed; what it does is the screen's affair.
class Keypad : public QWidget {
  Q_OBJECT

 public:
  using KeyTest = std::function<bool(const Key&)>;

  /// `keyTable` must outlive the keypad.
  Keypad(std::span<const Key> keyTable, QWidget* parent);

  /// Keys may be as low as this, and the keypad asks for no more; without it keys ask for what is
  /// comfortable for a calculator's.
  void SetKeyHeight(int height);
  /// Shows and enables the keys as the tests say. Keys that share a cell: at most one is shown.
  void Refresh(const KeyTest& isShown, const KeyTest& isEnabled);
  /// The button with this caption, or null.
  KeyButton* Button(std::wstring_view caption) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// The key at `index` of the table was pressed.
  void KeyPressed(int index);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// The size in which every cell is `cell`, or of the height that was set.
  QSize SizeFor(QSize cell) const;

  std::span<const Key> keys;
  std::vector<KeyButton*> buttons;
  int keyHeight = 0;
  int rows = 0;
  int columns = 0;
};

}  // namespace vexa
