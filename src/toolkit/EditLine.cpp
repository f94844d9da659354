#include "toolkit/EditLine.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextCursor>
#include <algorithm>

#include "display/WideText.h"
#include "toolkit/LineText.h"

namespace vexa {
namespace {

/// The text grows with the line, of which it leaves at least two rows visible.
constexpr int kRows = 3;
constexpr int kSmallestText = 13;
/// Leaves a row of the smallest text the room that it needs on the smallest display.
constexpr qreal kTextMargin = 3;

/// The keys that end a line in an ordinary edit box, with whatever modifiers.
bool EndsLine(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter ||
         event.matches(QKeySequence::InsertParagraphSeparator) ||
         event.matches(QKeySequence::InsertLineSeparator);
}

/// The number of wide characters before `position` of the document's text, and back: a character
/// outside the basic plane takes two positions of the document.
std::size_t WidePosition(const QString& text, int position) {
  return static_cast<std::size_t>(QStringView(text).left(position).toUcs4().size());
}
int DocumentPosition(std::wstring_view text, std::size_t position) {
  return static_cast<int>(FromWide(text.substr(0, position)).size());
}

}  // namespace

EditLine::EditLine(QWidget* parent, std::size_t longest)
    : QPlainTextEdit(parent), longestText(longest) {
  setTabChangesFocus(true);
  setWordWrapMode(QTextOption::WrapAnywhere);
  document()->setDocumentMargin(kTextMargin);
}

EditText EditLine::State() const {
  const QString text = toPlainText();
  const QTextCursor cursor = textCursor();
  return {text.toStdWString(), WidePosition(text, cursor.selectionStart()),
          WidePosition(text, cursor.selectionEnd())};
}

std::size_t EditLine::RoomFor(int start, int end) const {
  const int kept = document()->characterCount() - 1 - (end - start);
  return longestText - std::min(longestText, static_cast<std::size_t>(std::max(kept, 0)));
}

void EditLine::ApplyChange(const TextChange& change) {
  Change(change);
  setFocus();
}

void EditLine::ReplaceText(const std::wstring& text) {
  Change({0, Text().size(), text, text.size()});
}

void EditLine::Change(const TextChange& change) {
  const std::wstring text = Text();
  const int start = DocumentPosition(text, change.start);
  const int end = DocumentPosition(text, change.end);
  const std::wstring replacement = LineText(change.replacement, RoomFor(start, end));

  QTextCursor cursor = textCursor();
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  if (start != end || !replacement.empty()) {
    cursor.beginEditBlock();
    cursor.insertText(FromWide(replacement));
    cursor.endEditBlock();
  }
  const std::wstring changed = Text();
  cursor.setPosition(DocumentPosition(changed, std::min(change.caret, changed.size())));
  setTextCursor(cursor);
  ensureCursorVisible();
}

void EditLine::SelectWholeText() {
  selectAll();
  ensureCursorVisible();
  setFocus();
}

void EditLine::keyPressEvent(QKeyEvent* event) {
  if (EndsLine(*event)) {
    event->ignore();
    return;
  }
  const QTextCursor cursor = textCursor();
  const bool types = !event->text().isEmpty() && event->text().front().isPrint();
  if (types && RoomFor(cursor.selectionStart(), cursor.selectionEnd()) == 0) return;
  QPlainTextEdit::keyPressEvent(event);
}

void EditLine::inputMethodEvent(QInputMethodEvent* event) {
  const QTextCursor cursor = textCursor();
  const std::size_t room = RoomFor(cursor.selectionStart(), cursor.selectionEnd());
  QInputMethodEvent oneLine(event->preeditString(), event->attributes());
  oneLine.setCommitString(FromWide(LineText(event->commitString().toStdWString(), room)),
                          event->replacementStart(), event->replacementLength());
  QPlainTextEdit::inputMethodEvent(&oneLine);
  event->setAccepted(oneLine.isAccepted());
}

bool EditLine::canInsertFromMimeData(const QMimeData* source) const {
  return source->hasText();
}

void EditLine::insertFromMimeData(const QMimeData* source) {
  if (!source->hasText()) return;
  // Only what can have a place is converted, so that a paste of any size is over at once.
  const auto mostUnits = static_cast<qsizetype>(kLongestLine) * 4;
  ApplyChange(InsertText(State(), source->text().left(mostUnits).toStdWString()));
}

void EditLine::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  const int size = std::clamp(height() / (kRows + 1), kSmallestText, largestText);
  QFont sized = font();
  if (sized.pixelSize() == size) return;
  sized.setPixelSize(size);
  setFont(sized);
  ensureCursorVisible();
}

}  // namespace vexa
