#pragma once

#include <QWidget>
#include <array>
#include <memory>
#include <string_view>

#include "display/SettingsStore.h"
#include "toolkit/Modes.h"

namespace vexa {

class ModeScreen;
class NoticeBar;
class PlaceKeeper;

/// The program's window: owns the screen of the current mode and switches between the modes.
class MainFrame : public QWidget {
  Q_OBJECT

 public:
  /// Reads the mode and the window's place. `settingsStore` must outlive the frame.
  explicit MainFrame(SettingsStore& settingsStore);
  /// Writes the mode and the window's place, after the screen has written its settings.
  ~MainFrame() override;

  /// Stores the state of the screen that is shown, shows the screen of the mode with this code,
  /// then destroys the one of the mode before.
  void SwitchMode(int code);
  /// Switches to this mode as the menu does: once the screen that is shown has nothing to ask. Not
  /// while a dialog waits for an answer; before the first screen is there it becomes the first.
  void AskForMode(Mode mode);
  /// Hides the frame, then closes it.
  void Exit();
  /// Shows `sentence` in a strip below the screen until the user dismisses it.
  void ShowNotice(const QString& sentence);
  /// Brings the window to the front, or the pop-up window that waits for an answer.
  void BringToFront();

 signals:
  /// The first screen is there.
  void Started();
  void Closed();
  /// A page of the guide was asked for.
  void GuideChosen(std::string_view page);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void ShowFirstScreen();
  void CreateScreen(Mode mode);
  void LayOut();

  SettingsStore& store;
  int modeCode;
  bool firstScreenAsked = false;
  NoticeBar* notices;
  std::unique_ptr<PlaceKeeper> place;
  std::array<std::unique_ptr<ModeScreen>, kModes.size()> screens;
};

}  // namespace vexa
