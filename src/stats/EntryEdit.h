#pragma once

#include <QLineEdit>

namespace vexa {

/// An edit that remembers what was selected when it lost the focus, for commands that are given
/// while something else has it.
class EntryEdit : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

  /// Takes the focus, with the selection that there was.
  void Resume();

 protected:
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int keptStart = -1;
  int keptLength = 0;
};

}  // namespace vexa
