// The whole program with a user at the keyboard: enters two rows on the 1-Var screen, then does
// what the environment says, so that the test beside can look at the process.

#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <cstdio>

#include "app/Application.h"
#include "toolkit/FileDialogs.h"
#include "toolkit/ModeScreen.h"
#include "toolkit/ProgressBox.h"

namespace vexa {
namespace {

QString Wish(const char* name) {
  return qEnvironmentVariable(name);
}

ModeScreen* Screen() {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* const screen = window->findChild<ModeScreen*>()) return screen;
  }
  return nullptr;
}

void Say(const char* what) {
  std::puts(what);
  std::fflush(stdout);
}

void Exit(const ModeScreen* screen) {
  const QMenu* const menu = screen->findChild<QMenuBar*>()->actions().first()->menu();
  menu->actions().last()->trigger();
}

void AnswerTheQuestion(const ModeScreen* screen) {
  auto* const box = screen->findChild<QMessageBox*>();
  if (!box) return Say("no question");
  Say(qPrintable(box->text()));
  const QString answer = Wish("VEXA_TEST_ANSWER");
  if (answer == QStringLiteral("yes")) box->button(QMessageBox::Yes)->click();
  if (answer == QStringLiteral("no")) box->button(QMessageBox::No)->click();
}

void EnterRows(const ModeScreen* screen) {
  auto* const edit = screen->findChild<QWidget*>(QStringLiteral("X"));
  for (const char* value : {"2.5", "4"}) {
    QTest::keyClicks(edit, QString::fromLatin1(value));
    QTest::keyClick(edit, Qt::Key_Return);
  }
}

void SayWhatIsShown(const ModeScreen* screen) {
  const auto* const table = screen->findChild<QTableView*>();
  const auto* const total = screen->findChild<QLabel*>(QStringLiteral("Total"));
  Say(qPrintable(
      QStringLiteral("%1 rows, total %2").arg(table->model()->rowCount()).arg(total->text())));
}

void Restore(const ModeScreen* screen) {
  auto* const key = screen->findChild<QAbstractButton*>(QStringLiteral("Restore"));
  if (!key->isVisible()) return Say("nothing to restore");
  key->click();
  SayWhatIsShown(screen);
}

void Load(const ModeScreen* screen, const QString& path) {
  // The progress is shown at once.
  ProgressBox::patienceMs = 0;
  file_dialogs::AddNextAnswer(path);
  QTimer::singleShot(0, qApp, [] { Say("loading"); });
  screen->findChild<QAbstractButton*>(QStringLiteral("Load"))->click();
  // A signal that came meanwhile stopped it.
  if (!screen->isVisible()) return;
  SayWhatIsShown(screen);
}

void Use() {
  const ModeScreen* const screen = Screen();
  if (!screen) {
    QTimer::singleShot(10, qApp, Use);
    return;
  }
  screen->findChild<QWidget*>(QStringLiteral("X"))->setFocus();
  if (!Wish("VEXA_TEST_LOAD").isEmpty()) return Load(screen, Wish("VEXA_TEST_LOAD"));
  if (Wish("VEXA_TEST_DO") == QStringLiteral("restore")) return Restore(screen);
  EnterRows(screen);
  if (!Wish("VEXA_TEST_SAVE").isEmpty()) file_dialogs::AddNextAnswer(Wish("VEXA_TEST_SAVE"));
  if (Wish("VEXA_TEST_DO") == QStringLiteral("exit")) {
    Exit(screen);
    AnswerTheQuestion(screen);
  }
  if (Wish("VEXA_TEST_DO") == QStringLiteral("close")) screen->window()->close();
  Say("ready");
}

void StartUser() {
  QTimer::singleShot(0, qApp, Use);
}
Q_COREAPP_STARTUP_FUNCTION(StartUser)

}  // namespace
}  // namespace vexa

int main(int argc, char** argv) {
  return vexa::Application::Run(argc, argv);
}
