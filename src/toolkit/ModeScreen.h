#pragma once

#include <QAction>
#include <QWidget>
#include <functional>

#include "toolkit/Modes.h"

class QMenu;
class QMenuBar;
class QPushButton;
class QVBoxLayout;

namespace vexa {

/// What the screens of all modes share: the "File" and "Mode" menus, the default button, and
/// telling the frame what was chosen. A screen never knows the frame.
class ModeScreen : public QWidget {
  Q_OBJECT

 public:
  ModeScreen(Mode mode, QWidget* parent);

  /// Says that the mode with this code was chosen, once nothing stands against leaving.
  void LeaveFor(int code);

  /// Stores what the user has changed, if it is not stored already: before another mode's screen
  /// reads it, and before the screen goes.
  virtual void StoreState() {}

 signals:
  /// Another mode was chosen: its stored code.
  void ModeChosen(int code);
  void ExitChosen();
  /// What explains this screen was chosen, or what explains the keys.
  void GuideChosen();
  void KeysChosen();

 protected:
  /// Another mode or the exit was chosen: runs `leave` once nothing stands against it. A screen
  /// with something to ask first asks, and runs it after the answer. The frame itself can go at any
  /// time, without this.
  virtual void PrepareToLeave(const std::function<void()>& leave) { leave(); }

  /// Enter runs `button`, whatever control has the focus.
  void SetDefaultButton(QPushButton* button);
  /// Adds a command to the "File" menu, before "Exit".
  template <typename Receiver>
  QAction* AddFileCommand(const QString& text, Receiver* receiver, void (Receiver::*run)()) {
    QAction* const action = NewFileCommand(text);
    connect(action, &QAction::triggered, receiver, run);
    return action;
  }
  /// Adds a menu between "File" and "Mode".
  QMenu* AddMenu(const QString& title);
  /// The commands of an "Edit" menu.
  enum class EditCommand { Cut, Copy, Paste };
  /// Adds an "Edit" menu, whose commands `run` carries out.
  QMenu* AddEditMenu(std::function<void(EditCommand)> run);
  /// The layout of the screen's controls, below the menus.
  QVBoxLayout* Content() const { return content; }

  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildFileMenu();
  QAction* NewFileCommand(const QString& text);
  void BuildModeMenu(Mode mode);
  void BuildHelpMenu();
  void Exit();
  void ShowAbout();

  QVBoxLayout* content;
  QMenuBar* menuBar;
  QMenu* fileMenu = nullptr;
  QAction* exitAction = nullptr;
  QAction* modeMenuAction = nullptr;
  QPushButton* defaultButton = nullptr;
};

}  // namespace vexa
