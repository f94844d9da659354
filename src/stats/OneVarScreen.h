#pragma once

#include "stats/StatisticsScreen.h"

namespace vexa {

/// The screen of the statistics of one variable.
class OneVarScreen : public StatisticsScreen {
  Q_OBJECT

 public:
  /// Reads the settings. `settingsStore` must outlive the screen.
  OneVarScreen(SettingsStore& settingsStore, QWidget* parent)
      : StatisticsScreen(Mode::OneVarStatistics, settingsStore, kOneVarColumns, OneVarKeys(),
                         parent) {}
};

}  // namespace vexa
