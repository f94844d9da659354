#pragma once

#include <QPlainTextEdit>
#include <map>
#include <string>

#include "toolkit/EditText.h"
#include "toolkit/LineText.h"

namespace vexa {

/// An edit line of several rows that holds one line of plain text. Enter is left to the screen's
/// default button, Tab moves the focus, pasted texts become what an expression is made of. A change
/// that has no room is refused whole. Each key is one step of undo, which brings the selection back
/// too. Positions are characters of the wide text.
class EditLine : public QPlainTextEdit {
  Q_OBJECT

 public:
  /// `fieldLength`: the characters that the line holds.
  explicit EditLine(QWidget* parent, FieldLength fieldLength = kLineLength);

  std::wstring Text() const { return toPlainText().toStdWString(); }
  /// The text's size grows with the line, up to `pixels`.
  void SetLargestText(int pixels) { largestText = pixels; }
  /// The text with its selection.
  EditText State() const;
  /// Applies a rule's change as one step of undo, shows the caret and takes the focus. Without room
  /// for it the line stays as it is.
  void ApplyChange(const TextChange& change);
  /// The same for a text that was chosen or pasted: without room for it the user is told so.
  void ApplyOrTell(const TextChange& change);
  /// Puts `text` in the place of all there is, as one step of undo. The focus stays where it is.
  void ReplaceText(const std::wstring& text);
  /// What is being composed with an input method becomes text: positions count only while nothing
  /// is.
  void CommitComposition();
  /// Selects the whole text, shows the caret and takes the focus.
  void SelectWholeText();
  /// Whether `event` would change the text: a character, or a key that deletes, pastes or undoes.
  static bool IsTyping(const QKeyEvent& event);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  static constexpr int kLargestText = 22;

  /// The ends of a selection, in positions of the document.
  struct Selection {
    int anchor = 0;
    int caret = 0;
  };

  bool HasRoomFor(const TextChange& change) const;
  /// Applies `change` if it has room.
  bool Change(const TextChange& change);
  void TellLength();
  void JoinLines();
  void RememberSelection();
  void Undo();
  void Redo();
  /// Undoes or redoes by `step`, and selects what was selected then.
  void Step(void (QPlainTextEdit::*step)());

  FieldLength length;
  int largestText = kLargestText;
  /// The selection that was there last in each state of undo, by the document's number of steps.
  std::map<int, Selection> selections;
  bool stepping = false;
};

}  // namespace vexa
