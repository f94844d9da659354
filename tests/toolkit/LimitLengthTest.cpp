#include "toolkit/LimitLength.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QToolTip>

#include "display/MemorySettingsStore.h"
#include "plotter/PlotterScreen.h"
#include "support/ScreenMain.h"

namespace vexa {

class LimitLengthTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void WhatHasNoRoomIsRefusedWhole();
  void TheFieldSaysWhy();
  void WhatTheProgramSetsIsShown();
  void NumberFieldsAreLimited();

 private:
  void Paste(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(field.get(), Qt::Key_V, Qt::ControlModifier);
  }

  std::unique_ptr<QLineEdit> field;
};

void LimitLengthTest::init() {
  field = std::make_unique<QLineEdit>();
  LimitLength(field.get(), {10, L"Ten at most."});
  field->show();
  QVERIFY(QTest::qWaitForWindowActive(field.get()));
  field->setFocus();
}

void LimitLengthTest::WhatHasNoRoomIsRefusedWhole() {
  Paste(QStringLiteral("12345678901"));
  QCOMPARE(field->text(), QString());
  Paste(QStringLiteral("12345678"));
  Paste(QStringLiteral("123"));
  QCOMPARE(field->text(), QStringLiteral("12345678"));
  QTest::keyClicks(field.get(), QStringLiteral("901"));
  QCOMPARE(field->text(), QStringLiteral("1234567890"));
  field->setSelection(2, 3);
  Paste(QStringLiteral("abcd"));
  QCOMPARE(field->text(), QStringLiteral("1234567890"));
  QCOMPARE(field->selectedText(), QStringLiteral("345"));
  QInputMethodEvent event;
  event.setCommitString(QStringLiteral("abcd"));
  QGuiApplication::sendEvent(field.get(), &event);
  QCOMPARE(field->text(), QStringLiteral("1234567890"));
  Paste(QStringLiteral("abc"));
  QCOMPARE(field->text(), QStringLiteral("12abc67890"));
}

void LimitLengthTest::TheFieldSaysWhy() {
  Paste(QStringLiteral("12345678901"));
  QCOMPARE(QToolTip::text(), QStringLiteral("Ten at most."));
}

void LimitLengthTest::WhatTheProgramSetsIsShown() {
  field->setText(QStringLiteral("12345678901234"));
  QCOMPARE(field->text(), QStringLiteral("12345678901234"));
  QTest::keyClick(field.get(), Qt::Key_Backspace);
  QCOMPARE(field->text(), QStringLiteral("1234567890123"));
}

void LimitLengthTest::NumberFieldsAreLimited() {
  MemorySettingsStore store;
  PlotterScreen screen(store, nullptr);
  screen.show();
  QVERIFY(QTest::qWaitForWindowActive(&screen));
  const QList<QLineEdit*> boxes = screen.findChildren<QLineEdit*>();
  QVERIFY(!boxes.isEmpty());
  for (QLineEdit* const box : boxes) {
    const QString before = box->text();
    box->setFocus();
    box->end(false);
    QGuiApplication::clipboard()->setText(QString(30000, u'\u0301'));
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(box->text(), before);
  }
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::LimitLengthTest)
#include "LimitLengthTest.moc"
