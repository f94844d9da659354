// The graph view through pen, wheel, keys, menus and buttons.

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QWheelEvent>

#include "display/DisplayFormattingDialog.h"
#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"
#include "display/WideText.h"
#include "plotter/GraphBitmap.h"
#include "plotter/GraphImage.h"
#include "plotter/GraphMapping.h"
#include "plotter/GraphViewDialog.h"
#include "plotter/Graphs.h"
#include "plotter/PlotView.h"
#include "plotter/PlotterOptionsDialog.h"
#include "plotter/ScreenSteps.h"
#include "toolkit/FileDialogs.h"

namespace vexa {

using namespace test;

class GraphViewTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
  void init();
  void cleanup() { delete view; }
  void OpensAtHome();
  void EveryControlHasAName();
  void MenuCommandsChangeTheRanges();
  void MenusShowTheirKeys();
  void KeysChangeTheRanges_data();
  void KeysChangeTheRanges();
  void ListsAndBoxesKeepTheirKeys();
  void TheWheelZooms();
  void AFastTurnOfTheWheelIsUndoneAtOnce();
  void EscapeDropsTheBox();
  void ABoxGoesWhenTheReleaseNeverComes();
  void TextAndCheckAreTakenHoweverTheyAreSet();
  void TabGoesAsRead();
  void TypedNumbersAreForX();
  void DigitsWithControlAreNoNumbers();
  void OptionsTabAsRead();
  void OptionsShowExponentsAndKeepWhatTheyCut();
  void EveryChangeIsDrawn();
  void ATapTraces();
  void ATapWithoutTraceReadsThePoint();
  void ADragShowsABoxAndZooms();
  void ASmallDragDoesNotZoom();
  void TheBoxLeavesThePictureAsItWas();
  void CalEvaluates();
  void EnterRunsCal();
  void TheListsAreLinkedWhileTraceIsOn();
  void OpeningAListRemovesTheBox();
  void OpeningADialogRemovesTheBox();
  void RefusalsAreShown();
  void OptionsChangeTheGraph();
  void OptionsRefuseEqualBounds();
  void OptionsRefuseWhatIsNoNumber();
  void CancelledOptionsChangeNothing();
  void ConfigFormatsAnew();
  void ShowsDataPoints();
  void SaveWritesTheChosenFormat();
  void SaveSaysThatTheFileCannotBeWritten();
  void CancelledSaveWritesNothing();
  void CloseCloses();
  void TargetsAreLargeEnough();
  void FitsASmallDisplay();
  void DarkColoursLeaveTheGraphWhite();
  void NothingIsDrawnBeyondTheFrame();
  void CurvesLeaveAtTheirTrueCrossing();
  void PensAndLettersStayFine();
  void ALargeGraphHasNumbers();
  void TheTracedPointIsMarked();
  void AFunctionWithoutAPointSaysSo();

 private:
  void Open(const GraphData& data);
  PlotView* Plot() const { return view->findChild<PlotView*>(); }
  const GraphModel& Graph() const { return view->Graph(); }
  QComboBox* Functions() const { return view->findChild<QComboBox*>(QStringLiteral("Functions")); }
  QComboBox* Values() const { return view->findChild<QComboBox*>(QStringLiteral("Values")); }
  QLineEdit* XBox() const { return view->findChild<QLineEdit*>(QStringLiteral("X =")); }
  QCheckBox* Trace() const { return view->findChild<QCheckBox*>(QStringLiteral("Trace")); }
  /// The graph as a window shows it at this scale.
  QImage Shown(const GraphData& data, qreal scale, qreal ratio = 1) const {
    const ScreenLook look{ratio, 13 * ratio};
    return DrawGraphImage(test::Opened(data), scale, view->font(), Qt::cyan, look);
  }
  /// The middle of a pixel of the view, on the widget.
  QPoint At(int x, int y) const;
  void Drag(QPoint from, QPoint to, bool release = true);
  void Wheel(int angle) { Wheel(angle, Plot()->rect().center()); }
  void Wheel(int angle, QPointF place);
  void Command(const char* caption) {
    Choose(view, QStringLiteral("Graph"), QString::fromLatin1(caption));
  }
  QFileDialog* OpenSave();

  MemorySettingsStore store;
  QWidget parent;
  QPointer<GraphViewDialog> view;
};

void GraphViewTest::init() {
  store = {};
  parent.show();
  Open(test::Graph({L"2*x", L"sqrt(x)", L"x+1"}));
}

void GraphViewTest::Open(const GraphData& data) {
  delete view;
  view = new GraphViewDialog(store, data, &parent);
  view->open();
  QVERIFY(QTest::qWaitForWindowActive(view));
}

QPoint GraphViewTest::At(int x, int y) const {
  const qreal scale = std::min(Plot()->width() / 234.0, Plot()->height() / 176.0);
  const QPointF origin((Plot()->width() - 234 * scale) / 2, (Plot()->height() - 176 * scale) / 2);
  return (origin + QPointF(x - 2 + 0.5, y - 87 + 0.5) * scale).toPoint();
}

void GraphViewTest::Drag(QPoint from, QPoint to, bool release) {
  QTest::mousePress(Plot(), Qt::LeftButton, {}, from);
  QMouseEvent move(QEvent::MouseMove, to, Plot()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                   Qt::NoModifier);
  QApplication::sendEvent(Plot(), &move);
  if (release) QTest::mouseRelease(Plot(), Qt::LeftButton, {}, to);
}

void GraphViewTest::Wheel(int angle, QPointF place) {
  QWheelEvent wheel(place, Plot()->mapToGlobal(place), {}, QPoint(0, angle), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(Plot(), &wheel);
}

void GraphViewTest::OpensAtHome() {
  QVERIFY(view->isModal());
  QCOMPARE(view->findChild<QLabel*>(QStringLiteral("Angle"))->text(), QStringLiteral("RAD"));
  QCOMPARE(Functions()->count(), 3);
  QCOMPARE(Functions()->currentText(), QStringLiteral("R:F1(X)=2*x"));
  QCOMPARE(Functions()->itemText(1), QStringLiteral("G:F2(x)=sqrt(x)"));
  QCOMPARE(Functions()->itemText(2), QStringLiteral("B:F3(X)=x+1"));
  QCOMPARE(XBox()->text(), QStringLiteral("0"));
  QVERIFY(Trace()->isChecked());
  QCOMPARE(Values()->count(), 3);
  QCOMPARE(Values()->currentText(), QStringLiteral("R:F1(X) = 0"));
  QVERIFY(Plot()->hasFocus());
  GraphData wide = test::Graph({L"x"});
  wide.functions[0].label.append(1000, L'+');
  Open(wide);
  QCOMPARE(Functions()->itemText(0).size(), qsizetype{500});
  GraphData degrees = test::Graph({L"x"});
  degrees.angleType = AngleType::Degrees;
  Open(degrees);
  QCOMPARE(view->findChild<QLabel*>(QStringLiteral("Angle"))->text(), QStringLiteral("DEG"));
}

void GraphViewTest::EveryControlHasAName() {
  for (const char* name :
       {"Graph", "Functions", "Values", "X =", "Cal", "Trace", "Save Graph", "Close"}) {
    const auto* const control = view->findChild<QWidget*>(QString::fromLatin1(name));
    QVERIFY2(control && !control->accessibleName().isEmpty(), name);
  }
}

void GraphViewTest::MenuCommandsChangeTheRanges() {
  Command("Zoom In");
  QCOMPARE(Graph().Ranges(), (PlotRanges{-6, 6, -6, 6}));
  Command("Move Right");
  Command("Move Up");
  const double moved = 12 * 0.2;
  QCOMPARE(Graph().Ranges(), (PlotRanges{-6 + moved, 6 + moved, -6 + moved, 6 + moved}));
  Command("Undo");
  QCOMPARE(Graph().Ranges(), (PlotRanges{-6 + moved, 6 + moved, -6, 6}));
  Command("Reset");
  QCOMPARE(Graph().Ranges(), PlotRanges());
  Command("Zoom Out");
  Command("Move Left");
  Command("Move Down");
  QCOMPARE(Graph().Ranges().xMin, -14 - 28 * 0.2);
}

void GraphViewTest::MenusShowTheirKeys() {
  const std::pair<const char*, const char*> keys[] = {
      {"Zoom In", "+"},        {"Zoom Out", "-"}, {"Reset", "Ctrl+0"},   {"Move Left", "Left"},
      {"Move Right", "Right"}, {"Move Up", "Up"}, {"Move Down", "Down"}, {"Undo", "Ctrl+Z"}};
  for (const auto& [caption, key] : keys) {
    const QAction* const action =
        MenuAction(view, QStringLiteral("Graph"), QString::fromLatin1(caption));
    QVERIFY(action);
    QCOMPARE(action->shortcut(), QKeySequence(QString::fromLatin1(key)));
  }
  QVERIFY(MenuAction(view, QStringLiteral("Graph"), QStringLiteral("Graph Options")));
}

void GraphViewTest::KeysChangeTheRanges_data() {
  QTest::addColumn<int>("key");
  QTest::addColumn<double>("xMin");
  QTest::addColumn<double>("yMin");
  QTest::newRow("Left") << int{Qt::Key_Left} << -14.0 << -10.0;
  QTest::newRow("Right") << int{Qt::Key_Right} << -6.0 << -10.0;
  QTest::newRow("Up") << int{Qt::Key_Up} << -10.0 << -6.0;
  QTest::newRow("Down") << int{Qt::Key_Down} << -10.0 << -14.0;
  QTest::newRow("+") << int{Qt::Key_Plus} << -6.0 << -6.0;
  QTest::newRow("-") << int{Qt::Key_Minus} << -14.0 << -14.0;
}

void GraphViewTest::KeysChangeTheRanges() {
  QFETCH(int, key);
  QFETCH(double, xMin);
  QFETCH(double, yMin);
  QTest::keyClick(Plot(), static_cast<Qt::Key>(key));
  QCOMPARE(Graph().Ranges().xMin, xMin);
  QCOMPARE(Graph().Ranges().yMin, yMin);
  QTest::keyClick(Plot(), Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(Graph().Ranges(), PlotRanges());
}

void GraphViewTest::ListsAndBoxesKeepTheirKeys() {
  XBox()->setFocus();
  XBox()->selectAll();
  QTest::keyClicks(XBox(), QStringLiteral("-1e+2"));
  QTest::keyClick(XBox(), Qt::Key_Left);
  QCOMPARE(XBox()->text(), QStringLiteral("-1e+2"));
  QCOMPARE(XBox()->cursorPosition(), 4);
  Functions()->setFocus();
  QTest::keyClick(Functions(), Qt::Key_Down);
  QCOMPARE(Functions()->currentIndex(), 1);
  QCOMPARE(Graph().Ranges(), PlotRanges());
}

void GraphViewTest::TheWheelZooms() {
  // About the pointer: column 165 is 4.
  Wheel(120, At(165, 175));
  QCOMPARE(Graph().Ranges().xMin, 4 - 14 * 0.6);
  QCOMPARE(Graph().Ranges().xMax, 4 + 6 * 0.6);
  Command("Reset");
  Wheel(-120, At(165, 175));
  QCOMPARE(Graph().Ranges().xMax, 4 + 6 * 1.4);
  // A finely turned wheel adds up.
  Command("Reset");
  Wheel(60, At(119, 175));
  QCOMPARE(Graph().Ranges(), PlotRanges());
  Wheel(60, At(119, 175));
  QCOMPARE(Graph().Ranges().xMax, 6.0);
  Wheel(240, At(119, 175));
  QCOMPARE(Graph().Ranges().xMax, 10 * 0.6 * 0.6 * 0.6);
}

void GraphViewTest::AFastTurnOfTheWheelIsUndoneAtOnce() {
  Command("Move Up");
  const PlotRanges before = Graph().Ranges();
  for (int n = 0; n < 5; ++n) Wheel(240, At(100 + n, 150));
  Command("Undo");
  QCOMPARE(Graph().Ranges(), before);
}

void GraphViewTest::EscapeDropsTheBox() {
  for (QWidget* focused : {static_cast<QWidget*>(Plot()), static_cast<QWidget*>(XBox())}) {
    Drag(At(50, 100), At(150, 200), false);
    focused->setFocus();
    QTest::keyClick(focused, Qt::Key_Escape);
    QVERIFY(view->isVisible());
    QVERIFY(!Graph().Drag().IsShown());
    // The pen is still down, and goes on.
    QMouseEvent move(QEvent::MouseMove, At(160, 210), Plot()->mapToGlobal(At(160, 210)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Plot(), &move);
    QVERIFY(!Graph().Drag().IsShown());
    QTest::mouseRelease(Plot(), Qt::LeftButton, {}, At(160, 210));
    QCOMPARE(Graph().Ranges(), PlotRanges());
  }
  QTest::keyClick(Plot(), Qt::Key_Escape);
  QTRY_VERIFY(!view);
}

void GraphViewTest::ABoxGoesWhenTheReleaseNeverComes() {
  Drag(At(50, 100), At(150, 200), false);
  QMouseEvent back(QEvent::MouseMove, At(60, 110), Plot()->mapToGlobal(At(60, 110)), Qt::NoButton,
                   Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(Plot(), &back);
  QVERIFY(!Graph().Drag().IsShown());
  QVERIFY2(Plot()->hasMouseTracking(), "moves without a button arrive");
  Drag(At(50, 100), At(150, 200), false);
  QEvent away(QEvent::WindowDeactivate);
  QApplication::sendEvent(Plot(), &away);
  QVERIFY(!Graph().Drag().IsShown());
  QTest::mouseRelease(Plot(), Qt::LeftButton, {}, At(150, 200));
  QCOMPARE(Graph().Ranges(), PlotRanges());
}

void GraphViewTest::TextAndCheckAreTakenHoweverTheyAreSet() {
  XBox()->setText(QStringLiteral("3"));
  Press(view, QStringLiteral("Cal"));
  QCOMPARE(Values()->itemText(0), QStringLiteral("R:F1(X) = 6"));
  QCOMPARE(XBox()->text(), QStringLiteral("3"));
  Trace()->toggle();
  QVERIFY(!Graph().IsTracing());
  Trace()->toggle();
  QVERIFY(Graph().IsTracing());
}

void GraphViewTest::TabGoesAsRead() {
  QStringList reached;
  Functions()->setFocus();
  do {
    reached << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  } while (QApplication::focusWidget() != Functions() && reached.size() < 20);
  QCOMPARE(reached, QStringList({"Functions", "Values", "Graph", "X =", "Cal", "Trace",
                                 "Save Graph", "Close"}));
}

void GraphViewTest::TypedNumbersAreForX() {
  for (const char* name : {"Graph", "Trace", "Cal", "Save Graph"}) {
    auto* const control = view->findChild<QWidget*>(QString::fromLatin1(name));
    control->setFocus();
    QTest::keyClick(control, Qt::Key_3);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral(".5"));
    QVERIFY2(XBox()->hasFocus(), name);
    QCOMPARE(XBox()->text(), QStringLiteral("3.5"));
    QTest::keyClick(XBox(), Qt::Key_Return);
    QCOMPARE(Values()->itemText(0), QStringLiteral("R:F1(X) = 7"));
    XBox()->setText(QStringLiteral("0"));
  }
  // A list searches its entries.
  Functions()->setFocus();
  QTest::keyClick(Functions(), Qt::Key_3);
  QVERIFY(Functions()->hasFocus());
}

void GraphViewTest::DigitsWithControlAreNoNumbers() {
  XBox()->setText(QStringLiteral("7"));
  for (QWidget* const control : {static_cast<QWidget*>(Plot()), static_cast<QWidget*>(XBox())}) {
    control->setFocus();
    for (const char* const text : {"1", "9", "0", "."}) {
      // As keyboards tell it: these keys keep their text.
      QKeyEvent press(QEvent::KeyPress, *text, Qt::ControlModifier, QString::fromLatin1(text));
      QCoreApplication::sendEvent(control, &press);
      QVERIFY(control->hasFocus());
      QCOMPARE(XBox()->text(), QStringLiteral("7"));
    }
  }
}

void GraphViewTest::OptionsTabAsRead() {
  Command("Graph Options");
  auto* const options = OpenWindow<PlotterOptionsDialog>(view);
  QTRY_VERIFY(options->isActiveWindow() && options->focusWidget());
  QStringList reached;
  for (int n = 0; n < 9; ++n) {
    reached << options->focusWidget()->objectName();
    QTest::keyClick(options->focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(reached, QStringList({"X min", "X max", "Y min", "Y max", "Grid", "Line", "Coordinates",
                                 "OK", "Cancel"}));
}

void GraphViewTest::OptionsShowExponentsAndKeepWhatTheyCut() {
  const PlotRanges exact{-1.31186256915e-05, 1.31186256915e-05, -1234567890123.4567, 1e300 / 3};
  Open(test::Graph({L"x"}, exact));
  Command("Graph Options");
  auto* const options = OpenWindow<PlotterOptionsDialog>(view);
  const auto box = [&](const char* name) {
    return options->findChild<QLineEdit*>(QString::fromLatin1(name));
  };
  for (const int width : {240, 300, 1000, 240}) {
    options->resize(width, options->height());
    QTest::qWait(1);
    for (const char* name : {"X min", "X max", "Y min", "Y max"}) {
      const QString text = box(name)->text();
      const int room = box(name)->width() - 8;
      QVERIFY2(box(name)->fontMetrics().horizontalAdvance(text) <= room, qPrintable(text));
      QVERIFY2(width == 1000 || text.contains(u'e'), qPrintable(text));
    }
  }
  QVERIFY(box("X max")->toolTip() == QStringLiteral("1.31186256915e-05"));
  Press(options, QStringLiteral("OK"));
  QCOMPARE(Graph().Ranges(), exact);
  // What was edited counts as it stands.
  Command("Graph Options");
  auto* const again = OpenWindow<PlotterOptionsDialog>(view);
  auto* const xMax = again->findChild<QLineEdit*>(QStringLiteral("X max"));
  Type(xMax, QStringLiteral("2"));
  again->resize(400, again->height());
  QTest::qWait(1);
  Press(again, QStringLiteral("OK"));
  QCOMPARE(Graph().Ranges(), (PlotRanges{exact.xMin, 2, exact.yMin, exact.yMax}));
}

void GraphViewTest::EveryChangeIsDrawn() {
  QImage shown = Plot()->grab().toImage();
  const auto differs = [&] {
    const QImage before = std::exchange(shown, Plot()->grab().toImage());
    return shown != before;
  };
  for (const GraphCommand& command : kGraphCommands) {
    Choose(view, QStringLiteral("Graph"), FromWide(command.caption));
    QVERIFY2(differs(), qPrintable(FromWide(command.caption)));
  }
  Wheel(120);
  QVERIFY(differs());
  Drag(At(60, 110), At(160, 210));
  QVERIFY(differs());
  for (const char* const option : {"Grid", "Line", "Coordinates"}) {
    Command("Graph Options");
    auto* const options = OpenWindow<PlotterOptionsDialog>(view);
    Press(options, QString::fromLatin1(option));
    Press(options, QStringLiteral("OK"));
    QVERIFY2(differs(), option);
  }
  Open(test::Graph({L"x"}));
  shown = Plot()->grab().toImage();
  Choose(view, QStringLiteral("File"), QStringLiteral("Config..."));
  auto* const config = OpenWindow<DisplayFormattingDialog>(view);
  Press(config, QStringLiteral("Scientific Notation"));
  Press(config, QStringLiteral("OK"));
  QVERIFY2(differs(), "the labels");
}

void GraphViewTest::ATapTraces() {
  QTest::mouseClick(Plot(), Qt::LeftButton, {}, At(165, 120));
  QCOMPARE(XBox()->text(), QStringLiteral("4"));
  QCOMPARE(Values()->itemText(0), QStringLiteral("R:F1(X) = 8"));
  QCOMPARE(Values()->itemText(1), QStringLiteral("G:F2(X) = 2"));
  QCOMPARE(Values()->itemText(2), QStringLiteral("B:F3(X) = 5"));
  QTest::mouseClick(Plot(), Qt::LeftButton, {}, At(73, 120));
  QCOMPARE(Values()->itemText(1), QStringLiteral("G:F2(X) = Out of range"));
  QCOMPARE(Graph().Ranges(), PlotRanges());
  // The other buttons do nothing.
  QTest::mouseClick(Plot(), Qt::RightButton, {}, At(165, 120));
  QCOMPARE(XBox()->text(), QStringLiteral("-4"));
}

void GraphViewTest::ATapWithoutTraceReadsThePoint() {
  Press(view, QStringLiteral("Trace"));
  QVERIFY(!Trace()->isChecked());
  QTest::mouseClick(Plot(), Qt::LeftButton, {}, At(119, 175));
  QCOMPARE(XBox()->text(), QStringLiteral("0"));
  QCOMPARE(Values()->count(), 1);
  QCOMPARE(Values()->currentText(), QStringLiteral("y = 0.058479532164"));
}

void GraphViewTest::ADragShowsABoxAndZooms() {
  Drag(At(50, 100), At(165, 200), false);
  QVERIFY(Graph().Drag().IsShown());
  QCOMPARE(Graph().Drag().Start(), (PixelPoint{50, 100}));
  QCOMPARE(Graph().Drag().End(), (PixelPoint{165, 200}));
  QTest::mouseRelease(Plot(), Qt::LeftButton, {}, At(165, 200));
  QVERIFY(!Graph().Drag().IsShown());
  QCOMPARE(Graph().Ranges().xMin, 20.0 / 230 * 46 - 10);
  QCOMPARE(Graph().Ranges().yMax, 20.0 / 171 * 161 - 10);
  QTest::keyClick(Plot(), Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(Graph().Ranges(), PlotRanges());
}

void GraphViewTest::ASmallDragDoesNotZoom() {
  Drag(At(50, 100), At(59, 200));
  Drag(At(50, 100), At(150, 109));
  // One that ends outside, far away.
  Drag(At(50, 100), QPoint(5000, -5000));
  QCOMPARE(Graph().Ranges(), PlotRanges());
  Drag(At(50, 100), At(60, 110));
  QVERIFY(Graph().Ranges() != PlotRanges());
}

void GraphViewTest::TheBoxLeavesThePictureAsItWas() {
  // Without trace the tap that begins a drag writes nothing into the picture.
  Trace()->toggle();
  const QImage before = Plot()->grab().toImage();
  Drag(At(50, 100), At(150, 105), false);
  const QImage during = Plot()->grab().toImage();
  QVERIFY(during != before);
  // White is black under the box, and back.
  const QPoint onBox = (At(100, 105) * Plot()->devicePixelRatioF());
  QCOMPARE(before.pixelColor(onBox), QColor(Qt::white));
  QVERIFY(during.pixelColor(onBox).lightness() < 128);
  QTest::mouseRelease(Plot(), Qt::LeftButton, {}, At(150, 105));
  QCOMPARE(Plot()->grab().toImage(), before);
}

void GraphViewTest::CalEvaluates() {
  Type(XBox(), QStringLiteral("-2"));
  Press(view, QStringLiteral("Cal"));
  QCOMPARE(Values()->itemText(0), QStringLiteral("R:F1(X) = -4"));
  Type(XBox(), QStringLiteral("-0"));
  Press(view, QStringLiteral("Cal"));
  QCOMPARE(XBox()->text(), QStringLiteral("0"));
  Type(XBox(), QStringLiteral("two"));
  Press(view, QStringLiteral("Cal"));
  QCOMPARE(Answer(view), QStringLiteral("Please enter a number."));
  QCOMPARE(XBox()->text(), QStringLiteral("two"));
  QTRY_VERIFY(XBox()->hasFocus());
}

void GraphViewTest::EnterRunsCal() {
  Type(XBox(), QStringLiteral("3"));
  QTest::keyClick(XBox(), Qt::Key_Return);
  QCOMPARE(Values()->itemText(0), QStringLiteral("R:F1(X) = 6"));
}

void GraphViewTest::TheListsAreLinkedWhileTraceIsOn() {
  Functions()->setFocus();
  QTest::keyClick(Functions(), Qt::Key_Down);
  QCOMPARE(Values()->currentIndex(), 1);
  Values()->setFocus();
  QTest::keyClick(Values(), Qt::Key_Down);
  QCOMPARE(Functions()->currentIndex(), 2);
  Press(view, QStringLiteral("Trace"));
  QTest::keyClick(Values(), Qt::Key_Up);
  QCOMPARE(Values()->currentIndex(), 1);
  QCOMPARE(Functions()->currentIndex(), 2);
  Functions()->setFocus();
  QTest::keyClick(Functions(), Qt::Key_Up);
  QTest::keyClick(Functions(), Qt::Key_Up);
  QCOMPARE(Functions()->currentIndex(), 0);
  QCOMPARE(Values()->currentIndex(), 1);
}

void GraphViewTest::OpeningAListRemovesTheBox() {
  for (QComboBox* const list : {Functions(), Values()}) {
    Drag(At(50, 100), At(150, 200), false);
    QVERIFY(Graph().Drag().IsShown());
    list->showPopup();
    QVERIFY(!Graph().Drag().IsShown());
    list->hidePopup();
    QTest::mouseRelease(Plot(), Qt::LeftButton, {}, At(50, 100));
  }
}

void GraphViewTest::OpeningADialogRemovesTheBox() {
  Drag(At(50, 100), At(150, 200), false);
  QVERIFY(Graph().Drag().IsShown());
  Command("Graph Options");
  QVERIFY(!Graph().Drag().IsShown());
  Press(OpenWindow<PlotterOptionsDialog>(view), QStringLiteral("Cancel"));
  QTest::mouseRelease(Plot(), Qt::LeftButton, {}, At(50, 100));
  Drag(At(50, 100), At(150, 200), false);
  QVERIFY(Graph().Drag().IsShown());
  file_dialogs::AddNextAnswer(std::nullopt);
  Choose(view, QStringLiteral("File"), QStringLiteral("Save Graph..."));
  QVERIFY(!Graph().Drag().IsShown());
}

void GraphViewTest::RefusalsAreShown() {
  Open(test::Graph({L"x"}, {-1, 1, -1.7e308, 1.7e308}));
  Command("Zoom Out");
  QCOMPARE(ShownIcon(view), QMessageBox::Critical);
  QCOMPARE(Answer(view), QStringLiteral("Out of range(overflow or underflow)"));
  QCOMPARE(Graph().Ranges().yMax, 1.7e308);
  QTRY_VERIFY(Plot()->hasFocus());
}

void GraphViewTest::OptionsChangeTheGraph() {
  Command("Zoom In");
  Command("Graph Options");
  auto* const options = OpenWindow<PlotterOptionsDialog>(view);
  QVERIFY(options);
  const auto box = [&](const char* name) {
    return options->findChild<QLineEdit*>(QString::fromLatin1(name));
  };
  QCOMPARE(box("X min")->text(), QStringLiteral("-6"));
  QCOMPARE(box("Y max")->text(), QStringLiteral("6"));
  Type(box("X min"), QStringLiteral("0"));
  Type(box("Y max"), QStringLiteral("12.5"));
  Press(options, QStringLiteral("Line"));
  Press(options, QStringLiteral("Coordinates"));
  Press(options, QStringLiteral("OK"));
  QCOMPARE(Graph().Ranges(), (PlotRanges{0, 6, -6, 12.5}));
  QCOMPARE(Graph().Options(), (PlotOptions{true, false, false}));
  QVERIFY(Graph().Labels().empty());
  Command("Undo");
  QCOMPARE(Graph().Ranges(), (PlotRanges{-6, 6, -6, 6}));
  Command("Reset");
  QCOMPARE(Graph().Ranges(), PlotRanges());
}

void GraphViewTest::OptionsRefuseEqualBounds() {
  Command("Graph Options");
  auto* const options = OpenWindow<PlotterOptionsDialog>(view);
  auto* const xMin = options->findChild<QLineEdit*>(QStringLiteral("X min"));
  auto* const yMin = options->findChild<QLineEdit*>(QStringLiteral("Y min"));
  Type(xMin, QStringLiteral("10"));
  Type(yMin, QStringLiteral("10"));
  Press(options, QStringLiteral("OK"));
  QCOMPARE(ShownIcon(options), QMessageBox::Critical);
  QCOMPARE(Answer(options),
           QStringLiteral("The maximum value of X should be bigger than the minimum value of X."));
  QTRY_VERIFY(!OpenWindow<QMessageBox>(options));
  QCOMPARE(options->focusWidget(), xMin);
  QCOMPARE(xMin->text(), QStringLiteral("10"));
  Type(xMin, QStringLiteral("9"));
  Press(options, QStringLiteral("OK"));
  QCOMPARE(Answer(options),
           QStringLiteral("The maximum value of Y should be bigger than the minimum value of Y."));
  QVERIFY(options->isVisible());
  QCOMPARE(Graph().Ranges(), PlotRanges());
}

void GraphViewTest::OptionsRefuseWhatIsNoNumber() {
  Command("Graph Options");
  auto* const options = OpenWindow<PlotterOptionsDialog>(view);
  Type(options->findChild<QLineEdit*>(QStringLiteral("X max")), QStringLiteral("ten"));
  QTest::keyClick(options, Qt::Key_Return);
  QCOMPARE(Answer(options), QStringLiteral("Please enter a number."));
  QVERIFY(options->isVisible());
}

void GraphViewTest::CancelledOptionsChangeNothing() {
  Command("Graph Options");
  auto* const options = OpenWindow<PlotterOptionsDialog>(view);
  Type(options->findChild<QLineEdit*>(QStringLiteral("X max")), QStringLiteral("99"));
  Press(options, QStringLiteral("Grid"));
  Press(options, QStringLiteral("Cancel"));
  QCOMPARE(Graph().Ranges(), PlotRanges());
  QCOMPARE(Graph().Options(), PlotOptions());
  QVERIFY(Graph().IsAtHome());
}

void GraphViewTest::ConfigFormatsAnew() {
  Write(store, settings::kDisplayType, 1);
  Write(store, settings::kPrecision, 2);
  Open(test::Graph({L"x+0.5"}));
  QCOMPARE(Values()->currentText(), QStringLiteral("R:F1(X) = 0.50"));
  QCOMPARE(FromWide(Graph().Labels()[1]), QStringLiteral("x max=10.00"));
  Choose(view, QStringLiteral("File"), QStringLiteral("Config..."));
  auto* const dialog = OpenWindow<DisplayFormattingDialog>(view);
  QVERIFY(dialog);
  Press(dialog, QStringLiteral("Scientific Notation"));
  Press(dialog, QStringLiteral("OK"));
  QCOMPARE(Values()->currentText(), QStringLiteral("R:F1(X) = 5.00e-001"));
  QCOMPARE(FromWide(Graph().Labels()[1]), QStringLiteral("x max=1.00e+001"));
  QCOMPARE(Read(store, settings::kDisplayType), 2);
  QCOMPARE(Read(store, settings::kPrecision), 2);
}

void GraphViewTest::ShowsDataPoints() {
  GraphData data = test::Graph({L"2*X+0"}, {0.4, 3.6, 0.8, 7.2});
  data.options = {false, true, false};
  data.dataPoints = {{1, 5}, {3, 2}};
  Open(data);
  QCOMPARE(Graph().Samples().dataPixels.size(), std::size_t{2});
  const QImage shown = Plot()->grab().toImage();
  const PixelPoint pixel = Graph().Samples().dataPixels[0];
  QCOMPARE(shown.pixelColor(At(pixel.x - 1, pixel.y) * Plot()->devicePixelRatioF()),
           QColor(0, 0, 255));
}

QFileDialog* GraphViewTest::OpenSave() {
  Press(view, QStringLiteral("Save Graph"));
  return OpenWindow<QFileDialog>(view);
}

void GraphViewTest::SaveWritesTheChosenFormat() {
  QTemporaryDir folder;
  const QString name = folder.filePath(QStringLiteral("graph"));
  const std::tuple<const char*, const char*, const char*> formats[] = {
      {"BMP(*.bmp)", "bmp", "BM"}, {"PNG(*.png)", "png", "\x89PNG"}, {"SVG(*.svg)", "svg", "<svg"}};
  for (const auto& [filter, suffix, magic] : formats) {
    QFileDialog* const dialog = OpenSave();
    QVERIFY(dialog);
    QCOMPARE(dialog->nameFilters().first(), QStringLiteral("BMP(*.bmp)"));
    QVERIFY(!dialog->testOption(QFileDialog::DontConfirmOverwrite));
    dialog->selectNameFilter(QString::fromLatin1(filter));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Save Graph"));
    auto* const nameBox = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    QVERIFY(nameBox);
    QCOMPARE(nameBox->text(), QStringLiteral("graph"));
    nameBox->setText(name);
    QMetaObject::invokeMethod(dialog, "accept");
    QFile file(name + u'.' + QString::fromLatin1(suffix));
    QVERIFY2(file.open(QIODevice::ReadOnly), suffix);
    QVERIFY(file.readAll().startsWith(magic));
    QTRY_VERIFY(!OpenWindow<QFileDialog>(view));
  }
  QFile bitmap(name + QStringLiteral(".bmp"));
  QVERIFY(bitmap.open(QIODevice::ReadOnly));
  const std::vector<std::uint8_t> expected = BitmapFile(DrawPicture(Graph()));
  QCOMPARE(bitmap.readAll(), QByteArray(reinterpret_cast<const char*>(expected.data()),
                                        static_cast<qsizetype>(expected.size())));
}

void GraphViewTest::SaveSaysThatTheFileCannotBeWritten() {
  // Nobody can make a file below a file.
  QTemporaryFile file;
  QVERIFY(file.open());
  file_dialogs::AddNextAnswer(file.fileName() + QStringLiteral("/wave.png"));
  Press(view, QStringLiteral("Save Graph"));
  auto* const box = OpenWindow<QMessageBox>(view);
  QVERIFY(box);
  QVERIFY2(box->informativeText().startsWith(QStringLiteral("wave.png: ")),
           qPrintable(box->informativeText()));
  QCOMPARE(Answer(view), QStringLiteral("File Error"));
  QTRY_VERIFY(Plot()->hasFocus());
  // What was typed is not to be typed again.
  QFileDialog* const dialog = OpenSave();
  QCOMPARE(dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(),
           QStringLiteral("wave.png"));
  QCOMPARE(dialog->selectedNameFilter(), QStringLiteral("PNG(*.png)"));
  dialog->reject();
}

void GraphViewTest::CancelledSaveWritesNothing() {
  QTemporaryDir folder;
  QFileDialog* const dialog = OpenSave();
  dialog->setDirectory(folder.path());
  dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("a.bmp"));
  dialog->reject();
  QVERIFY(QDir(folder.path()).isEmpty());
}

void GraphViewTest::CloseCloses() {
  Press(view, QStringLiteral("Close"));
  QTRY_VERIFY(!view);
  init();
  QTest::keyClick(view, Qt::Key_Escape);
  QTRY_VERIFY(!view);
}

void GraphViewTest::TargetsAreLargeEnough() {
  for (const char* name : {"Functions", "Values", "X =", "Cal", "Trace", "Save Graph", "Close"}) {
    QVERIFY2(view->findChild<QWidget*>(QString::fromLatin1(name))->height() >= 30, name);
  }
}

void GraphViewTest::FitsASmallDisplay() {
  // What a window's title leaves of 240 to 320.
  view->resize(240, 300);
  QTest::qWait(1);
  QVERIFY2(view->width() <= 240 && view->height() <= 300,
           qPrintable(QStringLiteral("%1 x %2").arg(view->width()).arg(view->height())));
  QVERIFY2(Plot()->width() >= 234 && Plot()->height() >= 176, "the picture's full size");
  for (const QWidget* control :
       view->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (!control->isVisible() || control->isWindow()) continue;
    QVERIFY2(view->rect().contains(control->geometry()), qPrintable(control->objectName()));
    QVERIFY2(control->height() >= 16, qPrintable(control->objectName()));
  }
  QTest::mouseClick(Plot(), Qt::LeftButton, {}, At(119, 120));
  QVERIFY(std::abs(XBox()->text().toDouble()) < 0.2);
}

void GraphViewTest::DarkColoursLeaveTheGraphWhite() {
  const auto background = [this] {
    return Plot()->grab().toImage().pixelColor(At(225, 97) * Plot()->devicePixelRatioF());
  };
  QCOMPARE(background(), QColor(Qt::white));
  QPalette dark;
  dark.setColor(QPalette::Window, Qt::black);
  view->setPalette(dark);
  QCOMPARE(background(), QColor(Qt::white));
  QCOMPARE(Plot()->grab().toImage().pixelColor(2, Plot()->height() - 3), QColor(Qt::black));
}

void GraphViewTest::NothingIsDrawnBeyondTheFrame() {
  const GraphData data = test::Graph({L"x", L"tan(x)*9", L"10-x/9"});
  for (qreal scale = 1; scale < 5; scale += 0.37) {
    for (const qreal ratio : {1.0, 1.25, 2.0}) {
      const QImage image = Shown(data, scale, ratio);
      // From each side in, nothing but the margin and white comes before the frame.
      const auto isClean = [&](QPoint from, QPoint step) {
        QPoint at = from;
        while (image.rect().contains(at)) {
          const QColor colour = image.pixelColor(at);
          if (colour == QColor(Qt::black)) return true;
          if (colour != QColor(Qt::cyan) && colour != QColor(Qt::white)) return false;
          at += step;
        }
        return false;
      };
      const QByteArray where = QByteArray::number(scale) + " at " + QByteArray::number(ratio);
      for (int x = qCeil(4 * scale); x < 230 * scale; ++x) {
        QVERIFY2(isClean({x, 0}, {0, 1}), where);
        QVERIFY2(isClean({x, image.height() - 1}, {0, -1}), where);
      }
      for (int y = qCeil(5 * scale); y < 171 * scale; ++y) {
        QVERIFY2(isClean({0, y}, {1, 0}), where);
        QVERIFY2(isClean({image.width() - 1, y}, {-1, 0}), where);
      }
    }
  }
}

void GraphViewTest::CurvesLeaveAtTheirTrueCrossing() {
  // Forty rows for each column.
  GraphData data = test::Graph({L"60*x+1"});
  data.options = {false, true, false};
  constexpr int kScale = 8;
  const QImage image = Shown(data, kScale);
  for (const int row : {91, 258}) {
    const double value = 10 - (row - 90) / 8.5;
    const double column = graph_mapping::ExactColumn((value - 1) / 60, data.ranges);
    const int y = (row - 87) * kScale + kScale / 2;
    const double expected = (column - 2 + 0.5) * kScale;
    double sum = 0;
    int count = 0;
    for (int x = 0; x < image.width(); ++x) {
      const QColor colour = image.pixelColor(x, y);
      if (colour.red() < 200 || colour.green() > 100) continue;
      sum += x + 0.5;
      ++count;
    }
    QVERIFY(count > 0);
    QVERIFY2(std::abs(sum / count - expected) < 1.5,
             qPrintable(QStringLiteral("%1 for %2").arg(sum / count).arg(expected)));
  }
}

void GraphViewTest::PensAndLettersStayFine() {
  GraphData data = test::Graph({L"x*0-5"});
  data.options.coordinates = false;
  for (const qreal ratio : {1.0, 2.0}) {
    const QImage image = Shown(data, 4 * ratio, ratio);
    const auto thickness = [&](const QColor& colour, int x) {
      int count = 0;
      for (int y = 0; y < image.height(); ++y) count += image.pixelColor(x, y) == colour;
      return count;
    };
    // Down a column between lines of the grid, eight lines of the grid run across, the ninth below
    // the axis.
    const int x = qRound(60 * 4 * ratio);
    QCOMPARE(thickness(QColor(192, 192, 192), x), qRound(8 * ratio));
    QCOMPARE(thickness(QColor(0, 130, 132), x), qFloor(1.5 * ratio));
    QVERIFY(thickness(QColor(255, 0, 0), x) <= 2 * ratio);
  }
  // In a picture of its own everything grows.
  const QImage picture = DrawGraphImage(test::Opened(data), 4, view->font(), Qt::cyan);
  int grey = 0;
  for (int y = 0; y < picture.height(); ++y) {
    grey += picture.pixelColor(240, y) == QColor(192, 192, 192);
  }
  QCOMPARE(grey, 8 * 4);
  // The range labels' column is no higher than four rows of the interface's letters.
  data.options = {false, false, true};
  const QImage labelled = Shown(data, 4);
  int lowest = 0;
  for (int y = 40; y < 70 * 4; ++y) {
    for (int x = 10 * 4; x < 40 * 4; ++x) {
      if (labelled.pixelColor(x, y).lightness() < 100) lowest = y;
    }
  }
  QVERIFY2(lowest > 60 && lowest < 3 * 4 + 5 * 20, QByteArray::number(lowest));
}

void GraphViewTest::ALargeGraphHasNumbers() {
  const auto numbers = [this](PlotOptions options, qreal scale) {
    GraphData data = test::Graph({});
    data.options = options;
    const QImage image = Shown(data, scale);
    // Along the lower side only numbers are darker than the grid.
    int dark = 0;
    for (int x = qRound(6 * scale); x < 228 * scale; ++x) {
      if (std::abs(x - 116 * scale) < 3 * scale) continue;
      for (int y = qRound(172 * scale) - 14; y < qRound(172 * scale) - 2; ++y) {
        dark += image.pixelColor(x, y).lightness() < 150;
      }
    }
    return dark;
  };
  QVERIFY(numbers({true, true, true}, 4) > 50);
  QCOMPARE(numbers({true, true, true}, 1), 0);
  QCOMPARE(numbers({false, true, true}, 4), 0);
  QCOMPARE(numbers({true, true, false}, 4), 0);
}

void GraphViewTest::TheTracedPointIsMarked() {
  Open(test::Graph({L"x"}));
  QTest::mouseClick(Plot(), Qt::LeftButton, {}, At(165, 120));
  const TraceMark mark = Graph().TraceMarks().at(0);
  const QPoint place = At(qRound(mark.column), qRound(mark.row));
  const auto around = [&] {
    const QImage shown = Plot()->grab().toImage();
    int red = 0;
    for (int dx = -4; dx <= 4; ++dx) {
      for (int dy = -4; dy <= 4; ++dy) {
        red += shown.pixelColor((place + QPoint(dx, dy)) * Plot()->devicePixelRatioF()) ==
               QColor(255, 0, 0);
      }
    }
    return red;
  };
  const int marked = around();
  Press(view, QStringLiteral("Trace"));
  QVERIFY2(marked > around() + 20, qPrintable(QString::number(marked)));
}

void GraphViewTest::AFunctionWithoutAPointSaysSo() {
  Open(test::Graph({L"x", L"x+15"}));
  QCOMPARE(Functions()->itemText(1), QStringLiteral("G:F2(x)=x+15"));
  for (int n = 0; n < 3; ++n) Command("Move Down");
  QCOMPARE(Functions()->itemText(1), QStringLiteral("G:F2(x)=x+15 (no value in this range)"));
  Command("Reset");
  QCOMPARE(Functions()->itemText(1), QStringLiteral("G:F2(x)=x+15"));
}

}  // namespace vexa

QTEST_MAIN(vexa::GraphViewTest)
#include "GraphViewTest.moc"
