// How long the unit converter takes from the key to the painted dialog, at first use and later.

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QPointer>

#include "Ratios.h"
#include "converter/UnitConverterDialog.h"
#include "display/MemorySettingsStore.h"
#include "toolkit/Theme.h"
#include "toolkit/TouchStyle.h"

using namespace vexa;

namespace {

constexpr double kBoundMilliseconds = 60.0;
constexpr int kLaterUses = 9;

/// Sees the first time that a widget has been painted.
class PaintWatch : public QObject {
 public:
  bool painted = false;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    painted = painted || event->type() == QEvent::Paint;
    return false;
  }
};

/// Opens the converter over `frame` and closes it; the milliseconds until all of it was painted.
double OpenOnce(MemorySettingsStore& store, QWidget* frame) {
  QElapsedTimer timer;
  timer.start();
  auto* const opened = new UnitConverterDialog(store, {6, 14, 16}, 0.0, L"1.5", frame);
  const QPointer<UnitConverterDialog> dialog(opened);
  PaintWatch watch;
  // The last control of the layout: it is painted after all others.
  opened->findChild<QWidget*>(QStringLiteral("Output unit"))->installEventFilter(&watch);
  opened->open();
  while (!watch.painted) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  // Paints go to the display when the event that asked for them has been dealt with.
  QCoreApplication::processEvents();
  const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  opened->reject();
  while (dialog) {
    QCoreApplication::sendPostedEvents(dialog, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
  return milliseconds;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setStyle(new TouchStyle);
  QApplication::setFont(theme::ProgramFont(QApplication::font()));
  MemorySettingsStore store;
  QWidget frame;
  frame.resize(340, 560);
  PaintWatch watch;
  frame.installEventFilter(&watch);
  frame.show();
  while (!watch.painted) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  frame.removeEventFilter(&watch);

  bench::Ratios ratios(nullptr);
  ratios.Figure("first use of the converter", OpenOnce(store, &frame), "ms", kBoundMilliseconds);
  std::vector<double> later;
  for (int n = 0; n < kLaterUses; ++n) later.push_back(OpenOnce(store, &frame));
  ratios.Figure("later uses of the converter", bench::Median(later), "ms", kBoundMilliseconds);
  return ratios.Finish();
}
