// Every target is high enough for a finger, on every box and menu of the calculator, and all of
// them fit the screen, which may be as small as 240 by 320.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>

#include "support/Boxes.h"
#include "support/CalculatorOnScreen.h"
#include "support/ScreenMain.h"
#include "support/StoredMacros.h"
#include "toolkit/TouchList.h"

namespace vexa {
namespace {

constexpr int kLeastTarget = 30;
/// What a window manager puts above a window.
constexpr int kTitleBar = 28;

/// The controls that a finger is to hit.
QList<QWidget*> Targets(const QWidget* window) {
  QList<QWidget*> targets;
  for (QWidget* const widget : window->findChildren<QWidget*>()) {
    const bool isTarget = qobject_cast<QAbstractButton*>(widget) ||
                          qobject_cast<QComboBox*>(widget) || qobject_cast<QLineEdit*>(widget);
    if (isTarget && widget->isVisible() && widget->window() == window) targets += widget;
  }
  return targets;
}

}  // namespace

class TouchSizeTest : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup() { calculator.reset(); }
  void MenuBarsAndMenus();
  void PopupMenus();
  void Dialogs_data();
  void Dialogs();
  void MessageBoxes();
  void ComboBoxRows();
  void TheWholeRowOfARadioButtonIsHit();

 private:
  void ExpectRowsHighEnough(const QMenu* menu) const;
  void ExpectOnScreen(const QWidget* window) const {
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    const int height = window->height() + (qobject_cast<const QDialog*>(window) ? kTitleBar : 0);
    QVERIFY2(window->width() <= room.width() && height <= room.height(),
             qPrintable(window->objectName()));
  }
  void ExpectTargetsHighEnough(const QWidget* window) const {
    for (const QWidget* const target : Targets(window)) {
      QVERIFY2(target->height() >= kLeastTarget, qPrintable(target->objectName()));
      QVERIFY2(window->rect().contains(QRect(target->mapTo(window, QPoint()), target->size())),
               qPrintable(target->objectName()));
    }
  }

  std::unique_ptr<test::CalculatorOnScreen> calculator;
};

void TouchSizeTest::init() {
  calculator = std::make_unique<test::CalculatorOnScreen>();
  test::Store(calculator->store, test::kThreeMacros);
  calculator->Open();
  calculator->Calculate("255");
}

void TouchSizeTest::ExpectRowsHighEnough(const QMenu* menu) const {
  for (QAction* const action : menu->actions()) {
    const int height = menu->actionGeometry(action).height();
    if (action->isSeparator()) {
      QVERIFY(height < kLeastTarget);
    } else {
      QVERIFY2(height >= kLeastTarget, qPrintable(action->text()));
    }
  }
}

void TouchSizeTest::MenuBarsAndMenus() {
  const auto* const bar = calculator->screen->findChild<QMenuBar*>();
  QCOMPARE(bar->actions().size(), qsizetype{4});
  for (QAction* const action : bar->actions()) {
    QVERIFY2(bar->actionGeometry(action).height() >= kLeastTarget, qPrintable(action->text()));
    action->menu()->popup(QPoint(0, 0));
    ExpectRowsHighEnough(action->menu());
    ExpectOnScreen(action->menu());
    action->menu()->close();
  }
}

void TouchSizeTest::PopupMenus() {
  for (const auto& [key, name] :
       {std::pair("MEM", "Memory"), {"DEC", "Bases"}, {"PB", "History"}}) {
    calculator->Press(key);
    QVERIFY(calculator->Popup(name));
    ExpectRowsHighEnough(calculator->Popup(name));
    ExpectOnScreen(calculator->Popup(name));
    calculator->ClosePopup(name);
  }
}

void TouchSizeTest::Dialogs_data() {
  QTest::addColumn<QString>("name");
  QTest::newRow("display") << QStringLiteral("DisplayFormatting");
  QTest::newRow("editor") << QStringLiteral("MacroEditor");
  QTest::newRow("list") << QStringLiteral("MacroList");
  QTest::newRow("memory") << QStringLiteral("MemoryVariable");
  QTest::newRow("converter") << QStringLiteral("UnitConverter");
  QTest::newRow("conversions") << QStringLiteral("UserConversions");
}

void TouchSizeTest::Dialogs() {
  QFETCH(QString, name);
  if (name == QStringLiteral("DisplayFormatting")) calculator->RunFileCommand("Config...");
  if (name == QStringLiteral("MacroEditor")) calculator->RunFileCommand("Edit Macro...");
  if (name == QStringLiteral("UserConversions")) calculator->RunFileCommand("Edit Unit Convert");
  if (name == QStringLiteral("MacroList")) calculator->Press("Mac");
  if (name == QStringLiteral("UnitConverter")) calculator->Press("Cnv");
  if (name == QStringLiteral("MemoryVariable")) {
    calculator->Press("MEM");
    calculator->ChooseFromPopup("Memory", "Store MemVar");
  }
  QDialog* const dialog = test::OpenDialog(name);
  QVERIFY(dialog);
  QVERIFY(Targets(dialog).size() >= 2);
  ExpectTargetsHighEnough(dialog);
  ExpectOnScreen(dialog);
  if (const auto* const list = dialog->findChild<TouchList*>()) {
    if (list->count() > 0) {
      QVERIFY(list->visualItemRect(list->item(0)).height() >= kLeastTarget);
    }
    QVERIFY(list->viewport()->height() >= kLeastTarget);
  }
  // No text is cut.
  for (const auto* const label : dialog->findChildren<QLabel*>()) {
    QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
  }
  for (const auto* const button : dialog->findChildren<QAbstractButton*>()) {
    const int text = button->fontMetrics().horizontalAdvance(button->text());
    QVERIFY2(!button->isVisible() || button->width() > text, qPrintable(button->text()));
  }
  dialog->reject();
}

void TouchSizeTest::MessageBoxes() {
  calculator->RunFileCommand("Edit Macro...");
  QDialog* const editor = test::OpenDialog(QStringLiteral("MacroEditor"));
  QTest::mouseClick(editor->findChild<QPushButton*>(QStringLiteral("Delete")), Qt::LeftButton);
  QVERIFY(test::OpenBox());
  QCOMPARE(Targets(test::OpenBox()).size(), qsizetype{2});
  ExpectTargetsHighEnough(test::OpenBox());
  ExpectOnScreen(test::OpenBox());
  test::AnswerBox(QMessageBox::No);
  editor->reject();
}

void TouchSizeTest::ComboBoxRows() {
  QComboBox box;
  box.addItems({QStringLiteral("one"), QStringLiteral("two")});
  box.show();
  box.showPopup();
  const auto* const view = box.view();
  QVERIFY(view->visualRect(box.model()->index(1, 0)).height() >= kLeastTarget);
  box.hidePopup();
}

void TouchSizeTest::TheWholeRowOfARadioButtonIsHit() {
  QRadioButton first(QStringLiteral("a"));
  first.resize(200, 40);
  first.show();
  QTest::mouseClick(&first, Qt::LeftButton, {}, QPoint(197, 2));
  QVERIFY(first.isChecked());
}

}  // namespace vexa

VEXA_SCREEN_MAIN(vexa::TouchSizeTest)
#include "TouchSizeTest.moc"
