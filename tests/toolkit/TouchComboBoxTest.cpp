#include "toolkit/TouchComboBox.h"

#include <QApplication>
#include <QListView>
#include <QSignalSpy>
#include <QStyleOptionComboBox>
#include <QTest>
#include <memory>

#include "support/ScreenMain.h"

namespace vexa {

class TouchComboBoxTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void TypedCharactersAreSearchedTogether();
  void AfterAPauseTheSearchStartsAnew();
  void ABlankOpensTheListUnlessItIsSearched();
  void AnEntryThatABlankFindsIsChosen();
  void LongEntriesEndInDots();
  void LongEntriesDoNotWidenIt();

 private:
  std::unique_ptr<TouchComboBox> box;
};

void TouchComboBoxTest::init() {
  box = std::make_unique<TouchComboBox>(nullptr);
  box->addItems({QStringLiteral("Inches"), QStringLiteral("Feet"), QStringLiteral("Light minutes"),
                 QStringLiteral("Light years"), QStringLiteral("Links")});
  box->resize(120, 32);
  box->show();
  QVERIFY(QTest::qWaitForWindowActive(box.get()));
}

void TouchComboBoxTest::TypedCharactersAreSearchedTogether() {
  QTest::keyClicks(box.get(), QStringLiteral("lin"));
  QCOMPARE(box->currentText(), QStringLiteral("Links"));
}

void TouchComboBoxTest::AfterAPauseTheSearchStartsAnew() {
  QTest::keyClicks(box.get(), QStringLiteral("lin"));
  QTest::qWait(QApplication::keyboardInputInterval() + 50);
  QTest::keyClicks(box.get(), QStringLiteral("f"));
  QCOMPARE(box->currentText(), QStringLiteral("Feet"));
}

void TouchComboBoxTest::ABlankOpensTheListUnlessItIsSearched() {
  QTest::keyClicks(box.get(), QStringLiteral("light y"));
  QCOMPARE(box->currentText(), QStringLiteral("Light years"));
  QVERIFY(!box->view()->isVisible());
  QTest::qWait(QApplication::keyboardInputInterval() + 50);
  QTest::keyClick(box.get(), Qt::Key_Space);
  QTRY_VERIFY(box->view()->isVisible());
  box->hidePopup();
}

void TouchComboBoxTest::AnEntryThatABlankFindsIsChosen() {
  box->insertItem(2, QStringLiteral("Lightyear"));
  QTest::keyClicks(box.get(), QStringLiteral("light"));
  QCOMPARE(box->currentText(), QStringLiteral("Lightyear"));
  QSignalSpy chosen(box.get(), &QComboBox::activated);
  QTest::keyClick(box.get(), Qt::Key_Space);
  QCOMPARE(box->currentText(), QStringLiteral("Light minutes"));
  QCOMPARE(chosen.size(), qsizetype{1});
  QCOMPARE(chosen[0].at(0).toInt(), 3);
}

void TouchComboBoxTest::LongEntriesEndInDots() {
  const QString entry = QStringLiteral("Imperial fluid ounces of maple syrup");
  box->addItem(entry);
  box->setCurrentIndex(5);
  const QImage shown = box->grab().toImage();
  QCOMPARE(box->currentText(), entry);
  // It looks like a front of the entry that has room together with the dots behind it.
  QStyleOptionComboBox option;
  option.initFrom(box.get());
  const QRect room = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                  QStyle::SC_ComboBoxEditField, box.get());
  QString alike;
  for (int length = 1; length < entry.size() && alike.isEmpty(); ++length) {
    box->setItemText(5, entry.left(length) + QChar(0x2026));
    if (box->grab().toImage() == shown) alike = box->currentText();
  }
  QVERIFY(!alike.isEmpty());
  QVERIFY(box->fontMetrics().horizontalAdvance(alike) <= room.width());
}

void TouchComboBoxTest::LongEntriesDoNotWidenIt() {
  const QSize before = box->minimumSizeHint();
  box->addItem(QString(500, u'W'));
  QCOMPARE(box->minimumSizeHint(), before);
  QVERIFY(before.width() < 100);
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::TouchComboBoxTest)
#include "TouchComboBoxTest.moc"
