#pragma once

#include "stats/StatisticsScreen.h"

namespace vexa {

/// The screen of the statistics of two variables and their regression.
class TwoVarScreen : public StatisticsScreen {
  Q_OBJECT

 public:
  /// Reads the settings. `settingsStore` must outlive the screen.
  TwoVarScreen(SettingsStore& settingsStore, QWidget* parent);

 protected:
  void RunKey(std::wstring_view caption) override;

 private:
  void OpenModelMenu();
  void Plot();
};

}  // namespace vexa
