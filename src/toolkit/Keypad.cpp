#include "toolkit/Keypad.h"

#include <algorithm>

#include "toolkit/KeyButton.h"

namespace vexa {
namespace {

constexpr int kGap = 3;

/// Where cell `index` of `count` begins in a stretch of `length`; the gaps between cells are even.
int CellStart(int index, int count, int length) {
  return index * (length + kGap) / count;
}

}  // namespace

Keypad::Keypad(std::span<const Key> keyTable, QWidget* parent) : QWidget(parent), keys(keyTable) {
  buttons.reserve(keys.size());
  for (const Key& key : keys) {
    const int index = static_cast<int>(buttons.size());
    auto* button = new KeyButton(key, this);
    connect(button, &KeyButton::clicked, this, [this, index] { emit KeyPressed(index); });
    buttons.push_back(button);
    rows = std::max(rows, key.row + 1);
    columns = std::max(columns, key.column + key.columnSpan);
  }
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Keypad::resizeEvent(QResizeEvent*) {
  for (std::size_t n = 0; n < keys.size(); ++n) {
    const Key& key = keys[n];
    const int left = CellStart(key.column, columns, width());
    const int right = CellStart(key.column + key.columnSpan, columns, width()) - kGap;
    const int top = CellStart(key.row, rows, height());
    const int bottom = CellStart(key.row + 1, rows, height()) - kGap;
    buttons[n]->setGeometry(left, top, right - left, bottom - top);
  }
}

void Keypad::SetKeyHeight(int height) {
  keyHeight = height;
  updateGeometry();
}

QSize Keypad::SizeFor(QSize cell) const {
  if (keyHeight > 0) cell.setHeight(keyHeight);
  return {columns * (cell.width() + kGap) - kGap, rows * (cell.height() + kGap) - kGap};
}

QSize Keypad::sizeHint() const {
  return buttons.empty() ? QSize() : SizeFor(buttons.front()->sizeHint());
}

QSize Keypad::minimumSizeHint() const {
  return buttons.empty() ? QSize() : SizeFor(buttons.front()->minimumSizeHint());
}

void Keypad::Refresh(const KeyTest& isShown, const KeyTest& isEnabled) {
  for (std::size_t n = 0; n < keys.size(); ++n) {
    buttons[n]->setEnabled(isEnabled(keys[n]));
    buttons[n]->setVisible(isShown(keys[n]));
  }
}

KeyButton* Keypad::Button(std::wstring_view caption) const {
  for (std::size_t n = 0; n < keys.size(); ++n) {
    if (keys[n].caption == caption) return buttons[n];
  }
  return nullptr;
}

}  // namespace vexa
