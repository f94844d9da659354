#pragma once

#include <QObject>
#include <QTimer>
#include <vector>

#include "app/WindowPlace.h"

class QWidget;

namespace vexa {

/// Opens a window where it was left, and remembers where it is: what is stored is the place of the
/// normal window, however it is closed.
class PlaceKeeper : public QObject {
 public:
  /// Places `frame`, which is not shown yet. Both must outlive the keeper.
  PlaceKeeper(QWidget& frame, SettingsStore& settingsStore);
  ~PlaceKeeper() override;

  /// Looks where the window is: before it is hidden.
  void Note();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::vector<WindowPlace> Screens() const;
  void Save();

  QWidget& window;
  SettingsStore& store;
  RememberedPlace remembered;
  QTimer timer;
};

}  // namespace vexa
