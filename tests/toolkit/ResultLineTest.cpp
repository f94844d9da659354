#include "toolkit/ResultLine.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

namespace vexa {

class ResultLineTest : public QObject {
  Q_OBJECT

 private slots:
  void EveryTextIsWhole_data();
  void EveryTextIsWhole();
  void ShortTextsAreLarge();
  void SeveralLinesAreLarge();
  void SeveralLongLinesAreWhole();
  void TheTextFollowsTheSize();
  void CanBeSelectedAndCopied();
  void CopyWithoutASelectionTakesAll();
  void ASentenceIsCopiedAsItStands();
  void ADoubleClickSelectsAll();
  void CannotBeEdited();
};

void ResultLineTest::EveryTextIsWhole_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<QSize>("size");
  const char* const texts[] = {
      "0",
      "Out of range(overflow or underflow)",
      "abcdefghijklmno... is not supported.",
      "1,234,567,890,123.123456789012",
      "11111111111111111111111111111111",
      "number exceeded length limit.",
  };
  for (const char* text : texts) {
    for (const QSize size : {QSize(232, 36), QSize(332, 48), QSize(700, 120)}) {
      QTest::newRow(QByteArray(text) + QByteArray::number(size.width()))
          << QString::fromLatin1(text) << size;
    }
  }
  // A stored precision may ask for 100 decimals.
  QTest::newRow("100 decimals") << QStringLiteral("1,234.") + QString(100, u'7') << QSize(232, 36);
}

void ResultLineTest::EveryTextIsWhole() {
  QFETCH(QString, text);
  QFETCH(QSize, size);
  ResultLine line(nullptr);
  line.resize(size);
  line.show();
  line.ShowText(text);
  QCOMPARE(line.toPlainText(), text);
  const QTextBlock block = line.document()->firstBlock();
  const QTextLayout& layout = *block.layout();
  qreal height = 0;
  int shown = 0;
  for (int n = 0; n < layout.lineCount(); ++n) {
    const QTextLine row = layout.lineAt(n);
    height += row.height();
    shown += row.textLength();
    QVERIFY2(row.naturalTextWidth() <= line.viewport()->width(), qPrintable(text));
  }
  QCOMPARE(shown, static_cast<int>(text.size()));
  QVERIFY2(height <= line.viewport()->height(), qPrintable(text));
}

void ResultLineTest::ShortTextsAreLarge() {
  ResultLine line(nullptr);
  line.resize(232, 36);
  line.show();
  line.ShowText(QStringLiteral("0"));
  const int large = line.document()->defaultFont().pixelSize();
  QVERIFY(large >= 18);
  line.ShowText(QStringLiteral("Out of range(overflow or underflow)"));
  QVERIFY(line.document()->defaultFont().pixelSize() < large);
  QVERIFY(line.document()->defaultFont().pixelSize() >= 11);
  line.ShowText(QStringLiteral("1"));
  QCOMPARE(line.document()->defaultFont().pixelSize(), large);
}

void ResultLineTest::SeveralLinesAreLarge() {
  ResultLine line(nullptr);
  line.resize(232, 110);
  line.show();
  line.ShowText(QStringLiteral("25 Celsius\r\n=\r\n77 Fahrenheit"));
  QCOMPARE(line.toPlainText(), QStringLiteral("25 Celsius\n=\n77 Fahrenheit"));
  QVERIFY(line.document()->defaultFont().pixelSize() >= 18);
}

void ResultLineTest::SeveralLongLinesAreWhole() {
  ResultLine line(nullptr);
  line.resize(232, 60);
  line.show();
  const QString name = QStringLiteral(" imperial fluid ounces of the best maple syrup");
  line.ShowText(QStringLiteral("123,456.789") + name + QStringLiteral("\n=\n1") + name);
  qreal height = 0;
  for (QTextBlock block = line.document()->begin(); block.isValid(); block = block.next()) {
    for (int n = 0; n < block.layout()->lineCount(); ++n) {
      height += block.layout()->lineAt(n).height();
      QVERIFY(block.layout()->lineAt(n).naturalTextWidth() <= line.viewport()->width());
    }
  }
  QVERIFY(height > 0);
  QVERIFY(height <= line.viewport()->height());
}

void ResultLineTest::TheTextFollowsTheSize() {
  ResultLine line(nullptr);
  line.show();
  line.resize(232, 36);
  line.ShowText(QStringLiteral("1,234,567.123456789012"));
  const int small = line.document()->defaultFont().pixelSize();
  line.resize(600, 60);
  QTRY_VERIFY(line.document()->defaultFont().pixelSize() > small);
}

void ResultLineTest::CanBeSelectedAndCopied() {
  ResultLine line(nullptr);
  line.show();
  QVERIFY(QTest::qWaitForWindowActive(&line));
  line.ShowText(QStringLiteral("1,234.5"));
  line.setFocus();
  QTest::keyClick(&line, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&line, Qt::Key_C, Qt::ControlModifier);
  QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("1234.5"));
}

void ResultLineTest::CopyWithoutASelectionTakesAll() {
  ResultLine line(nullptr);
  line.show();
  QVERIFY(QTest::qWaitForWindowActive(&line));
  line.ShowText(QStringLiteral("-1,234,567"));
  line.setFocus();
  QTest::keyClick(&line, Qt::Key_C, Qt::ControlModifier);
  QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("-1234567"));
}

void ResultLineTest::ASentenceIsCopiedAsItStands() {
  ResultLine line(nullptr);
  line.show();
  line.ShowText(QStringLiteral("a,b is not supported."));
  line.selectAll();
  line.copy();
  QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("a,b is not supported."));
}

void ResultLineTest::ADoubleClickSelectsAll() {
  ResultLine line(nullptr);
  line.resize(232, 36);
  line.show();
  QVERIFY(QTest::qWaitForWindowActive(&line));
  for (const char* text : {"-1,234.5", "1.50000e+013", "Expression error."}) {
    line.ShowText(QString::fromLatin1(text));
    for (int x = line.viewport()->width() / 2; x < line.viewport()->width(); x += 10) {
      QTest::mouseClick(line.viewport(), Qt::LeftButton, {}, QPoint(2, 2));
      QTest::mouseDClick(line.viewport(), Qt::LeftButton, {}, QPoint(x, 15));
      QCOMPARE(line.textCursor().selectedText(), QString::fromLatin1(text));
    }
  }
}

void ResultLineTest::CannotBeEdited() {
  ResultLine line(nullptr);
  line.show();
  line.ShowText(QStringLiteral("5"));
  QTest::keyClicks(&line, QStringLiteral("12"));
  QTest::keyClick(&line, Qt::Key_Backspace);
  line.paste();
  QCOMPARE(line.toPlainText(), QStringLiteral("5"));
}

}  // namespace vexa

QTEST_MAIN(vexa::ResultLineTest)
#include "ResultLineTest.moc"
