// The result keys of both screens: statistics, models, predictions, plot, memory, display,
// clipboard.

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QListWidget>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "display/SettingsLayout.h"
#include "plotter/GraphViewDialog.h"
#include "stats/StatisticsScreenDriver.h"
#include "toolkit/ProgressBox.h"

namespace vexa {

using test::StatisticsScreenDriver;

namespace {

const QString kOverflow = QStringLiteral("Out of range(overflow or underflow)");

}  // namespace

class StatisticsResultsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    one = std::make_unique<StatisticsScreenDriver>(Mode::OneVarStatistics);
    two = std::make_unique<StatisticsScreenDriver>(Mode::TwoVarStatistics);
  }
  void OneVariable();
  void TwoVariables();
  void SignsAreGreekLetters();
  void OverflowIsShownAndNotStored();
  void TheModelMenu();
  void DismissingTheModelMenuChangesNothing();
  void QuadraticKeys();
  void LoadingEnablesRWhateverTheModel();
  void PredictionsComplainAboutTheirEdits();
  void SaysWhenADeviationLostItsDigits();
  void SaysWhenCountsDistortAFit();
  void LongResultsCanBeCancelled_data();
  void LongResultsCanBeCancelled();
  void PlotsTheCurveAndTheData_data();
  void PlotsTheCurveAndTheData();
  void RefusesToPlot();
  void StoresTheLastResult();
  void RecallsIntoTheLastEdit();
  void ConfigureShowsTheResultAnew();
  void ClipboardCommandsGoToTheLastEdit();

 private:
  QDialog* Dialog(QWidget* parent, const char* name) const {
    return parent->findChild<QDialog*>(QString::fromLatin1(name));
  }
  void PickVariable(QWidget* parent, int row, const char* caption);

  std::unique_ptr<StatisticsScreenDriver> one;
  std::unique_ptr<StatisticsScreenDriver> two;
};

void StatisticsResultsTest::OneVariable() {
  one->Add({"2", "3"});
  one->Add({"4", "1"});
  const std::pair<const char*, const char*> results[] = {{"ΣX", "10"},
                                                         {"ΣX^2", "28"},
                                                         {"Arithmetic Mean of X", "2.5"},
                                                         {"σ(n-1) of X", "1"},
                                                         {"σ(n) of X", "0.866025403784"}};
  for (const auto& [caption, result] : results) {
    one->Press(caption);
    QCOMPARE(one->Result(), QString::fromUtf8(result));
  }
}

void StatisticsResultsTest::TwoVariables() {
  two->Add({"1", "10", "2"});
  two->Add({"3", "1000", "1"});
  const std::pair<const char*, const char*> results[] = {
      {"ΣX", "5"},          {"ΣY", "1,020"},
      {"ΣX^2", "11"},       {"ΣY^2", "1,000,200"},
      {"ΣXY", "3,020"},     {"Mean of X", "1.666666666667"},
      {"Mean of Y", "340"}, {"σ(n-1) of X", "1.154700538379"},
      {"r", "1"},           {"A", "495"},
      {"B", "-485"},        {"σ(n) of X", "0.942809041582"},
  };
  for (const auto& [caption, result] : results) {
    two->Press(caption);
    QCOMPARE(two->Result(), QString::fromUtf8(result));
  }
}

void StatisticsResultsTest::SignsAreGreekLetters() {
  for (const auto& screen : {one.get(), two.get()}) {
    QVERIFY(screen->Key(QString(QChar(0x03A3)) + u'X'));
    QVERIFY(screen->Key(QString(QChar(0x03C3)) + QStringLiteral("(n-1) of X")));
    QCOMPARE(screen->Key(QStringLiteral("ΣX"))->accessibleName(), QStringLiteral("ΣX"));
  }
}

void StatisticsResultsTest::OverflowIsShownAndNotStored() {
  one->Add({"1", "1"});
  one->Add({"9", "0"});
  one->Press("MEM");
  QCOMPARE(one->MenuTexts("Memory"), (QStringList{"ReCall MemVar", "Store MemVar"}));
  QTest::keyClick(one->Menu("Memory"), Qt::Key_Escape);
  QTRY_VERIFY(!one->Menu("Memory"));
  one->Press("σ(n-1) of X");
  QCOMPARE(one->Result(), kOverflow);
  one->Press("MEM");
  QCOMPARE(one->MenuTexts("Memory"), (QStringList{"ReCall MemVar"}));
}

void StatisticsResultsTest::TheModelMenu() {
  two->Add({"1", "3", "1"});
  two->Add({"2", "5", "1"});
  const std::pair<const char*, const char*> models[] = {
      {"Power : A*X^B", "Pow"},           {"Inverse : A/X+B", "Inv"},
      {"Logarithmic : A*ln(X)+B", "Log"}, {"Exponential : A*exp(B*X)", "Exp"},
      {"Linear : A*X+B", "Lin"},
  };
  QString caption = QStringLiteral("Lin");
  for (const auto& [text, name] : models) {
    QVERIFY(two->IsShown(caption));
    two->Press(caption);
    QCOMPARE(two->MenuTexts("Models"),
             (QStringList{"Linear : A*X+B", "Power : A*X^B", "Inverse : A/X+B",
                          "Logarithmic : A*ln(X)+B", "Exponential : A*exp(B*X)",
                          "Quadratic : A*X^2+B*X+C"}));
    two->ChooseFrom("Models", text);
    QTRY_VERIFY(!two->Menu("Models"));
    caption = QString::fromLatin1(name);
    QVERIFY(two->IsShown(caption));
    QCOMPARE(two->IsEnabled("r"), caption == QStringLiteral("Lin"));
    QVERIFY(two->IsShown("r") && two->IsShown("X'"));
    QVERIFY(!two->IsShown("C") && !two->IsShown("X1'") && !two->IsShown("X2'"));
  }
}

void StatisticsResultsTest::DismissingTheModelMenuChangesNothing() {
  two->Add({"1", "3", "1"});
  two->Add({"2", "5", "1"});
  two->Press("Lin");
  QTest::keyClick(two->Menu("Models"), Qt::Key_Escape);
  QTRY_VERIFY(!two->Menu("Models"));
  QVERIFY(two->IsShown("Lin"));
}

void StatisticsResultsTest::QuadraticKeys() {
  two->Add({"1", "2", "1"});
  two->Add({"2", "8", "1"});
  two->Add({"3", "18", "1"});
  two->Press("Lin");
  two->ChooseFrom("Models", "Quadratic : A*X^2+B*X+C");
  QVERIFY(two->IsShown("Quad") && two->IsShown("C") && two->IsShown("X1'") && two->IsShown("X2'"));
  QVERIFY(!two->IsShown("r") && !two->IsShown("X'"));
  two->Type({"5", "8"});
  const std::pair<const char*, const char*> results[] = {{"A", "2"},   {"B", "0"},   {"C", "0"},
                                                         {"Y'", "50"}, {"X1'", "2"}, {"X2'", "-2"}};
  for (const auto& [caption, result] : results) {
    two->Press(caption);
    QVERIFY2(qAbs(two->Result().toDouble() - QByteArray(result).toDouble()) < 1e-9, caption);
  }
}

void StatisticsResultsTest::LoadingEnablesRWhateverTheModel() {
  two->Add({"1", "3", "1"});
  two->Add({"2", "5", "1"});
  two->Press("Lin");
  two->ChooseFrom("Models", "Power : A*X^B");
  QVERIFY(!two->IsEnabled("r"));
  two->Load("1\t2\t1\r\n2\t4\t1\r\n");
  two->Answer(QMessageBox::No);
  QTRY_COMPARE(two->Rows(), (QStringList{"1 2 1", "2 4 1"}));
  QVERIFY(two->IsEnabled("r"));
  two->Press("r");
  QCOMPARE(two->Result(), QStringLiteral("1"));
}

void StatisticsResultsTest::PredictionsComplainAboutTheirEdits() {
  two->Add({"1", "3", "1"});
  two->Add({"2", "5", "1"});
  two->Type({"1", "?"});
  two->Press("Y'");
  QCOMPARE(two->BoxText(), QStringLiteral("Please enter a number."));
  two->Answer(QMessageBox::Ok);
  QVERIFY(two->Edit("Y")->hasFocus());
  QCOMPARE(two->Result(), QString());
  two->Type({"4", "9", "no count"});
  two->Press("Y'");
  QCOMPARE(two->Result(), QStringLiteral("9"));
  two->Press("X'");
  QCOMPARE(two->Result(), QStringLiteral("4"));
}

void StatisticsResultsTest::SaysWhenADeviationLostItsDigits() {
  const QString lost =
      QStringLiteral("Digits were lost. Subtract a number near the mean from all values first.");
  for (int n = 0; n < 7; ++n) one->Add({"9.81", "1"});
  one->Press("Arithmetic Mean of X");
  QCOMPARE(one->Notice(), QString());
  one->Press("σ(n-1) of X");
  QCOMPARE(one->Result(), kOverflow);
  QCOMPARE(one->Notice(), lost);
  one->Press("ΣX");
  QCOMPARE(one->Notice(), QString());
  one->Press("Clear");
  one->Answer(QMessageBox::Yes);
  for (int n = 0; n < 3; ++n) one->Add({"5.1", "1"});
  one->Press("σ(n) of X");
  QCOMPARE(one->Notice(), lost);
  one->Add({"7", "1"});
  QCOMPARE(one->Notice(), QString());
  one->Press("σ(n) of X");
  QCOMPARE(one->Notice(), QString());
  QVERIFY(one->Key("σ(n) of X")->toolTip().contains("subtract a number near the mean"));
}

void StatisticsResultsTest::SaysWhenCountsDistortAFit() {
  const QString distort =
      QStringLiteral("Counts other than 1 distort this fit. Enter each row as often as it counts.");
  two->Add({"1", "2", "1"});
  two->Add({"2", "4", "3"});
  two->Add({"3", "7", "1"});
  two->Press("A");
  QCOMPARE(two->Notice(), QString());
  two->Press("Lin");
  two->ChooseFrom("Models", "Power : A*X^B");
  for (const char* key : {"A", "B", "Y'", "X'"}) {
    two->Press(key);
    QCOMPARE(two->Notice(), distort);
    two->Press("ΣX");
    QCOMPARE(two->Notice(), QString());
  }
  two->Press("Plot");
  QCOMPARE(two->Notice(), distort);
  two->screen->findChild<GraphViewDialog*>()->close();
  QVERIFY(two->Key("Pow")->toolTip().contains("Counts other than 1 distort the fit"));
  QVERIFY(!two->Key("Lin")->toolTip().contains("Counts"));
  two->SelectRows({1});
  two->Press("Edit");
  two->Type({"2", "4", "1"});
  two->Press("Ok");
  two->Press("A");
  QCOMPARE(two->Notice(), QString());
}

void StatisticsResultsTest::LongResultsCanBeCancelled_data() {
  QTest::addColumn<QString>("key");
  for (const char* key : {"ΣX", "σ(n) of Y", "A", "Y'", "r", "Plot"}) QTest::newRow(key) << key;
}

void StatisticsResultsTest::LongResultsCanBeCancelled() {
  QFETCH(QString, key);
  two->Load(QByteArray("1\t2\t1\r\n2\t5\t1\r\n").repeated(50000));
  two->Press("ΣXY");
  const QString before = two->Result();
  two->Add({"1", "1", "1"});
  ProgressBox::patienceMs = 0;
  bool cancelled = false;
  QTimer::singleShot(0, this, [&] {
    auto* const box = two->screen->findChild<QDialog*>(QStringLiteral("Progress"));
    box->findChild<QPushButton*>(QStringLiteral("Cancel"))->click();
    cancelled = true;
  });
  two->Press(key);
  ProgressBox::patienceMs = 200;
  QVERIFY(cancelled);
  QCOMPARE(two->Result(), before);
  QVERIFY(!two->screen->findChild<GraphViewDialog*>());
  // What was stopped is done when it is asked for again.
  two->Press("ΣX");
  QCOMPARE(two->Result(), QStringLiteral("150,001"));
}

void StatisticsResultsTest::PlotsTheCurveAndTheData_data() {
  QTest::addColumn<QString>("model");
  QTest::addColumn<QString>("curve");
  QTest::newRow("linear") << "Linear : A*X+B"
                          << "R:F1(X)=2*X+0";
  QTest::newRow("power") << "Power : A*X^B"
                         << "R:F1(X)=2*X^1";
  QTest::newRow("inverse") << "Inverse : A/X+B"
                           << "R:F1(X)=1.632120558829/X+0.367879441171";
  QTest::newRow("logarithmic") << "Logarithmic : A*ln(X)+B"
                               << "R:F1(X)=3.559595932441*ln(X)+1.874020093808";
  QTest::newRow("exponential") << "Exponential : A*exp(B*X)"
                               << "R:F1(X)=1.211413728555*exp(0.549306144334*X)";
  QTest::newRow("quadratic") << "Quadratic : A*X^2+B*X+C"
                             << "R:F1(X)=0*X^2+2*X+0";
}

void StatisticsResultsTest::PlotsTheCurveAndTheData() {
  QFETCH(QString, model);
  QFETCH(QString, curve);
  two->Add({"3", "6", "1"});
  two->Add({"2", "4", "1"});
  two->Add({"1", "2", "1"});
  two->Press("Lin");
  two->ChooseFrom("Models", model);
  two->Press("Plot");
  auto* const view = two->screen->findChild<GraphViewDialog*>();
  QVERIFY(view && view->isVisible());
  QVERIFY(!view->findChildren<QComboBox*>().isEmpty());
  QCOMPARE(view->findChildren<QComboBox*>().first()->currentText(), curve);
  const GraphModel& graph = view->Graph();
  QCOMPARE(graph.Ranges().xMin, 1 - 2 * 0.3);
  QCOMPARE(graph.Ranges().xMax, 2 * 0.3 + 3);
  QCOMPARE(graph.Ranges().yMin, 2 - 4 * 0.3);
  QCOMPARE(graph.Ranges().yMax, 4 * 0.3 + 6);
  const PlotOptions& options = graph.Options();
  QVERIFY(!options.grid && options.line && !options.coordinates);
  // Every point has its dot, and the curve is there.
  QCOMPARE(graph.Samples().dataPixels.size(), std::size_t{3});
  view->close();
  QTRY_VERIFY(!two->screen->findChild<GraphViewDialog*>());
  QCOMPARE(two->Rows().size(), qsizetype{3});
}

void StatisticsResultsTest::RefusesToPlot() {
  two->Add({"1", "1", "1"});
  two->Add({"1", "5", "1"});
  two->Press("Plot");
  QCOMPARE(two->BoxText(),
           QStringLiteral("The maximum value of X should be bigger than the minimum value of X."));
  QCOMPARE(two->Box()->icon(), QMessageBox::Critical);
  two->Answer(QMessageBox::Ok);
  two->SelectRows({0});
  two->Press("Edit");
  two->Type({"2", "1"});
  two->Press("Ok");
  two->Press("Plot");
  QCOMPARE(two->BoxText(),
           QStringLiteral("The maximum value of Y should be bigger than the minimum value of Y."));
  two->Answer(QMessageBox::Ok);
  two->Add({"0", "7", "1"});
  two->Press("Lin");
  two->ChooseFrom("Models", "Logarithmic : A*ln(X)+B");
  two->Press("Plot");
  QCOMPARE(two->BoxText(), kOverflow);
  two->Answer(QMessageBox::Ok);
  QVERIFY(!two->screen->findChild<GraphViewDialog*>());
  two->Press("MEM");
  QCOMPARE(two->MenuTexts("Memory"), (QStringList{"ReCall MemVar"}));
}

void StatisticsResultsTest::PickVariable(QWidget* parent, int row, const char* caption) {
  QDialog* const dialog = Dialog(parent, "MemoryVariable");
  QVERIFY(dialog);
  dialog->findChild<QListWidget*>()->setCurrentRow(row);
  dialog->findChild<QPushButton*>(QString::fromLatin1(caption))->click();
  QTRY_VERIFY(!Dialog(parent, "MemoryVariable"));
}

void StatisticsResultsTest::StoresTheLastResult() {
  one->Add({"1234.5", "1"});
  one->Add({"0", "1"});
  one->Press("ΣX");
  QCOMPARE(one->Result(), QStringLiteral("1,234.5"));
  one->Press("MEM");
  one->ChooseFrom("Memory", "Store MemVar");
  PickVariable(one->screen, 4, "Store");
  QCOMPARE(one->store.ReadSettingString(L"MemoryVar", L"Var4", L""), std::wstring(L"1234.5"));
}

void StatisticsResultsTest::RecallsIntoTheLastEdit() {
  two.reset();
  one->Activate();
  one->store.WriteSettingString(L"MemoryVar", L"Var0", L"1234567.25");
  one->store.WriteSettingString(L"MemoryVar", L"Var1", L"no number");
  one->Edit("Count")->setFocus();
  one->Press("MEM");
  one->ChooseFrom("Memory", "ReCall MemVar");
  PickVariable(one->screen, 0, "Recall");
  QCOMPARE(one->Edit("Count")->text(), QStringLiteral("1234567.25"));
  // This platform does not give the window its activity back.
  QTRY_COMPARE(one->window->focusWidget(), one->Edit("Count"));
  QCOMPARE(one->Edit("Count")->selectedText(), QStringLiteral("1234567.25"));
  one->Edit("X")->setFocus();
  one->Press("MEM");
  one->ChooseFrom("Memory", "ReCall MemVar");
  PickVariable(one->screen, 1, "Recall");
  QCOMPARE(one->Edit("X")->text(), QStringLiteral("0"));
}

void StatisticsResultsTest::ConfigureShowsTheResultAnew() {
  one->Add({"1234.5", "1"});
  one->Add({"0", "1"});
  one->Press("ΣX");
  one->Command("File", "Config...");
  QDialog* const dialog = Dialog(one->screen, "DisplayFormatting");
  QVERIFY(dialog);
  dialog->findChild<QRadioButton*>(QStringLiteral("Scientific Notation"))->click();
  dialog->findChild<QLineEdit*>()->setText(QStringLiteral("3"));
  dialog->findChild<QPushButton*>(QStringLiteral("OK"))->click();
  QCOMPARE(one->Result(), QStringLiteral("1.234e+003"));
  QCOMPARE(Read(one->store, settings::kDisplayType), 2);
  QCOMPARE(Read(one->store, settings::kPrecision), 3);
  // Cells keep their own rule, with the new number of decimals.
  one->Add({"1e15", "1"});
  QCOMPARE(one->Rows().first(), QStringLiteral("1.000e+015 1"));
}

void StatisticsResultsTest::ClipboardCommandsGoToTheLastEdit() {
  two.reset();
  one->Activate();
  one->Type({"12.5", "7"});
  one->Edit("X")->setFocus();
  one->Edit("X")->selectAll();
  one->Table()->setFocus();
  one->Command("Edit", "Copy");
  QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("12.5"));
  QVERIFY(one->Edit("X")->hasFocus());
  one->Edit("Count")->setFocus();
  one->Edit("Count")->selectAll();
  one->Table()->setFocus();
  one->Command("Edit", "Paste");
  QCOMPARE(one->Edit("Count")->text(), QStringLiteral("12.5"));
  one->Edit("Count")->selectAll();
  one->Command("Edit", "Cut");
  QCOMPARE(one->Edit("Count")->text(), QString());
}

}  // namespace vexa

QTEST_MAIN(vexa::StatisticsResultsTest)
#include "StatisticsResultsTest.moc"
