#pragma once

#include <QPlainTextEdit>
#include <string>

#include "toolkit/EditText.h"
#include "toolkit/LineText.h"

namespace vexa {

/// An edit line of several rows that holds one line of plain text. Enter is left to the screen's
/// default button, Tab moves the focus, pasted line breaks become blanks, and the text never grows
/// beyond its longest length. Positions are characters of the wide text.
class EditLine : public QPlainTextEdit {
  Q_OBJECT

 public:
  /// `longest`: the characters that the line holds.
  explicit EditLine(QWidget* parent, std::size_t longest = kLongestLine);

  std::wstring Text() const { return toPlainText().toStdWString(); }
  /// The text's size grows with the line, up to `pixels`.
  void SetLargestText(int pixels) { largestText = pixels; }
  /// The text with its selection.
  EditText State() const;
  /// Applies a rule's change as one step of undo, shows the caret and takes the focus.
  void ApplyChange(const TextChange& change);
  /// Puts `text` in the place of all there is, as one step of undo. The focus stays where it is.
  void ReplaceText(const std::wstring& text);
  /// Selects the whole text, shows the caret and takes the focus.
  void SelectWholeText();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  static constexpr int kLargestText = 22;

  /// Characters that may replace those from `start` to `end`, in units of the document.
  std::size_t RoomFor(int start, int end) const;
  void Change(const TextChange& change);

  std::size_t longestText;
  int largestText = kLargestText;
};

}  // namespace vexa
