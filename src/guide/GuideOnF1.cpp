#include "guide/GuideOnF1.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "guide/GuidePages.h"

namespace vexa {
namespace {

/// The name of a widget's class without its namespace.
std::string_view ClassOf(const QWidget* widget) {
  const std::string_view name = widget->metaObject()->className();
  const std::size_t colon = name.rfind(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

}  // namespace

std::string_view GuidePageOf(const QWidget* widget) {
  for (; widget; widget = widget->parentWidget()) {
    const std::string_view page = GuidePageOf(ClassOf(widget));
    if (!page.empty()) return page;
  }
  return GuidePages().front().name;
}

GuideOnF1::GuideOnF1(Open openGuide) : open(std::move(openGuide)) {
  qApp->installEventFilter(this);
}

bool GuideOnF1::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && watched->isWidgetType()) {
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_F1 && key->modifiers() == Qt::NoModifier) {
      open(GuidePageOf(static_cast<QWidget*>(watched)));
      return true;
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace vexa
