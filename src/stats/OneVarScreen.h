#pragma once

#include "stats/StatisticsScreen.h"

namespace vexa {

/// The screen of the statistics of one variable.
class OneVarScreen : public StatisticsScreen {
  Q_OBJECT

 public:
  /// Reads the settings. `store` must outlive the screen.
  OneVarScreen(SettingsStore& store, QWidget* parent)
      : StatisticsScreen(Mode::OneVarStatistics, store, kOneVarColumns, OneVarKeys(), parent) {}
};

}  // namespace vexa
