#include "toolkit/Keypad.h"

#include <QSignalSpy>
#include <QTest>

#include "toolkit/KeyButton.h"

namespace vexa {
namespace {

// Two keys share a cell; the last one is two cells wide.
constexpr Key kKeys[] = {
    {L"a", KeyRole::Command, 0, 0},
    {L"b", KeyRole::Command, 0, 0},
    {L"c", KeyRole::Command, 0, 1},
    {L"d", KeyRole::Command, 0, 2},
    {L"e", KeyRole::Digit, 1, 0},
    {.caption = L"f", .role = KeyRole::Equals, .row = 1, .column = 1, .columnSpan = 2},
    {L"g", KeyRole::Digit, 2, 0},
    {L"h", KeyRole::Digit, 2, 1},
    {L"i", KeyRole::Digit, 2, 2},
};

}  // namespace

class KeypadTest : public QObject {
  Q_OBJECT

 private slots:
  void GapsAreEvenAtEverySize();
  void HidingKeysMovesNothing();
  void AWideKeyCoversItsCells();
  void SaysWhichKeyWasPressed();
  void FindsButtonsByCaption();
};

void KeypadTest::GapsAreEvenAtEverySize() {
  Keypad pad(kKeys, nullptr);
  pad.show();
  for (int size = 100; size < 240; ++size) {
    pad.resize(size, size + 7);
    const QRect a = pad.Button(L"a")->geometry();
    const QRect c = pad.Button(L"c")->geometry();
    const QRect d = pad.Button(L"d")->geometry();
    const QRect e = pad.Button(L"e")->geometry();
    const QRect g = pad.Button(L"g")->geometry();
    QCOMPARE(a.topLeft(), QPoint(0, 0));
    const int gap = c.left() - a.right();
    QVERIFY(gap > 1);
    QCOMPARE(d.left() - c.right(), gap);
    QCOMPARE(e.top() - a.bottom(), gap);
    QCOMPARE(g.top() - e.bottom(), gap);
    QCOMPARE(d.right(), pad.rect().right());
    QCOMPARE(g.bottom(), pad.rect().bottom());
    QVERIFY(qAbs(a.width() - d.width()) <= 1 && qAbs(a.height() - g.height()) <= 1);
  }
}

void KeypadTest::HidingKeysMovesNothing() {
  Keypad pad(kKeys, nullptr);
  pad.resize(200, 150);
  pad.show();
  std::vector<QRect> places;
  for (const Key& key : kKeys) places.push_back(pad.Button(key.caption)->geometry());
  for (const Key& hidden : kKeys) {
    pad.Refresh([&](const Key& key) { return &key != &hidden; }, [](const Key&) { return true; });
    QCoreApplication::processEvents();
    QVERIFY(!pad.Button(hidden.caption)->isVisible());
    for (std::size_t n = 0; n < places.size(); ++n) {
      QCOMPARE(pad.Button(kKeys[n].caption)->geometry(), places[n]);
    }
  }
  QCOMPARE(pad.Button(L"a")->geometry(), pad.Button(L"b")->geometry());
}

void KeypadTest::AWideKeyCoversItsCells() {
  Keypad pad(kKeys, nullptr);
  pad.resize(211, 150);
  pad.show();
  const QRect wide = pad.Button(L"f")->geometry();
  QCOMPARE(wide.left(), pad.Button(L"h")->geometry().left());
  QCOMPARE(wide.right(), pad.Button(L"i")->geometry().right());
}

void KeypadTest::SaysWhichKeyWasPressed() {
  Keypad pad(kKeys, nullptr);
  pad.resize(200, 150);
  pad.show();
  QSignalSpy pressed(&pad, &Keypad::KeyPressed);
  for (int n = 0; n < static_cast<int>(std::size(kKeys)); ++n) {
    QTest::mouseClick(pad.Button(kKeys[n].caption), Qt::LeftButton);
    QCOMPARE(pressed.takeFirst().first().toInt(), n);
  }
  pad.Refresh([](const Key&) { return true; }, [](const Key&) { return false; });
  QTest::mouseClick(pad.Button(L"a"), Qt::LeftButton);
  QVERIFY(pressed.isEmpty());
}

void KeypadTest::FindsButtonsByCaption() {
  Keypad pad(kKeys, nullptr);
  for (const Key& key : kKeys) {
    QCOMPARE(pad.Button(key.caption)->accessibleName().toStdWString(), std::wstring(key.caption));
  }
  QVERIFY(!pad.Button(L"none"));
}

}  // namespace vexa

QTEST_MAIN(vexa::KeypadTest)
#include "KeypadTest.moc"
