#include "toolkit/KeyboardOnFocus.h"

#include <QEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QWidget>

namespace vexa {

KeyboardOnFocus::KeyboardOnFocus(QWidget* edit) : QObject(edit) {
  edit->installEventFilter(this);
}

bool KeyboardOnFocus::eventFilter(QObject* edit, QEvent* event) {
  const bool gained = event->type() == QEvent::FocusIn;
  if (gained || event->type() == QEvent::FocusOut) {
    QGuiApplication::inputMethod()->setVisible(gained);
    emit Asked(gained);
  }
  return QObject::eventFilter(edit, event);
}

}  // namespace vexa
