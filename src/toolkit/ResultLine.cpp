#include "toolkit/ResultLine.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextLayout>
#include <algorithm>

#include "display/WideText.h"
#include "toolkit/CopiedText.h"

namespace vexa {
namespace {

/// Text sizes in pixels. A single row for each line is preferred while it stays readable at a
/// glance.
constexpr int kLargestText = 28;
constexpr int kSmallestSingleRow = 13;
constexpr int kSmallestText = 6;
constexpr qreal kMargin = 3;

}  // namespace

ResultLine::ResultLine(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setFocusPolicy(Qt::StrongFocus);
  setTabChangesFocus(true);
  setUndoRedoEnabled(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // The margin that centres the text looks like the rest of the line.
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  document()->setDocumentMargin(kMargin);
  QTextOption option = document()->defaultTextOption();
  option.setAlignment(Qt::AlignRight);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  document()->setDefaultTextOption(option);
  setWordWrapMode(option.wrapMode());
}

void ResultLine::ShowText(const QString& text) {
  setPlainText(text);
  FitText();
}

bool ResultLine::event(QEvent* event) {
  // The key that copies is the result's own here, whatever menu has it too.
  const bool asks = event->type() == QEvent::ShortcutOverride;
  if (asks && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
    event->accept();
    return true;
  }
  return QPlainTextEdit::event(event);
}

QMimeData* ResultLine::createMimeDataFromSelection() const {
  const std::wstring selected = textCursor().selection().toPlainText().toStdWString();
  auto* const copied = new QMimeData;
  copied->setText(FromWide(CopiedText(toPlainText().toStdWString(), selected)));
  return copied;
}

void ResultLine::keyPressEvent(QKeyEvent* event) {
  // Nothing selected: the result is meant.
  if (event->matches(QKeySequence::Copy) && !textCursor().hasSelection()) selectAll();
  QPlainTextEdit::keyPressEvent(event);
}

void ResultLine::mouseDoubleClickEvent(QMouseEvent* event) {
  // A number is one word, whatever stands between its digits.
  if (event->button() == Qt::LeftButton) return selectAll();
  QPlainTextEdit::mouseDoubleClickEvent(event);
}

void ResultLine::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  FitText();
}

ResultLine::Extent ResultLine::Measure(int pixelSize, qreal width) const {
  QFont sized = font();
  sized.setPixelSize(pixelSize);
  QString lines = toPlainText();
  lines.replace(u'\n', QChar::LineSeparator);
  QTextLayout layout(lines, sized);
  layout.setTextOption(document()->defaultTextOption());
  Extent extent{0, 0};
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    extent.height += line.height();
    ++extent.rows;
  }
  layout.endLayout();
  return extent;
}

void ResultLine::FitText() {
  // The inner area without the margin that centres the text, which is what is being decided.
  const int frame = 2 * frameWidth();
  const qreal width = this->width() - frame - 2 * kMargin;
  const qreal height = this->height() - frame - 2 * kMargin;
  if (width <= 0 || height <= 0) return;

  int size = kLargestText;
  Extent extent = Measure(size, width);
  while (size > kSmallestSingleRow && (extent.rows > blockCount() || extent.height > height)) {
    extent = Measure(--size, width);
  }
  while (size > kSmallestText && extent.height > height) extent = Measure(--size, width);

  QFont sized = document()->defaultFont();
  if (sized.pixelSize() != size) {
    sized.setPixelSize(size);
    document()->setDefaultFont(sized);
  }
  const int top = std::max(0, static_cast<int>((height - extent.height) / 2));
  setViewportMargins(0, top, 0, 0);
}

}  // namespace vexa
