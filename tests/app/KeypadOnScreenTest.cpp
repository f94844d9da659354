#include <QSet>

#include "app/CalculatorKeypad.h"
#include "display/WideText.h"
#include "support/CalculatorOnScreen.h"
#include "support/ExpectedKeys.h"
#include "support/ScreenMain.h"
#include "toolkit/KeyButton.h"
#include "toolkit/Keypad.h"
#include "toolkit/Theme.h"

namespace vexa {
namespace {

using test::CalculatorOnScreen;
using test::Captions;
using test::kBases;

const std::map<BaseType, const char*> kMenuNames{{BaseType::Dec, "Decimal"},
                                                 {BaseType::Hex, "Hexadecimal"},
                                                 {BaseType::Bin, "Binary"},
                                                 {BaseType::Oct, "Octal"}};

/// What the widget looks like, whatever lies behind it.
QImage Picture(QWidget& widget) {
  return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QStringList Sorted(const Captions& captions) {
  QStringList texts;
  for (const std::wstring_view caption : captions) texts += FromWide(caption);
  texts.sort();
  return texts;
}

}  // namespace

class KeypadOnScreenTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void EveryTransitionShowsAndDisablesKeys_data();
  void EveryTransitionShowsAndDisablesKeys();
  void NothingJumps();
  void ShiftExchangesItsColours();
  void TheModeMenu();
  void TheAnswerFollowsTheBase();
  void ANegativeAnswerIsItsBitPattern();
  void TheCurrentBaseAgainChangesNothing();
  void DismissingTheModeMenuChangesNothing();
  void HeldKeysRepeat_data();
  void HeldKeysRepeat();
  void FacesAreDrawnAndNamesStay();
  void KeysSayWhatTheyDo();
  void InertKeysDoNothing();

 private:
  /// The captions of the visible keys that are in this state, sorted.
  QStringList VisibleKeys(bool enabledToo) const {
    QStringList captions;
    for (const KeyButton* const key : calculator->screen->findChildren<KeyButton*>()) {
      if (key->isVisible() && (enabledToo || !key->isEnabled())) captions += key->objectName();
    }
    captions.sort();
    return captions;
  }
  void CompareKeys(BaseType base, bool shifted) const {
    QCOMPARE(VisibleKeys(true), Sorted(test::ExpectedShown(base, shifted)));
    QCOMPARE(VisibleKeys(false), Sorted(test::ExpectedDisabled(base, shifted)));
  }
  /// The places of the visible keys on the keypad.
  QSet<QString> Places() const {
    QSet<QString> places;
    for (const KeyButton* const key : calculator->screen->findChildren<KeyButton*>()) {
      const QRect g = key->geometry();
      if (!key->isVisible()) continue;
      places += QStringLiteral("%1 %2 %3 %4").arg(g.x()).arg(g.y()).arg(g.width()).arg(g.height());
    }
    return places;
  }

  std::unique_ptr<CalculatorOnScreen> calculator;
};

void KeypadOnScreenTest::init() {
  calculator = std::make_unique<CalculatorOnScreen>();
  calculator->Open();
  // "PB" is part of the lists once there is something to recall.
  calculator->Calculate("255");
}

void KeypadOnScreenTest::EveryTransitionShowsAndDisablesKeys_data() {
  QTest::addColumn<BaseType>("from");
  QTest::addColumn<BaseType>("to");
  QTest::addColumn<bool>("shifted");
  for (const BaseType from : kBases) {
    for (const BaseType to : kBases) {
      for (const bool shifted : {false, true}) {
        if (from == to) continue;
        QTest::addRow("%s to %s%s", kMenuNames.at(from), kMenuNames.at(to),
                      shifted ? ", shifted" : "")
            << from << to << shifted;
      }
    }
  }
}

void KeypadOnScreenTest::EveryTransitionShowsAndDisablesKeys() {
  QFETCH(BaseType, from);
  QFETCH(BaseType, to);
  QFETCH(bool, shifted);
  if (shifted) calculator->Press("Shift");
  CompareKeys(BaseType::Dec, shifted);
  if (from != BaseType::Dec) calculator->ChooseBase(kMenuNames.at(from));
  CompareKeys(from, shifted);
  calculator->ChooseBase(kMenuNames.at(to));
  CompareKeys(to, shifted);
  QCOMPARE(calculator->BaseKey()->text(), FromWide(test::kBaseNames.at(to)));
  QVERIFY(calculator->LineHasFocus());
  QCOMPARE(calculator->edit->toPlainText(), QStringLiteral("255"));
}

void KeypadOnScreenTest::NothingJumps() {
  for (const QSize size : {QSize(340, 560), QSize(341, 563), QSize(240, 320), QSize(700, 900)}) {
    calculator->screen->resize(size);
    QTRY_COMPARE(calculator->screen->size(), size);
    const QSet<QString> places = Places();
    // Six columns and eight rows, of which the last is shorter by the two cells that "=" takes.
    QCOMPARE(places.size(), qsizetype{46});
    for (const BaseType base : kBases) {
      if (base != BaseType::Dec) calculator->ChooseBase(kMenuNames.at(base));
      QCOMPARE(Places(), places);
      calculator->ChooseBase("Decimal");
      QCOMPARE(Places(), places);
      calculator->Press("Shift");
      QCOMPARE(Places(), places);
    }
  }
}

void KeypadOnScreenTest::ShiftExchangesItsColours() {
  const QColor black(0, 0, 0);
  const QColor orange(255, 128, 0);
  const QPoint face(6, 12);
  const auto colours = [&] {
    const QImage image = calculator->Key(QStringLiteral("Shift"))->grab().toImage();
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
    }
    return std::pair(image.pixelColor(face), counts);
  };
  const auto [unshiftedFace, unshifted] = colours();
  QCOMPARE(unshiftedFace, black);
  QVERIFY(unshifted[orange.rgb()] > 0);
  calculator->Press("Shift");
  const auto [shiftedFace, shifted] = colours();
  QCOMPARE(shiftedFace, orange);
  QVERIFY(shifted[black.rgb()] > 0);
}

void KeypadOnScreenTest::TheModeMenu() {
  QTest::mouseClick(calculator->BaseKey(), Qt::LeftButton);
  QCOMPARE(calculator->Popup("Bases")->title(), QStringLiteral("MODE"));
  QCOMPARE(calculator->PopupTexts("Bases"),
           (QStringList{QStringLiteral("MODE"), QStringLiteral("-"), QStringLiteral("Binary"),
                        QStringLiteral("Octal"), QStringLiteral("Decimal"),
                        QStringLiteral("Hexadecimal")}));
  QVERIFY(!calculator->Popup("Bases")->actions().first()->isEnabled());
  calculator->ClosePopup("Bases");
}

void KeypadOnScreenTest::TheAnswerFollowsTheBase() {
  const std::pair<const char*, const char*> steps[] = {
      {"Hexadecimal", "FF"}, {"Binary", "11111111"}, {"Octal", "377"}, {"Decimal", "255"}};
  for (const auto& [base, result] : steps) {
    calculator->ChooseBase(base);
    QCOMPARE(calculator->Result(), QString::fromLatin1(result));
  }
}

void KeypadOnScreenTest::ANegativeAnswerIsItsBitPattern() {
  calculator->Calculate("0-1.9");
  calculator->ChooseBase("Hexadecimal");
  QCOMPARE(calculator->Result(), QStringLiteral("FFFFFFFF"));
}

void KeypadOnScreenTest::TheCurrentBaseAgainChangesNothing() {
  // A failure's sentence stands for a result line that is not written again.
  calculator->Calculate("1+");
  const QString sentence = calculator->Result();
  QVERIFY(sentence != QStringLiteral("0"));
  const QStringList keys = VisibleKeys(true);
  calculator->ChooseBase("Decimal");
  QCOMPARE(calculator->Result(), sentence);
  QCOMPARE(VisibleKeys(true), keys);
  QVERIFY(calculator->LineHasFocus());
  calculator->ChooseBase("Octal");
  QCOMPARE(calculator->Result(), QStringLiteral("0"));
}

void KeypadOnScreenTest::DismissingTheModeMenuChangesNothing() {
  QTest::mouseClick(calculator->BaseKey(), Qt::LeftButton);
  calculator->ClosePopup("Bases");
  CompareKeys(BaseType::Dec, false);
  QVERIFY(calculator->LineHasFocus());
}

void KeypadOnScreenTest::HeldKeysRepeat_data() {
  QTest::addColumn<QString>("caption");
  QTest::addColumn<int>("caret");
  QTest::newRow("BS") << QStringLiteral("BS") << 8;
  QTest::newRow("DEL") << QStringLiteral("DEL") << 0;
}

void KeypadOnScreenTest::HeldKeysRepeat() {
  QFETCH(QString, caption);
  QFETCH(int, caret);
  calculator->Write("12345678");
  calculator->Select(caret, caret);
  QPushButton* const key = calculator->Key(caption);
  QTest::mousePress(key, Qt::LeftButton);
  QTRY_VERIFY(calculator->edit->toPlainText().size() <= 5);
  QTest::mouseRelease(key, Qt::LeftButton);
  // It stops with the release.
  const QString left = calculator->edit->toPlainText();
  QTest::qWait(2 * key->autoRepeatDelay());
  QCOMPARE(calculator->edit->toPlainText(), left);

  // A short tap deletes once, and other keys do not repeat.
  calculator->Write("12345678");
  calculator->Select(caret, caret);
  QTest::mouseClick(key, Qt::LeftButton);
  QCOMPARE(calculator->edit->toPlainText().size(), qsizetype{7});
  calculator->Write("");
  QPushButton* const digit = calculator->Key(QStringLiteral("7"));
  QTest::mousePress(digit, Qt::LeftButton);
  QTest::qWait(2 * key->autoRepeatDelay());
  QTest::mouseRelease(digit, Qt::LeftButton);
  QCOMPARE(calculator->edit->toPlainText(), QStringLiteral("7"));
}

void KeypadOnScreenTest::FacesAreDrawnAndNamesStay() {
  const std::pair<const char*, const char*> faces[] = {
      {"X^2", "x{2}"},       {"Y^X", "y{x}"}, {"10^X", "10{x}"}, {"e^X", "e{x}"},
      {"XthR", "{n}\u221A"}, {"1/X", "1/x"},  {"X!", "x!"}};
  for (const auto& [caption, face] : faces) {
    const QString name = QString::fromLatin1(caption);
    if (!calculator->Key(name)->isVisible()) calculator->Press("Shift");
    QPushButton* const button = calculator->Key(name);
    QVERIFY2(button->isVisible(), caption);
    QCOMPARE(button->text(), name);
    QCOMPARE(button->accessibleName(), name);
    // The picture is that of a key with the same face, and not that of one with the caption.
    const std::wstring wideName = name.toStdWString();
    const std::wstring wideFace = QString::fromUtf8(face).toStdWString();
    const auto picture = [&](std::wstring_view shownFace) {
      const Key key{
          .caption = wideName, .role = KeyRole::Function, .row = 0, .column = 0, .face = shownFace};
      KeyButton sample(key, nullptr);
      sample.resize(button->size());
      return Picture(sample);
    };
    const QImage shown = Picture(*button);
    QVERIFY2(shown == picture(wideFace), caption);
    QVERIFY2(shown != picture({}), caption);
  }
}

void KeypadOnScreenTest::KeysSayWhatTheyDo() {
  const std::pair<const char*, const char*> tips[] = {
      {"SIN", "Sine"},
      {"X^2", "Square"},
      {"MEM", "Memory: add, subtract, recall, clear, variables"},
      {"=", "Evaluate the expression (Enter)"},
      {"7", ""}};
  for (const auto& [caption, tip] : tips) {
    QCOMPARE(calculator->Key(QString::fromLatin1(caption))->toolTip(), QString::fromLatin1(tip));
  }
}

void KeypadOnScreenTest::InertKeysDoNothing() {
  calculator->ChooseBase("Binary");
  calculator->Write("1");
  for (const char* caption : {"2", "9", ".", "Exp", "SIN", "ABS()", "Mac", "Cnv", "Shift"}) {
    QTest::mouseClick(calculator->Key(QString::fromLatin1(caption)), Qt::LeftButton);
    QCOMPARE(calculator->Marked(), QStringLiteral("1|"));
    QVERIFY(!QApplication::activeModalWidget());
  }
  CompareKeys(BaseType::Bin, false);
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::KeypadOnScreenTest)
#include "KeypadOnScreenTest.moc"
