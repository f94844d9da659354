#include "toolkit/ModeScreen.h"

#include <QActionGroup>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "display/WideText.h"
#include "toolkit/AboutBox.h"

namespace vexa {
namespace {

constexpr int kMargin = 4;
constexpr int kGap = 4;

}  // namespace

ModeScreen::ModeScreen(Mode mode, QWidget* parent)
    : QWidget(parent), content(new QVBoxLayout(this)), menuBar(new QMenuBar(this)) {
  content->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  content->setSpacing(kGap);
  content->setMenuBar(menuBar);
  // The screen covers the frame, which shows a text of its own.
  setAutoFillBackground(true);
  BuildFileMenu();
  BuildModeMenu(mode);
  BuildHelpMenu();
}

void ModeScreen::BuildFileMenu() {
  fileMenu = menuBar->addMenu(QStringLiteral("&File"));
  exitAction = fileMenu->addAction(QStringLiteral("E&xit"), this, &ModeScreen::Exit);
  exitAction->setShortcuts(QKeySequence::Quit);
  AddFileCommand(QStringLiteral("&About..."), this, &ModeScreen::ShowAbout);
}

QAction* ModeScreen::NewFileCommand(const QString& text) {
  auto* const action = new QAction(text, fileMenu);
  fileMenu->insertAction(exitAction, action);
  return action;
}

void ModeScreen::BuildModeMenu(Mode mode) {
  QMenu* const menu = menuBar->addMenu(QStringLiteral("&Mode"));
  modeMenuAction = menu->menuAction();
  auto* const group = new QActionGroup(menu);
  for (const ModeName& entry : kModes) {
    const int code = static_cast<int>(entry.mode);
    // The names begin with a character each, which chooses them.
    const QString text = u'&' + FromWide(entry.name);
    // The own mode is not left.
    QAction* const action =
        entry.mode == mode ? menu->addAction(text, this, [this, code] { emit ModeChosen(code); })
                           : menu->addAction(text, this, [this, code] { LeaveFor(code); });
    action->setCheckable(true);
    action->setChecked(entry.mode == mode);
    group->addAction(action);
  }
}

void ModeScreen::BuildHelpMenu() {
  QMenu* const menu = menuBar->addMenu(tr("&Help"));
  // F1 is the whole program's, in dialogs too: here it is only shown.
  menu->addAction(tr("&Guide") + QStringLiteral("\tF1"), this, &ModeScreen::GuideChosen);
  menu->addAction(tr("&Keys and Functions"), this, &ModeScreen::KeysChosen);
}

void ModeScreen::LeaveFor(int code) {
  PrepareToLeave([this, code] { emit ModeChosen(code); });
}

void ModeScreen::Exit() {
  PrepareToLeave([this] { emit ExitChosen(); });
}

QMenu* ModeScreen::AddMenu(const QString& title) {
  auto* const menu = new QMenu(title, menuBar);
  menuBar->insertMenu(modeMenuAction, menu);
  return menu;
}

QMenu* ModeScreen::AddEditMenu(std::function<void(EditCommand)> run) {
  struct EditAction {
    EditCommand command;
    const char* text;
    QKeySequence::StandardKey shortcut;
  };
  constexpr EditAction kEditActions[] = {
      {EditCommand::Cut, "Cu&t", QKeySequence::Cut},
      {EditCommand::Copy, "&Copy", QKeySequence::Copy},
      {EditCommand::Paste, "&Paste", QKeySequence::Paste},
  };
  QMenu* const menu = AddMenu(QStringLiteral("&Edit"));
  for (const EditAction& entry : kEditActions) {
    QAction* const action = menu->addAction(QString::fromLatin1(entry.text), this,
                                            [run, command = entry.command] { run(command); });
    action->setShortcuts(entry.shortcut);
  }
  return menu;
}

void ModeScreen::SetDefaultButton(QPushButton* button) {
  if (defaultButton) defaultButton->setDefault(false);
  defaultButton = button;
  button->setDefault(true);
}

void ModeScreen::ShowAbout() {
  ShowAboutBox(this);
}

void ModeScreen::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && defaultButton) {
    // A key that is held down runs it once: nobody means what comes of more.
    if (!event->isAutoRepeat()) defaultButton->click();
    return;
  }
  QWidget::keyPressEvent(event);
}

}  // namespace vexa
