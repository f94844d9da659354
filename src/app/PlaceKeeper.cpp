#include "app/PlaceKeeper.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <chrono>

namespace vexa {
namespace {

/// Only a window at rest is somewhere: on the way to another state it is told to be in strange
/// places, and a drag would be stored at each pixel.
constexpr std::chrono::milliseconds kRest{100};

WindowPlace PlaceOf(const QRect& rect) {
  return {rect.x(), rect.y(), rect.width(), rect.height()};
}

}  // namespace

PlaceKeeper::PlaceKeeper(QWidget& frame, SettingsStore& settingsStore)
    : window(frame), store(settingsStore), remembered(LoadWindowPlace(store)) {
  timer.setSingleShot(true);
  connect(&timer, &QTimer::timeout, this, &PlaceKeeper::Save);
  const std::vector<WindowPlace> screens = Screens();
  if (screens.empty()) return;
  remembered.place = FittedPlace(remembered.place, screens);
  const WindowPlace& place = remembered.place;
  window.setMinimumSize(std::min(kLayoutWidth, place.width), std::min(kLayoutHeight, place.height));
  // The position counts the window's title, so that it stays on the screen.
  window.resize(place.width, place.height);
  window.move(place.left, place.top);
  if (remembered.isMaximized) window.setWindowState(Qt::WindowMaximized);
  window.installEventFilter(this);
}

PlaceKeeper::~PlaceKeeper() {
  Save();
}

std::vector<WindowPlace> PlaceKeeper::Screens() const {
  std::vector<WindowPlace> areas;
  for (const QScreen* const screen : QGuiApplication::screens()) {
    areas.push_back(PlaceOf(screen->availableGeometry()));
  }
  return areas;
}

void PlaceKeeper::Note() {
  const WindowView view{
      .place = PlaceOf(QRect(window.pos(), window.size())),
      .frame = PlaceOf(window.frameGeometry()),
      .isShown = window.isVisible() && !window.isMinimized() && !window.isFullScreen(),
      .isMaximized = window.isMaximized(),
  };
  remembered = PlaceAfter(remembered, view, Screens());
}

void PlaceKeeper::Save() {
  Note();
  SaveWindowPlace(store, remembered);
}

bool PlaceKeeper::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::WindowStateChange:
      // The state is true at once, and the window may be minimised before it rests.
      if (!window.isMinimized()) remembered.isMaximized = window.isMaximized();
      [[fallthrough]];
    case QEvent::Move:
    case QEvent::Resize:
      timer.start(kRest);
      break;
    case QEvent::Close:
      Note();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace vexa
