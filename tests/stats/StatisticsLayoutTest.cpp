// The layout of both screens at several sizes: everything can be hit, read and reached.

#include <QHeaderView>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include "stats/StatisticsScreenDriver.h"
#include "toolkit/FaceText.h"
#include "toolkit/KeyButton.h"

namespace vexa {

using test::StatisticsScreenDriver;

namespace {

constexpr int kLeastTarget = 30;

}  // namespace

class StatisticsLayoutTest : public QObject {
  Q_OBJECT

 private slots:
  void FitsTheWindow_data();
  void FitsTheWindow();
  void TargetsAreHighEnough_data() { FitsTheWindow_data(); }
  void TargetsAreHighEnough();
  void NothingOverlaps_data() { FitsTheWindow_data(); }
  void NothingOverlaps();
  void ShowsAllKeysAtTheOpeningSize();
  void QuietLinesMoveNoKey_data() { FitsTheWindow_data(); }
  void QuietLinesMoveNoKey();
  void EveryKeyIsReachedByScrolling();
  void ColumnsHoldAWideValue();
  void TabGoesThroughTheControlsAsRead();
  void ControlsHaveNames();

 private:
  std::unique_ptr<StatisticsScreenDriver> Open() const {
    QFETCH(int, mode);
    QFETCH(QSize, size);
    auto screen = std::make_unique<StatisticsScreenDriver>(static_cast<Mode>(mode), size);
    screen->Load(mode == 3 ? "1.5\t2\r\n-12345.678\t1\r\n" : "1.5\t2\t1\r\n-12345.678\t1\t1\r\n");
    return screen;
  }
};

void StatisticsLayoutTest::FitsTheWindow_data() {
  QTest::addColumn<int>("mode");
  QTest::addColumn<QSize>("size");
  for (const int mode : {3, 4}) {
    for (const QSize size : {QSize(240, 320), QSize(240, 420), QSize(340, 560), QSize(800, 900)}) {
      QTest::addRow("mode %d, %d by %d", mode, size.width(), size.height()) << mode << size;
    }
  }
}

void StatisticsLayoutTest::FitsTheWindow() {
  const auto screen = Open();
  QCOMPARE(screen->screen->size(), screen->window->size());
  QVERIFY(screen->screen->minimumSizeHint().width() <= screen->window->width());
  QVERIFY(screen->screen->minimumSizeHint().height() <= screen->window->height());
}

void StatisticsLayoutTest::TargetsAreHighEnough() {
  const auto screen = Open();
  for (const QPushButton* key : screen->screen->findChildren<QPushButton*>()) {
    if (key->isVisible()) QVERIFY2(key->height() >= kLeastTarget, qPrintable(key->text()));
  }
  for (const QLineEdit* edit : screen->screen->findChildren<QLineEdit*>()) {
    QVERIFY2(edit->height() >= kLeastTarget, qPrintable(edit->objectName()));
  }
  QVERIFY(screen->Table()->rowHeight(0) >= kLeastTarget);
  QVERIFY(screen->Table()->horizontalHeader()->height() >= kLeastTarget);
  QVERIFY(screen->Table()->viewport()->height() >= kLeastTarget);
}

void StatisticsLayoutTest::NothingOverlaps() {
  const auto screen = Open();
  QList<QRect> places;
  for (const QWidget* part : screen->screen->findChildren<QWidget*>()) {
    const bool isControl = qobject_cast<const QPushButton*>(part) ||
                           qobject_cast<const QLineEdit*>(part) || part == screen->Table() ||
                           part->objectName() == QStringLiteral("Total") ||
                           part->objectName() == QStringLiteral("Result");
    if (!isControl || !part->isVisible()) continue;
    // What scrolls is seen where its frame is.
    const QRect seen = part->visibleRegion().boundingRect();
    if (seen.isEmpty()) continue;
    const QRect place(part->mapTo(screen->screen, seen.topLeft()), seen.size());
    QVERIFY2(screen->screen->rect().contains(place), qPrintable(part->objectName()));
    for (const QRect& other : places) {
      QVERIFY2(!other.intersects(place), qPrintable(part->objectName()));
    }
    places << place;
  }
  QVERIFY(places.size() > 12);
}

void StatisticsLayoutTest::ShowsAllKeysAtTheOpeningSize() {
  for (const Mode mode : {Mode::OneVarStatistics, Mode::TwoVarStatistics}) {
    const StatisticsScreenDriver screen(mode);
    for (const QPushButton* key : screen.screen->findChildren<QPushButton*>()) {
      if (!key->isVisible()) continue;
      QCOMPARE(key->visibleRegion().boundingRect(), key->rect());
    }
  }
}

void StatisticsLayoutTest::QuietLinesMoveNoKey() {
  QFETCH(int, mode);
  QFETCH(QSize, size);
  StatisticsScreenDriver screen(static_cast<Mode>(mode), size);
  const auto places = [&] {
    QList<QRect> all;
    for (const QPushButton* key : screen.screen->findChildren<QPushButton*>()) {
      if (key->isVisible()) all << QRect(key->mapTo(screen.screen, QPoint()), key->size());
    }
    return all;
  };
  const QList<QRect> before = places();
  screen.Load("Heading\r\n1\t2\t1\r\n");
  QVERIFY(!screen.Notice().isEmpty());
  screen.screen->layout()->activate();
  QCOMPARE(places(), before);
  const auto* const notice = screen.screen->findChild<QLabel*>(QStringLiteral("Notice"));
  QVERIFY(notice->height() >= notice->heightForWidth(notice->width()));
}

void StatisticsLayoutTest::EveryKeyIsReachedByScrolling() {
  const StatisticsScreenDriver screen(Mode::TwoVarStatistics, {240, 320});
  auto* const area = screen.screen->findChild<QScrollArea*>();
  for (const char* caption : {"ΣX", "Plot", "X'", "A"}) {
    area->ensureWidgetVisible(screen.Key(QString::fromUtf8(caption)), 0, 0);
    QTRY_COMPARE(screen.Key(QString::fromUtf8(caption))->visibleRegion().boundingRect(),
                 screen.Key(QString::fromUtf8(caption))->rect());
  }
}

void StatisticsLayoutTest::ColumnsHoldAWideValue() {
  StatisticsScreenDriver screen(Mode::TwoVarStatistics, {240, 320});
  screen.Add({"-1.234567e13", "-1.234567e13", "1"});
  const QFontMetrics metrics(screen.Table()->font());
  const QString text = screen.Table()->model()->index(0, 0).data().toString();
  QCOMPARE(text, QStringLiteral("-1.23457e+013"));
  QVERIFY(metrics.horizontalAdvance(text) < screen.Table()->columnWidth(0));
}

void StatisticsLayoutTest::TabGoesThroughTheControlsAsRead() {
  StatisticsScreenDriver screen(Mode::TwoVarStatistics);
  screen.Load("1\t2\t1\r\n3\t4\t1\r\n");
  screen.Edit("X")->setFocus();
  QStringList visited;
  for (int n = 0; n < 9; ++n) {
    visited << screen.window->focusWidget()->objectName();
    QTest::keyClick(screen.window->focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(visited,
           (QStringList{"X", "Y", "Cnt", "Add", "Data", "Clear", "Save", "Load", "Result"}));
}

void StatisticsLayoutTest::ControlsHaveNames() {
  for (const Mode mode : {Mode::OneVarStatistics, Mode::TwoVarStatistics}) {
    const StatisticsScreenDriver screen(mode);
    for (const QPushButton* key : screen.screen->findChildren<QPushButton*>()) {
      QCOMPARE(key->accessibleName(), key->text());
      QCOMPARE(key->objectName(), key->text());
      QVERIFY(!key->toolTip().isEmpty());
    }
    for (const QLineEdit* edit : screen.screen->findChildren<QLineEdit*>()) {
      QCOMPARE(edit->accessibleName(), edit->objectName());
    }
    QCOMPARE(screen.Table()->accessibleName(), QStringLiteral("Data"));
  }
}

}  // namespace vexa

QTEST_MAIN(vexa::StatisticsLayoutTest)
#include "StatisticsLayoutTest.moc"
