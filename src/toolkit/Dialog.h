#pragma once

#include <QDialog>
#include <QPushButton>
#include <string_view>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace vexa {

/// What the program's dialogs share: title, margins, sizes, and controls whose object and
/// accessible names are their captions. A dialog is opened with open(), deletes itself when it is
/// closed, and lays its controls out from top to bottom.
class Dialog : public QDialog {
  Q_OBJECT

 public:
  /// `name` becomes the object name.
  Dialog(const QString& name, QWidget* parent);

 protected:
  QVBoxLayout* Content() const { return content; }
  /// Opens the dialog with `height`, or as high as the screen has room for.
  void SetOpeningHeight(int height);
  /// Adds a text.
  QLabel* AddLabel(std::wstring_view text);
  /// Adds `field` below a label that is its name; `stretch` as in a layout.
  QLabel* AddField(std::wstring_view label, QWidget* field, int stretch = 0);
  /// Adds `field` beside a label that is its name.
  QLabel* AddFieldRow(std::wstring_view label, QWidget* field);
  /// Adds a row of buttons.
  QHBoxLayout* AddButtonRow();
  /// A button in `row` that runs `pressed` of `receiver`.
  template <typename Receiver, typename Owner>
  QPushButton* AddButton(QHBoxLayout* row, std::wstring_view caption, Receiver* receiver,
                         void (Owner::*pressed)()) {
    QPushButton* const button = NewButton(row, caption);
    connect(button, &QPushButton::clicked, receiver, pressed);
    return button;
  }
  /// Shows `button` as the one that Enter runs.
  static void SetDefault(QPushButton* button);

  /// A button that has the focus takes Return; the default button has it otherwise.
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  /// The largest size that the screen has room for.
  QSize Room() const;
  QLabel* NewFieldLabel(std::wstring_view label, QWidget* field);
  QPushButton* NewButton(QHBoxLayout* row, std::wstring_view caption);

  QVBoxLayout* content;
};

}  // namespace vexa
