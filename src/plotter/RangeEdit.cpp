#include "plotter/RangeEdit.h"

#include <QEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionFrame>

#include "display/WideText.h"
#include "plotter/PlotRanges.h"
#include "toolkit/NumberBox.h"

namespace vexa {
namespace {

/// What the toolkit leaves free beside the text, and the caret.
constexpr int kTextMargin = 2;
constexpr int kCaretWidth = 1;

}  // namespace

RangeEdit::RangeEdit(QWidget* parent) : QLineEdit(parent) {}

void RangeEdit::ShowText(const std::wstring& text) {
  exact = text;
  seen = FromWide(text);
  setText(seen);
  // A box of one line shows breaks in its own way.
  seen = this->text();
  Fit();
}

std::wstring RangeEdit::Text() const {
  return IsEdited() ? text().toStdWString() : exact;
}

int RangeEdit::Room() const {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
  return inside.width() - 2 * kTextMargin - kCaretWidth;
}

void RangeEdit::Fit() {
  if (IsEdited()) return;
  const std::optional<double> value = ReadNumberBox(exact);
  const auto fits = [this](std::wstring_view text) {
    return fontMetrics().horizontalAdvance(FromWide(text)) <= Room();
  };
  const bool isCut = value && !fits(exact);
  seen = FromWide(isCut ? FittingText(*value, fits) : exact);
  setToolTip(isCut ? FromWide(exact) : QString());
  if (text() != seen) {
    // The number is the same.
    const QSignalBlocker blocker(this);
    setText(seen);
    seen = text();
  }
  setCursorPosition(0);
}

void RangeEdit::resizeEvent(QResizeEvent* event) {
  QLineEdit::resizeEvent(event);
  Fit();
}

void RangeEdit::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::FontChange) Fit();
}

}  // namespace vexa
