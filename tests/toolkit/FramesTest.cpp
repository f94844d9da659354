// The frames of fields where pixels of the display are no whole number of the program's.

#include <QApplication>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTest>

#include "toolkit/EditLine.h"
#include "toolkit/ResultLine.h"
#include "toolkit/Theme.h"
#include "toolkit/TouchStyle.h"

namespace vexa {

class FramesTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { QApplication::setStyle(new TouchStyle); }
  void EverySideIsSeenAtEveryPlace();
};

void FramesTest::EverySideIsSeenAtEveryPlace() {
  QWidget window;
  window.resize(150, 90);
  QPlainTextEdit* const fields[] = {new EditLine(&window), new ResultLine(&window)};
  fields[1]->hide();
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  const QRgb frame = theme::FrameColour(window.palette()).rgb();
  const qreal ratio = window.devicePixelRatioF();
  for (QPlainTextEdit* const field : fields) {
    for (QPlainTextEdit* const other : fields) other->setVisible(other == field);
    for (int step = 0; step < 8; ++step) {
      const QRect place(5 + step, 7 + step, 101 + step, 41 + step);
      field->setGeometry(place);
      const QImage shown = window.grab().toImage();
      QCOMPARE(shown.devicePixelRatio(), ratio);
      // A side is seen where a walk across it meets the frame's colour.
      const auto crosses = [&](QPointF from, QPointF to) {
        constexpr int kSteps = 60;
        for (int n = 0; n <= kSteps; ++n) {
          const QPointF at = (from + (to - from) * n / kSteps) * ratio;
          if (shown.pixel(at.toPoint()) == frame) return true;
        }
        return false;
      };
      const QPointF centre = QRectF(place).center();
      for (const QPointF out : {QPointF(0, -1), QPointF(0, 1), QPointF(-1, 0), QPointF(1, 0)}) {
        const QPointF edge(centre.x() + out.x() * place.width() / 2.0,
                           centre.y() + out.y() * place.height() / 2.0);
        QVERIFY2(crosses(edge - out * 3, edge + out * 3),
                 qPrintable(
                     QStringLiteral("side %1,%2 at step %3").arg(out.x()).arg(out.y()).arg(step)));
      }
    }
  }
}

}  // namespace vexa

QTEST_MAIN(vexa::FramesTest)
#include "FramesTest.moc"
