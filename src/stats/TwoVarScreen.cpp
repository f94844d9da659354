#include "stats/TwoVarScreen.h"

#include <QMenu>
#include <algorithm>
#include <utility>

#include "plotter/GraphViewDialog.h"
#include "toolkit/KeyButton.h"
#include "toolkit/Keypad.h"
#include "toolkit/MessageBox.h"
#include "toolkit/PopupMenu.h"

namespace vexa {

TwoVarScreen::TwoVarScreen(SettingsStore& settingsStore, QWidget* parent)
    : StatisticsScreen(Mode::TwoVarStatistics, settingsStore, kTwoVarColumns, TwoVarKeys(),
                       parent) {}

void TwoVarScreen::RunKey(std::wstring_view caption) {
  if (caption == L"Plot") return Plot();
  const auto isModel = [caption](const RegressionCurve& name) { return name.caption == caption; };
  if (std::ranges::any_of(kRegressionModels, isModel)) return OpenModelMenu();
  StatisticsScreen::RunKey(caption);
}

void TwoVarScreen::OpenModelMenu() {
  std::vector<PopupCommand> models;
  for (const RegressionCurve& name : kRegressionModels) {
    models.push_back({static_cast<int>(name.model), std::wstring(name.menuText)});
  }
  const QPoint corner = ResultKeys()->Button(kRegressionModels[0].caption)->geometry().topRight();
  ShowPopupMenu(ResultKeys(), corner, PopupSide::Left, models, [this](int model) {
    Rules().ChooseModel(static_cast<RegressionModel>(model));
    Refresh();
  })->setObjectName(QStringLiteral("Models"));
}

void TwoVarScreen::Plot() {
  GraphData graph;
  const auto message = RunBeside(
      QStringLiteral("Computing..."),
      [&](const ProgressWatcher& watcher) { return Rules().PreparePlot(graph, watcher); });
  if (!message) return;
  Refresh();
  if (!message->empty()) return ShowErrorBox(this, *message);
  OpenDialog(new GraphViewDialog(Store(), std::move(graph), this));
}

}  // namespace vexa
