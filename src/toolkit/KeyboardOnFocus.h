#pragma once

#include <QObject>

class QWidget;

namespace vexa {

/// Raises the platform's on-screen keyboard whenever an edit box gains the focus, and lowers it
/// when the focus goes elsewhere.
class KeyboardOnFocus : public QObject {
  Q_OBJECT

 public:
  /// Watches `edit`, which owns the object.
  explicit KeyboardOnFocus(QWidget* edit);

  bool eventFilter(QObject* edit, QEvent* event) override;

 signals:
  /// The platform was asked to show the keyboard, or to hide it.
  void Asked(bool shown);
};

}  // namespace vexa
