#include "app/MainFrame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPainter>

#include "app/CalculatorScreen.h"
#include "app/PlaceKeeper.h"
#include "display/SettingsLayout.h"
#include "display/WideText.h"
#include "guide/GuideOnF1.h"
#include "guide/GuidePages.h"
#include "plotter/PlotterScreen.h"
#include "stats/OneVarScreen.h"
#include "stats/TwoVarScreen.h"
#include "toolkit/ModeScreen.h"
#include "toolkit/NoticeBar.h"

namespace vexa {
namespace {

constexpr int kLoadingInset = 15;

/// How each mode's screen is made, in the order of kModes.
template <typename Screen>
ModeScreen* NewScreen(SettingsStore& store, QWidget* parent) {
  return new Screen(store, parent);
}
constexpr std::array<ModeScreen* (*)(SettingsStore&, QWidget*), kModes.size()> kNewScreen{
    NewScreen<CalculatorScreen>,
    NewScreen<PlotterScreen>,
    NewScreen<OneVarScreen>,
    NewScreen<TwoVarScreen>,
};

}  // namespace

MainFrame::MainFrame(SettingsStore& settingsStore)
    : store(settingsStore), modeCode(Read(store, settings::kMode)), notices(new NoticeBar(this)) {
  setObjectName(QStringLiteral("VexaMain"));
  setWindowTitle(FromWide(settings::kSettingsKey));
  connect(notices, &NoticeBar::HeightChanged, this, &MainFrame::LayOut);
  place = std::make_unique<PlaceKeeper>(*this, store);
}

MainFrame::~MainFrame() {
  for (auto& screen : screens) screen.reset();
  Write(store, settings::kMode, modeCode);
}

void MainFrame::SwitchMode(int code) {
  modeCode = code;
  Write(store, settings::kMode, modeCode);
  // What the new screen reads is what the user sees on the old one.
  for (auto& screen : screens) {
    if (screen) screen->StoreState();
  }
  const Mode mode = ModeOfCode(code);
  const std::size_t current = IndexOf(mode);
  if (!screens[current]) CreateScreen(mode);
  screens[current]->show();
  screens[current]->setFocus();
  for (std::size_t n = 0; n < screens.size(); ++n) {
    if (n != current) screens[n].reset();
  }
}

void MainFrame::CreateScreen(Mode mode) {
  auto& screen = screens[IndexOf(mode)];
  screen.reset(kNewScreen[IndexOf(mode)](store, this));
  LayOut();
  // Queued: the screen's own menu is still at work when it says what was chosen.
  connect(screen.get(), &ModeScreen::ModeChosen, this, &MainFrame::SwitchMode,
          Qt::QueuedConnection);
  connect(screen.get(), &ModeScreen::GuideChosen, this,
          [this, shown = screen.get()] { emit GuideChosen(GuidePageOf(shown)); });
  connect(screen.get(), &ModeScreen::KeysChosen, this,
          [this] { emit GuideChosen(kKeysAndFunctionsPage); });
  connect(screen.get(), &ModeScreen::ExitChosen, this, &MainFrame::Exit, Qt::QueuedConnection);
}

void MainFrame::AskForMode(Mode mode) {
  const int code = static_cast<int>(mode);
  const auto& screen = screens[IndexOf(ModeOfCode(modeCode))];
  if (!screen) {
    modeCode = code;
  } else if (code != modeCode && !QApplication::activeModalWidget()) {
    screen->LeaveFor(code);
  }
}

void MainFrame::Exit() {
  place->Note();
  hide();
  close();
}

void MainFrame::BringToFront() {
  QWidget* const popup = QApplication::activeModalWidget();
  QWidget* const front = popup ? popup : this;
  if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  front->raise();
  front->activateWindow();
}

void MainFrame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect inside =
      rect().adjusted(kLoadingInset, kLoadingInset, -kLoadingInset, -kLoadingInset);
  painter.drawText(inside, Qt::AlignLeft | Qt::AlignTop, QStringLiteral("Loading..."));
  if (firstScreenAsked) return;
  firstScreenAsked = true;
  // Not inside the painting, so that the text is on the display first.
  QMetaObject::invokeMethod(this, &MainFrame::ShowFirstScreen, Qt::QueuedConnection);
}

void MainFrame::ShowFirstScreen() {
  SwitchMode(modeCode);
  emit Started();
}

void MainFrame::resizeEvent(QResizeEvent*) {
  LayOut();
}

void MainFrame::LayOut() {
  const int strip = notices->isHidden() ? 0 : notices->heightForWidth(width());
  notices->setGeometry(0, height() - strip, width(), strip);
  for (auto& screen : screens) {
    if (screen) screen->setGeometry(rect().adjusted(0, 0, 0, -strip));
  }
}

void MainFrame::ShowNotice(const QString& sentence) {
  notices->Add(sentence);
}

void MainFrame::closeEvent(QCloseEvent* event) {
  event->accept();
  emit Closed();
}

}  // namespace vexa
