#include "toolkit/Theme.h"

#include <QApplication>
#include <QFontInfo>
#include <QImage>
#include <QLabel>
#include <QTest>
#include <cmath>

#include "toolkit/KeyButton.h"

namespace vexa {
namespace {

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
         0.0722 * Linear(colour.blueF());
}

/// The contrast of two colours, 1 to 21.
double Contrast(const QColor& a, const QColor& b) {
  const double first = Luminance(a) + 0.05;
  const double second = Luminance(b) + 0.05;
  return first > second ? first / second : second / first;
}

constexpr KeyRole kRoles[] = {KeyRole::Digit,   KeyRole::Operator,   KeyRole::Function,
                              KeyRole::Editing, KeyRole::Command,    KeyRole::Equals,
                              KeyRole::Shift,   KeyRole::ShiftActive};

QPalette PaletteOf(const QColor& window) {
  return QPalette(window, window);
}

const QColor kLightWindow(0xEF, 0xEF, 0xEF);
const QColor kDarkWindow(0x1F, 0x21, 0x25);

}  // namespace

class ThemeTest : public QObject {
  Q_OBJECT

 private slots:
  void FollowsTheWindowColour();
  void TextsCanBeRead();
  void RolesDiffer();
  void TheConvertersButtonsKeepTheirColours();
  void WhatIsDisabledCanBeRead();
  void LightBlueIsTheSameInDark();
  void IndicatorsCanBeSeenInDark();
  void AKeyFollowsAChangeOfThePalette();
  void TheFocusIsVisible();
  void TheFontIsTahomaOrTheDesktops();
};

void ThemeTest::FollowsTheWindowColour() {
  QVERIFY(!theme::IsDark(PaletteOf(kLightWindow)));
  QVERIFY(theme::IsDark(PaletteOf(kDarkWindow)));
  QVERIFY(theme::IsDark(PaletteOf(Qt::black)));
  QVERIFY(!theme::IsDark(PaletteOf(Qt::white)));
}

void ThemeTest::TextsCanBeRead() {
  for (const QColor& window : {kLightWindow, kDarkWindow}) {
    const QPalette palette = PaletteOf(window);
    for (const KeyRole role : kRoles) {
      const theme::KeyColours& colours = theme::ColoursOf(role, palette);
      const QByteArray name = QByteArray::number(static_cast<int>(role)) + window.name().toLatin1();
      QVERIFY2(Contrast(colours.text, colours.face) >= 4.5, name);
      QVERIFY2(Contrast(colours.text, colours.pressedFace) >= 4.5, name);
      QVERIFY2(Contrast(colours.disabledText, colours.face) >= 2, name);
    }
  }
}

void ThemeTest::TheConvertersButtonsKeepTheirColours() {
  for (const QColor& window : {kLightWindow, kDarkWindow}) {
    const theme::KeyColours& pale = theme::ColoursOf(KeyRole::Pale, PaletteOf(window));
    QCOMPARE(pale.face, QColor(222, 231, 255));
    QVERIFY(Contrast(pale.text, pale.face) >= 4.5);
    QVERIFY(Contrast(pale.text, pale.pressedFace) >= 4.5);
    // Both colours are given; the bold text makes up for their contrast.
    const theme::KeyColours& memory = theme::ColoursOf(KeyRole::Memory, PaletteOf(window));
    QCOMPARE(memory.face, QColor(255, 128, 0));
    QCOMPARE(memory.text, QColor(0, 0, 255));
    QVERIFY(Contrast(memory.text, memory.face) >= 3);
  }
}

void ThemeTest::RolesDiffer() {
  for (const QColor& window : {kLightWindow, kDarkWindow}) {
    QSet<QRgb> faces;
    for (const KeyRole role : kRoles) {
      faces.insert(theme::ColoursOf(role, PaletteOf(window)).face.rgb());
    }
    QCOMPARE(faces.size(), qsizetype{8});
  }
}

void ThemeTest::WhatIsDisabledCanBeRead() {
  for (const QColor& window : {kLightWindow, kDarkWindow}) {
    QWidget field;
    field.setPalette(PaletteOf(window));
    theme::KeepReadable(&field);
    for (const QPalette::ColorRole text :
         {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
      for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base}) {
        const QColor disabled = field.palette().color(QPalette::Disabled, text);
        QVERIFY(Contrast(disabled, field.palette().color(QPalette::Disabled, ground)) >= 4.5);
        // Still told from what can be changed.
        QVERIFY(disabled != field.palette().color(QPalette::Active, text));
      }
    }
    for (const QPalette::ColorRole selected : {QPalette::Highlight, QPalette::HighlightedText}) {
      QCOMPARE(field.palette().color(QPalette::Disabled, selected),
               field.palette().color(QPalette::Active, selected));
    }
  }
}

void ThemeTest::LightBlueIsTheSameInDark() {
  for (const QColor& window : {kLightWindow, kDarkWindow}) {
    QLabel label(QStringLiteral("text"));
    label.setPalette(PaletteOf(window));
    theme::ShowOnLightBlue(&label);
    QCOMPARE(label.grab().toImage().pixelColor(1, 1), QColor(222, 231, 255));
    QVERIFY(Contrast(label.palette().color(QPalette::WindowText), QColor(222, 231, 255)) >= 4.5);
  }
}

void ThemeTest::IndicatorsCanBeSeenInDark() {
  const QPalette dark = PaletteOf(kDarkWindow);
  const QPalette indicator = theme::IndicatorPalette(dark);
  const QColor circle = indicator.color(QPalette::Base);
  QVERIFY(Contrast(circle, kDarkWindow) >= 3);
  QVERIFY(Contrast(indicator.color(QPalette::Text), circle) >= 4);
  // In light colours the desktop's own circle has an edge.
  QCOMPARE(theme::IndicatorPalette(PaletteOf(kLightWindow)), PaletteOf(kLightWindow));
}

void ThemeTest::AKeyFollowsAChangeOfThePalette() {
  const Key key{L"=", KeyRole::Equals, 0, 0};
  KeyButton button(key, nullptr);
  button.resize(60, 40);
  // Beside the text, inside the border.
  const QPoint face(8, 20);
  for (const QColor& window : {kLightWindow, kDarkWindow, kLightWindow}) {
    button.setPalette(PaletteOf(window));
    const QImage image = button.grab().toImage();
    QCOMPARE(image.pixelColor(face), theme::ColoursOf(key.role, PaletteOf(window)).face);
  }
  button.setDown(true);
  QCOMPARE(button.grab().toImage().pixelColor(face),
           theme::ColoursOf(key.role, PaletteOf(kLightWindow)).pressedFace);
}

void ThemeTest::TheFocusIsVisible() {
  const Key key{L"7", KeyRole::Digit, 0, 0};
  KeyButton button(key, nullptr);
  button.resize(60, 40);
  button.show();
  QVERIFY(QTest::qWaitForWindowActive(&button));
  button.clearFocus();
  const QImage without = button.grab().toImage();
  button.setFocus();
  QVERIFY(button.hasFocus());
  QVERIFY(button.grab().toImage() != without);
}

void ThemeTest::TheFontIsTahomaOrTheDesktops() {
  const QFont base = QApplication::font();
  const QString family = QFontInfo(theme::ProgramFont(base)).family();
  QVERIFY(family == QStringLiteral("Tahoma") || family == QFontInfo(base).family());
}

}  // namespace vexa

QTEST_MAIN(vexa::ThemeTest)
#include "ThemeTest.moc"
