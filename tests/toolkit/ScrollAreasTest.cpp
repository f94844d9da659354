// Areas that scroll come to rest at every size, whatever they hold: a scroll bar that takes room
// may change what has room, and with it whether the bar is needed.

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <functional>
#include <random>

#include "app/CalculatorScreen.h"
#include "converter/UnitConverterDialog.h"
#include "converter/UserConversionDialog.h"
#include "display/MemorySettingsStore.h"
#include "macros/MacroEditorDialog.h"
#include "macros/MacroListDialog.h"
#include "macros/MemoryVariableDialog.h"
#include "plotter/PlotterScreen.h"
#include "stats/OneVarScreen.h"
#include "stats/TwoVarScreen.h"
#include "support/ScreenMain.h"
#include "support/StoredMacros.h"

namespace vexa {
namespace {

/// Far more layouts than a change of size needs.
constexpr int kMostResizes = 100;
constexpr int kSizes = 25;

/// Counts how often `area` is laid out anew. Past the most, the area hears of no other size, so
/// that a test of one that never rests comes to an end.
class LayoutCounter : public QObject {
 public:
  explicit LayoutCounter(QAbstractScrollArea* area) : QObject(area) {
    area->viewport()->installEventFilter(this);
  }
  int resizes = 0;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize && ++resizes > kMostResizes) return true;
    return QObject::eventFilter(watched, event);
  }
};

struct Screen {
  const char* name;
  std::function<QWidget*(SettingsStore&)> open;
};
const Screen kScreens[] = {
    {"calculator", [](SettingsStore& store) { return new CalculatorScreen(store, nullptr); }},
    {"plotter", [](SettingsStore& store) { return new PlotterScreen(store, nullptr); }},
    {"one variable", [](SettingsStore& store) { return new OneVarScreen(store, nullptr); }},
    {"two variables", [](SettingsStore& store) { return new TwoVarScreen(store, nullptr); }},
    {"macro editor", [](SettingsStore& store) { return new MacroEditorDialog(store, nullptr); }},
    {"macro list", [](SettingsStore& store) { return new MacroListDialog(store, nullptr); }},
    {"variables", [](SettingsStore& store) { return new MemoryVariableDialog(store, nullptr); }},
    {"converter",
     [](SettingsStore& store) {
       return new UnitConverterDialog(store, {}, 0.0, L"1234567.5", nullptr);
     }},
    {"conversions", [](SettingsStore& store) { return new UserConversionDialog(store, nullptr); }},
};

/// What fills an edit line: parts of expressions up to some length, blanks, signs without a width.
QStringList Texts() {
  constexpr const char* kParts[] = {"sin(", "sqrt(", "log(", "acos(", ")", "(", "+",  "/",
                                    "1",    "24",    "915",  "33",    "8", " ", "exp"};
  std::mt19937 random(7);
  QStringList texts{QStringLiteral(")4log(9)8+2-33acos(sin(+/-1exp()acos()4exp(71sin(sqrt(sin(/"
                                   "ln(cos(log(24915sqrt(84"),
                    QString(90, u' '), QString(60, u'\u0301'), QString(120, u'W')};
  for (qsizetype length = 40; length < 160; length += 15) {
    QString text;
    while (text.size() < length) text += QLatin1String(kParts[random() % std::size(kParts)]);
    texts += text;
  }
  return texts;
}

}  // namespace

class ScrollAreasTest : public QObject {
  Q_OBJECT

 private slots:
  void EveryAreaRests_data();
  void EveryAreaRests();
};

void ScrollAreasTest::EveryAreaRests_data() {
  QTest::addColumn<int>("screen");
  for (std::size_t n = 0; n < std::size(kScreens); ++n) {
    QTest::newRow(kScreens[n].name) << static_cast<int>(n);
  }
}

void ScrollAreasTest::EveryAreaRests() {
  QFETCH(int, screen);
  MemorySettingsStore store;
  test::Store(store, test::kThreeMacros);
  const std::unique_ptr<QWidget> window(kScreens[screen].open(store));
  window->setAttribute(Qt::WA_DeleteOnClose, false);
  window->show();
  QVERIFY(QTest::qWaitForWindowActive(window.get()));
  std::vector<LayoutCounter*> counters;
  const QList<QAbstractScrollArea*> areas = window->findChildren<QAbstractScrollArea*>();
  for (QAbstractScrollArea* const area : areas) counters.push_back(new LayoutCounter(area));

  std::mt19937 random(static_cast<unsigned>(screen));
  const auto between = [&random](int low, int high) {
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low));
  };
  for (const QString& text : Texts()) {
    for (auto* const edit : window->findChildren<QPlainTextEdit*>()) edit->setPlainText(text);
    for (int n = 0; n < kSizes; ++n) {
      for (LayoutCounter* const counter : counters) counter->resizes = 0;
      window->resize(between(240, 560), between(320, 640));
      QCoreApplication::processEvents();
      for (const LayoutCounter* const counter : counters) QVERIFY(counter->resizes <= kMostResizes);
      for (const QPlainTextEdit* const edit : window->findChildren<QPlainTextEdit*>()) {
        const bool wraps = edit->lineWrapMode() != QPlainTextEdit::NoWrap;
        QVERIFY2(!wraps || !edit->horizontalScrollBar()->isVisible(),
                 qPrintable(edit->objectName() + u' ' + text));
      }
    }
  }
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::ScrollAreasTest)
#include "ScrollAreasTest.moc"
