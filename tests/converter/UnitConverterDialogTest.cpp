#include "converter/UnitConverterDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QSignalSpy>

#include "support/Boxes.h"
#include "support/ConverterOnScreen.h"
#include "support/ScreenMain.h"

namespace vexa {
namespace {

constexpr int kTemperature = 11;
constexpr int kUserDefine = 14;
constexpr ConverterPositions kKilometersToMeters{6, 14, 16};
constexpr const char* kOverflow = "Out of range(overflow or underflow)";

int CountPixels(QWidget* widget, const QColor& colour) {
  const QImage image = widget->grab().toImage();
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour;
  }
  return count;
}

}  // namespace

/// What the unit converter shows: categories, layouts, results, colours, "OK" and "Cancel".
class UnitConverterDialogTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { delete screen.dialog; }
  void OpensOnWhatTheCalculatorHandsIn();
  void OpensOnTheFirstCategory();
  void ListsTheCategories();
  void EveryCategoryCanBeChosen_data();
  void EveryCategoryCanBeChosen();
  void ConvertsAtEveryKeystroke();
  void ConvertsWhenUnitsAreChosen();
  void TheSingleListLayoutShowsABlock();
  void NoNumberIsANoticeOnly_data();
  void NoNumberIsANoticeOnly();
  void OkIsRefusedWhileTheFieldHoldsNoNumber();
  void TheNoticeMovesNothing();
  void OkIsRefusedWhileOutOfRange();
  void AnOverflowingDivisionIsOutOfRange();
  void EndsWithPositionsAndMemory_data();
  void EndsWithPositionsAndMemory();
  void ColoursAreFixed_data();
  void ColoursAreFixed();

 private:
  test::ConverterOnScreen screen;
};

void UnitConverterDialogTest::init() {
  screen.store = MemorySettingsStore();
}

void UnitConverterDialogTest::OpensOnWhatTheCalculatorHandsIn() {
  screen.Open(kKilometersToMeters, L"1.5");
  QCOMPARE(screen.category->currentText(), QStringLiteral("07. Length"));
  QCOMPARE(screen.input->text(), QStringLiteral("1.5"));
  QCOMPARE(screen.inputUnit->currentText(), QStringLiteral("Kilometers"));
  QCOMPARE(screen.outputUnit->currentText(), QStringLiteral("Meters"));
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("1,500"));
  QCOMPARE(screen.input->selectedText(), QStringLiteral("1.5"));
  QVERIFY(screen.input->hasFocus());
}

void UnitConverterDialogTest::OpensOnTheFirstCategory() {
  screen.Open({});
  QCOMPARE(screen.category->currentText(), QStringLiteral("01. Area"));
  QCOMPARE(screen.inputUnit->currentText(), QStringLiteral("Acres"));
  QCOMPARE(screen.outputUnit->currentText(), QStringLiteral("Acres"));
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("1"));
}

void UnitConverterDialogTest::ListsTheCategories() {
  screen.Open({});
  QStringList names;
  for (const UnitCategory& category : kUnitCategories) names += FromWide(category.name);
  QCOMPARE(test::Entries(screen.category), names);
  QCOMPARE(names.first(), QStringLiteral("01. Area"));
  QCOMPARE(names.last(), QStringLiteral("15. User Define"));
}

void UnitConverterDialogTest::EveryCategoryCanBeChosen_data() {
  QTest::addColumn<int>("code");
  for (int code = 0; code < kCategoryCount; ++code) {
    QTest::newRow(qPrintable(FromWide(CategoryOf(code).name))) << code;
  }
}

void UnitConverterDialogTest::EveryCategoryCanBeChosen() {
  QFETCH(int, code);
  test::AddConversion(screen.store, L"Inch -> Centimeter", L"2.54");
  // From a category of the other layout, with other units chosen.
  screen.Open(code == kTemperature ? kKilometersToMeters : ConverterPositions{kTemperature, 3, 0},
              L"2");
  test::ChooseRow(screen.category, code);

  QStringList units;
  for (const UnitEntry& unit : CategoryOf(code).units) units += FromWide(unit.name);
  if (code == kUserDefine) units = QStringList{QStringLiteral("Inch -> Centimeter")};
  QCOMPARE(test::Entries(screen.inputUnit), units);
  QCOMPARE(screen.inputUnit->currentIndex(), 0);
  QVERIFY(screen.inputUnit->isVisible());
  QVERIFY(screen.input->isVisible());

  const bool single = code == kTemperature || code == kUserDefine;
  QCOMPARE(screen.line->isVisible(), !single);
  QCOMPARE(screen.outputUnit->isVisible(), !single);
  QCOMPARE(screen.block->isVisible(), single);
  if (!single) {
    QCOMPARE(test::Entries(screen.outputUnit), units);
    QCOMPARE(screen.outputUnit->currentIndex(), 0);
    QCOMPARE(screen.line->toPlainText(), QStringLiteral("2"));
  }
  QCOMPARE(screen.dialog->Converter().Positions(), (ConverterPositions{code, 0, 0}));
}

void UnitConverterDialogTest::ConvertsAtEveryKeystroke() {
  screen.Open(kKilometersToMeters, L"7");
  const std::pair<char, const char*> typed[] = {{'1', "1,000"},
                                                {'2', "12,000"},
                                                {'.', "12,000"},
                                                {'5', "12,500"},
                                                {'e', "12,500"},
                                                {'3', "12,500,000"},
                                                {'0', "1.250000000000e+034"}};
  screen.input->selectAll();
  for (const auto& [key, result] : typed) {
    QTest::keyClick(screen.input, key);
    QCOMPARE(screen.line->toPlainText(), QString::fromLatin1(result));
  }
  QTest::keyClick(screen.input, Qt::Key_Backspace);
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("12,500,000"));
}

void UnitConverterDialogTest::ConvertsWhenUnitsAreChosen() {
  screen.Open(kKilometersToMeters, L"1500");
  test::ChooseRow(screen.inputUnit, 16);
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("1,500"));
  test::ChooseRow(screen.outputUnit, 14);
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("1.5"));
  QCOMPARE(screen.dialog->Converter().Positions(), (ConverterPositions{6, 16, 14}));
}

void UnitConverterDialogTest::TheSingleListLayoutShowsABlock() {
  screen.Open({kTemperature, 0, 0}, L"25");
  QCOMPARE(screen.block->toPlainText(), QStringLiteral("25 Celsius\n=\n77 Fahrenheit"));
  test::ChooseRow(screen.inputUnit, 4);
  screen.Type("0");
  QCOMPARE(screen.block->toPlainText(), QStringLiteral("0 Kelvin\n=\n-273.15 Celsius"));
  screen.Type("1.7e308");
  test::ChooseRow(screen.inputUnit, 0);
  QCOMPARE(screen.block->toPlainText(), QString::fromLatin1(kOverflow));
}

void UnitConverterDialogTest::NoNumberIsANoticeOnly_data() {
  QTest::addColumn<QString>("text");
  for (const char* text : {"1e", "-", "1,5", "", ".", "0x10", "nan", "1e999", "1 2"}) {
    QTest::newRow(text) << QString::fromLatin1(text);
  }
}

void UnitConverterDialogTest::NoNumberIsANoticeOnly() {
  QFETCH(QString, text);
  screen.Open(kKilometersToMeters, L"3");
  QVERIFY(screen.notice->text().isEmpty());
  QGuiApplication::clipboard()->setText(text);
  screen.input->selectAll();
  if (text.isEmpty()) {
    QTest::keyClick(screen.input, Qt::Key_Delete);
  } else {
    screen.input->paste();
  }
  QCOMPARE(screen.input->text(), text);
  QCOMPARE(screen.notice->text(), QStringLiteral("Please enter a number."));
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("3,000"));
  QCOMPARE(QApplication::activeModalWidget(), screen.dialog.data());
  QCOMPARE(CountPixels(screen.line, Qt::black), 0);
  screen.Type("4");
  QVERIFY(screen.notice->text().isEmpty());
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("4,000"));
  QVERIFY(CountPixels(screen.line, Qt::black) > 0);
}

void UnitConverterDialogTest::OkIsRefusedWhileTheFieldHoldsNoNumber() {
  screen.Open(kKilometersToMeters, L"3");
  screen.Type("3-");
  QSignalSpy closed(screen.dialog, &QDialog::finished);
  screen.Press("OK");
  QCOMPARE(test::ShownBox(), test::Error("Please enter a number."));
  test::AnswerBox();
  QTRY_VERIFY(screen.input->hasFocus());
  QTest::keyClicks(screen.input, QStringLiteral("4"));
  QCOMPARE(screen.input->text(), QStringLiteral("4"));
  QTest::keyClick(screen.input, Qt::Key_Return);
  QCOMPARE(closed.count(), 1);
}

void UnitConverterDialogTest::TheNoticeMovesNothing() {
  screen.Open(kKilometersToMeters);
  const QRect input(screen.input->mapTo(screen.dialog, QPoint()), screen.input->size());
  const QRect output(screen.line->mapTo(screen.dialog, QPoint()), screen.line->size());
  screen.Type("x");
  QCoreApplication::processEvents();
  QVERIFY(!screen.notice->text().isEmpty());
  QCOMPARE(QRect(screen.input->mapTo(screen.dialog, QPoint()), screen.input->size()), input);
  QCOMPARE(QRect(screen.line->mapTo(screen.dialog, QPoint()), screen.line->size()), output);
}

void UnitConverterDialogTest::OkIsRefusedWhileOutOfRange() {
  screen.Open(kKilometersToMeters);
  screen.Type("1e307");
  QCOMPARE(screen.line->toPlainText(), QString::fromLatin1(kOverflow));
  screen.Press("OK");
  QCOMPARE(test::ShownBox(), test::Error("Converting value is error"));
  test::AnswerBox();
  QVERIFY(screen.dialog->isVisible());
  QTRY_VERIFY(screen.input->hasFocus());

  screen.Type("2");
  QSignalSpy accepted(screen.dialog, &QDialog::accepted);
  screen.Press("OK");
  QCOMPARE(accepted.count(), 1);
  QVERIFY(!test::OpenBox());
}

void UnitConverterDialogTest::AnOverflowingDivisionIsOutOfRange() {
  // The division alone overflows: multiplying by the same factor cannot bring the value back.
  constexpr int picometers = 22;
  screen.Open({6, picometers, picometers});
  screen.Type("1e300");
  QCOMPARE(screen.line->toPlainText(), QString::fromLatin1(kOverflow));
  screen.Type("1e-300");
  QCOMPARE(screen.line->toPlainText(), QStringLiteral("1.000000000000e-300"));
}

void UnitConverterDialogTest::EndsWithPositionsAndMemory_data() {
  QTest::addColumn<bool>("ok");
  QTest::newRow("OK") << true;
  QTest::newRow("Cancel") << false;
}

void UnitConverterDialogTest::EndsWithPositionsAndMemory() {
  QFETCH(bool, ok);
  screen.Open({}, L"1500", 2.0);
  test::ChooseRow(screen.category, 6);
  test::ChooseRow(screen.inputUnit, 16);
  test::ChooseRow(screen.outputUnit, 14);
  screen.ChooseMemory("Memory +");
  int outcome = -1;
  connect(screen.dialog, &QDialog::finished, this, [&](int result) {
    outcome = result;
    const UnitConverter& converter = screen.dialog->Converter();
    QCOMPARE(converter.Positions(), (ConverterPositions{6, 16, 14}));
    QCOMPARE(converter.Memory(), 3.5);
    QCOMPARE(converter.ResultText(), std::wstring(L"1.5"));
  });
  screen.Press(ok ? "OK" : "Cancel");
  QCOMPARE(outcome, static_cast<int>(ok ? QDialog::Accepted : QDialog::Rejected));
  QTRY_VERIFY(!screen.dialog);
}

void UnitConverterDialogTest::ColoursAreFixed_data() {
  QTest::addColumn<QPalette>("palette");
  QTest::newRow("light") << QPalette(QColor(0xEF, 0xEF, 0xEF));
  QTest::newRow("dark") << QPalette(QColor(0x2D, 0x2D, 0x30));
}

void UnitConverterDialogTest::ColoursAreFixed() {
  QFETCH(QPalette, palette);
  const QPalette before = QApplication::palette();
  QApplication::setPalette(palette);
  screen.Open(kKilometersToMeters, L"444");
  const QColor amber(253, 221, 138);
  for (QWidget* const output : {screen.line, screen.block}) {
    screen.dialog->resize(300, 400);
    if (output == screen.block) test::ChooseRow(screen.category, kTemperature);
    QVERIFY(output->isVisible());
    QVERIFY(CountPixels(output, amber) > output->width() * output->height() / 2);
    QVERIFY(CountPixels(output, Qt::black) > 0);
  }
  auto* const memory = screen.Find<QPushButton>("MEM");
  QVERIFY(CountPixels(memory, QColor(255, 128, 0)) > memory->width() * memory->height() / 2);
  QVERIFY(CountPixels(memory, QColor(0, 0, 255)) > 0);
  for (const char* caption : {"OK", "Cancel"}) {
    auto* const button = screen.Find<QPushButton>(caption);
    QVERIFY(CountPixels(button, QColor(222, 231, 255)) > button->width() * button->height() / 2);
  }
  QApplication::setPalette(before);
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::UnitConverterDialogTest)
#include "UnitConverterDialogTest.moc"
