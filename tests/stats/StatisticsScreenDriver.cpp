#include "stats/StatisticsScreenDriver.h"

#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QMenuBar>
#include <QTest>
#include <algorithm>

#include "stats/OneVarScreen.h"
#include "stats/TwoVarScreen.h"
#include "toolkit/FileDialogs.h"

namespace vexa::test {

StatisticsScreenDriver::StatisticsScreenDriver(Mode mode, QSize size, const QString& folder)
    : window(std::make_unique<QWidget>()) {
  store.folder = folder.toStdString();
  window->resize(size);
  screen = mode == Mode::OneVarStatistics
               ? static_cast<ModeScreen*>(new OneVarScreen(store, window.get()))
               : new TwoVarScreen(store, window.get());
  screen->setGeometry(window->rect());
  window->show();
  screen->setFocus();
  QVERIFY(QTest::qWaitForWindowExposed(window.get()));
  Activate();
}

StatisticsScreenDriver::~StatisticsScreenDriver() = default;

void StatisticsScreenDriver::Activate() {
  QApplication::setActiveWindow(window.get());
}

void StatisticsScreenDriver::Type(const QStringList& texts) {
  const QStringList names{QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Count"),
                          QStringLiteral("Cnt")};
  qsizetype next = 0;
  for (const QString& name : names) {
    QLineEdit* const edit = Edit(name);
    if (!edit || next == texts.size()) continue;
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, texts[next++]);
  }
}

void StatisticsScreenDriver::Add(const QStringList& texts) {
  Type(texts);
  Press(QStringLiteral("Add"));
}

QPushButton* StatisticsScreenDriver::Key(const QString& caption) const {
  return screen->findChild<QPushButton*>(caption);
}

void StatisticsScreenDriver::Press(const QString& caption) {
  QTest::mouseClick(Key(caption), Qt::LeftButton);
}

QStringList StatisticsScreenDriver::EnabledKeys() const {
  QStringList captions;
  for (const QPushButton* key : screen->findChildren<QPushButton*>()) {
    if (key->isVisible() && key->isEnabled()) captions << key->text();
  }
  return captions;
}

QStringList StatisticsScreenDriver::Rows() const {
  QStringList rows;
  const QAbstractItemModel* const model = Table()->model();
  for (int row = 0; row < model->rowCount(); ++row) {
    QStringList texts;
    for (int column = 0; column < model->columnCount(); ++column) {
      texts << model->index(row, column).data().toString();
    }
    rows << texts.join(u' ');
  }
  return rows;
}

void StatisticsScreenDriver::SelectRows(const QList<int>& rows) {
  Table()->clearSelection();
  for (const int row : rows) {
    const QRect cell = Table()->visualRect(Table()->model()->index(row, 0));
    QTest::mouseClick(Table()->viewport(), Qt::LeftButton, Qt::ControlModifier, cell.center());
  }
}

QList<int> StatisticsScreenDriver::SelectedRows() const {
  QList<int> rows;
  for (const QModelIndex& index : Table()->selectionModel()->selectedRows()) rows << index.row();
  std::ranges::sort(rows);
  return rows;
}

void StatisticsScreenDriver::ClickHeading(int column) {
  const QHeaderView* const headings = Table()->horizontalHeader();
  const QPoint middle(headings->sectionViewportPosition(column) + headings->sectionSize(column) / 2,
                      headings->height() / 2);
  QTest::mouseClick(headings->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
}

bool StatisticsScreenDriver::TotalIsShown() const {
  return screen->findChild<QLabel*>(QStringLiteral("Total"))->isVisible();
}

QString StatisticsScreenDriver::Result() const {
  return screen->findChild<QPlainTextEdit*>(QStringLiteral("Result"))->toPlainText();
}

QString StatisticsScreenDriver::Notice() const {
  const auto* const notice = screen->findChild<QLabel*>(QStringLiteral("Notice"));
  return notice->isVisible() ? notice->text() : QString();
}

QMessageBox* StatisticsScreenDriver::Box() const {
  for (QMessageBox* box : screen->findChildren<QMessageBox*>()) {
    if (box->isVisible()) return box;
  }
  return nullptr;
}

void StatisticsScreenDriver::Answer(QMessageBox::StandardButton button) {
  QMessageBox* const box = Box();
  QVERIFY2(box && box->button(button), "there is no such answer to give");
  box->button(button)->click();
}

QStringList StatisticsScreenDriver::MenuTexts(const QString& name) const {
  QStringList texts;
  if (!Menu(name)) return texts;
  for (const QAction* action : Menu(name)->actions()) texts << action->text();
  return texts;
}

void StatisticsScreenDriver::ChooseFrom(const QString& menuName, const QString& text) {
  QMenu* const menu = Menu(menuName);
  QVERIFY2(menu, qPrintable(menuName));
  for (QAction* action : menu->actions()) {
    if (action->text() != text) continue;
    menu->setActiveAction(action);
    QTest::keyClick(menu, Qt::Key_Return);
    return;
  }
  QFAIL(qPrintable(text));
}

QAction* StatisticsScreenDriver::MenuCommand(const QString& menuTitle, const QString& text) const {
  for (const QAction* menu : screen->findChild<QMenuBar*>()->actions()) {
    if (menu->text().remove(u'&') != menuTitle) continue;
    for (QAction* action : menu->menu()->actions()) {
      if (action->text().remove(u'&') == text) return action;
    }
  }
  return nullptr;
}

void StatisticsScreenDriver::Command(const QString& menuTitle, const QString& text) {
  QAction* const action = MenuCommand(menuTitle, text);
  QVERIFY2(action, qPrintable(text));
  action->trigger();
}

QByteArray StatisticsScreenDriver::FileBytes(const QString& name) const {
  QFile file(FileName(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void StatisticsScreenDriver::PutFile(const QString& name, const QByteArray& bytes) const {
  QFile file(FileName(name));
  QVERIFY(file.open(QIODevice::WriteOnly));
  QCOMPARE(file.write(bytes), bytes.size());
}

void StatisticsScreenDriver::Load(const QByteArray& bytes) {
  PutFile(QStringLiteral("load.txt"), bytes);
  file_dialogs::AddNextAnswer(FileName(QStringLiteral("load.txt")));
  Press(QStringLiteral("Load"));
}

}  // namespace vexa::test
