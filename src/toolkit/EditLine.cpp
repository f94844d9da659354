#include "toolkit/EditLine.h"

#include <QAction>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <algorithm>

#include "display/WideText.h"
#include "toolkit/MessageBox.h"
#include "toolkit/PastedText.h"

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

/// A key that types a character. "Alt Gr" may reach the program as Control and Alt.
bool IsCharacter(const QKeyEvent& event) {
  const Qt::KeyboardModifiers command =
      event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  const bool isTyped = !command || command == (Qt::ControlModifier | Qt::AltModifier);
  return isTyped && !event.text().isEmpty() && event.text().front().isPrint();
}

/// A key that deletes, alone or with modifiers, up to whatever border.
bool Deletes(const QKeyEvent& event) {
  constexpr QKeySequence::StandardKey kDeletions[] = {
      QKeySequence::Cut, QKeySequence::DeleteEndOfLine, QKeySequence::DeleteCompleteLine};
  return event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete ||
         std::ranges::any_of(kDeletions, [&](auto key) { return event.matches(key); });
}

/// Keys that input methods are worked with, and those that do nothing alone.
bool IsForComposing(const QKeyEvent& event) {
  constexpr std::pair<int, int> kRanges[] = {{Qt::Key_Shift, Qt::Key_ScrollLock},
                                             {Qt::Key_Super_L, Qt::Key_Hyper_R},
                                             {Qt::Key_AltGr, Qt::Key_Dead_Longsolidusoverlay},
                                             {Qt::Key_unknown, Qt::Key_unknown}};
  return std::ranges::any_of(kRanges, [&](const auto& range) {
    return event.key() >= range.first && event.key() <= range.second;
  });
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

EditLine::EditLine(QWidget* parent, FieldLength fieldLength)
    : QPlainTextEdit(parent), length(fieldLength) {
  setTabChangesFocus(true);
  setWordWrapMode(QTextOption::WrapAnywhere);
  // The text wraps. A bar that came for the part of a pixel would take a row, with it the other bar
  // would come, and with that one the text would wrap anew: the two would come and go for ever.
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  document()->setDocumentMargin(kTextMargin);
  // The margin counts as a change of the text.
  document()->clearUndoRedoStacks();
  connect(this, &QPlainTextEdit::textChanged, this, &EditLine::JoinLines);
  connect(this, &QPlainTextEdit::textChanged, this, &EditLine::RememberSelection);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, &EditLine::RememberSelection);
  connect(this, &QPlainTextEdit::selectionChanged, this, &EditLine::RememberSelection);
}

EditText EditLine::State() const {
  const QString text = toPlainText();
  const QTextCursor cursor = textCursor();
  return {text.toStdWString(), WidePosition(text, cursor.selectionStart()),
          WidePosition(text, cursor.selectionEnd())};
}

bool EditLine::HasRoomFor(const TextChange& change) const {
  return HasRoom(State(), change, length.longest);
}

void EditLine::ApplyChange(const TextChange& change) {
  Change(change);
  setFocus();
}

void EditLine::ApplyOrTell(const TextChange& change) {
  if (!Change(change)) return TellLength();
  setFocus();
}

void EditLine::ReplaceText(const std::wstring& text) {
  CommitComposition();
  Change({0, Text().size(), text, text.size()});
}

bool EditLine::Change(const TextChange& change) {
  if (!HasRoomFor(change)) return false;
  const std::wstring text = Text();
  const int start = DocumentPosition(text, change.start);
  const int end = DocumentPosition(text, change.end);
  const std::wstring replacement = LineText(change.replacement, change.replacement.size());

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
  return true;
}

void EditLine::TellLength() {
  ShowErrorBox(this, std::wstring(length.sentence), [this] { setFocus(); });
}

void EditLine::SelectWholeText() {
  CommitComposition();
  selectAll();
  ensureCursorVisible();
  setFocus();
}

void EditLine::RememberSelection() {
  if (stepping) return;
  const QTextCursor cursor = textCursor();
  selections[document()->availableUndoSteps()] = {cursor.anchor(), cursor.position()};
}

void EditLine::Step(void (QPlainTextEdit::*step)()) {
  CommitComposition();
  stepping = true;
  (this->*step)();
  stepping = false;
  const auto found = selections.find(document()->availableUndoSteps());
  if (found == selections.end()) return;
  QTextCursor cursor = textCursor();
  cursor.setPosition(found->second.anchor);
  cursor.setPosition(found->second.caret, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

void EditLine::Undo() {
  Step(&QPlainTextEdit::undo);
}

void EditLine::Redo() {
  Step(&QPlainTextEdit::redo);
}

void EditLine::JoinLines() {
  if (blockCount() == 1) return;
  // What assistive technology puts here has not come through any of the ways in.
  const std::wstring text = Text();
  QTextCursor cursor(document());
  cursor.joinPreviousEditBlock();
  cursor.select(QTextCursor::Document);
  cursor.insertText(FromWide(LineText(text, text.size())));
  cursor.endEditBlock();
}

void EditLine::CommitComposition() {
  const auto composed = [this] { return textCursor().block().layout()->preeditAreaText(); };
  if (composed().isEmpty()) return;
  QGuiApplication::inputMethod()->commit();
  if (composed().isEmpty()) return;
  // A method that does not do it itself is made to begin anew.
  QInputMethodEvent commit;
  commit.setCommitString(composed());
  QCoreApplication::sendEvent(this, &commit);
  QGuiApplication::inputMethod()->reset();
}

bool EditLine::IsTyping(const QKeyEvent& event) {
  constexpr QKeySequence::StandardKey kChanges[] = {QKeySequence::Paste, QKeySequence::Undo,
                                                    QKeySequence::Redo};
  return IsCharacter(event) || event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete ||
         std::ranges::any_of(kChanges, [&](auto key) { return event.matches(key); });
}

void EditLine::keyPressEvent(QKeyEvent* event) {
  // The caret moves in the text alone.
  if (!IsForComposing(*event)) CommitComposition();
  if (EndsLine(*event)) {
    event->ignore();
    return;
  }
  if (event->matches(QKeySequence::Undo)) return Undo();
  if (event->matches(QKeySequence::Redo)) return Redo();
  if (IsCharacter(*event)) {
    Change(InsertText(State(), event->text().toStdWString()));
    return;
  }
  if (!Deletes(*event)) return QPlainTextEdit::keyPressEvent(event);
  // Without a block of its own, a deletion would be one step with the one before it.
  QTextCursor step(document());
  step.beginEditBlock();
  QPlainTextEdit::keyPressEvent(event);
  step.endEditBlock();
  ensureCursorVisible();
}

void EditLine::mousePressEvent(QMouseEvent* event) {
  CommitComposition();
  QPlainTextEdit::mousePressEvent(event);
}

void EditLine::focusOutEvent(QFocusEvent* event) {
  // What was composed is not lost to an input method that only hears that it is over.
  CommitComposition();
  QPlainTextEdit::focusOutEvent(event);
}

void EditLine::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* const menu = createStandardContextMenu(event->pos());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const std::pair<const char*, void (EditLine::*)()> steps[] = {{"edit-undo", &EditLine::Undo},
                                                                {"edit-redo", &EditLine::Redo}};
  for (const auto& [name, run] : steps) {
    if (auto* const action = menu->findChild<QAction*>(QString::fromLatin1(name))) {
      action->disconnect(SIGNAL(triggered(bool)));
      connect(action, &QAction::triggered, this, run);
    }
  }
  menu->popup(event->globalPos());
}

void EditLine::inputMethodEvent(QInputMethodEvent* event) {
  const std::wstring committed = event->commitString().toStdWString();
  TextChange change = InsertText(State(), committed);
  change.end += static_cast<std::size_t>(event->replacementLength());
  QInputMethodEvent oneLine(event->preeditString(), event->attributes());
  const bool hasRoom = HasRoomFor(change);
  if (hasRoom) {
    oneLine.setCommitString(FromWide(LineText(committed, committed.size())),
                            event->replacementStart(), event->replacementLength());
  }
  QPlainTextEdit::inputMethodEvent(&oneLine);
  event->setAccepted(oneLine.isAccepted());
  // A word that was spoken or written by hand is more than a key without effect.
  if (!hasRoom && committed.size() > 1) TellLength();
}

bool EditLine::canInsertFromMimeData(const QMimeData* source) const {
  return source->hasText();
}

void EditLine::insertFromMimeData(const QMimeData* source) {
  if (!source->hasText()) return;
  // What can have no room is refused before it is looked at, so that a paste of any size is over
  // at once.
  constexpr std::size_t kMostUnitsOfACharacter = 4;
  const QString text = source->text();
  if (static_cast<std::size_t>(text.size()) > length.longest * kMostUnitsOfACharacter) {
    return TellLength();
  }
  CommitComposition();
  ApplyOrTell(InsertText(State(), PastedText(text.toStdWString())));
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
