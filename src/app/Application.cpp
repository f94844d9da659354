#include "app/Application.h"

#include <signal.h>

#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "app/CommandLine.h"
#include "app/FontsAhead.h"
#include "app/MainFrame.h"
#include "app/ProgramGuide.h"
#include "app/SettingsSaver.h"
#include "app/SingleInstance.h"
#include "app/TerminationSignals.h"
#include "display/FileSettingsStore.h"
#include "display/SettingsLayout.h"
#include "display/WideText.h"
#include "toolkit/Theme.h"
#include "toolkit/TouchStyle.h"

namespace vexa {
namespace {

/// Where the window system looks for the permission to take the focus.
constexpr const char* kActivationToken = "XDG_ACTIVATION_TOKEN";
constexpr std::chrono::seconds kLongestStart{3};
constexpr const char* kBesideAnother =
    "Another copy of this program runs and does not answer. This one was started beside it.";

int Print(std::FILE* file, const std::string& text, int status) {
  std::fputs(text.c_str(), file);
  return status;
}

/// Until Stop, what makes the toolkit give up, a display that is missing or refuses, is one plain
/// sentence and an ordinary end, and not an abort.
class EndWithoutDisplay {
 public:
  EndWithoutDisplay() : former(qInstallMessageHandler(&Handle)) {}
  void Stop() { qInstallMessageHandler(former); }

 private:
  static void Handle(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    std::fputs("Vexa Calculator needs a display, and there is none that it can use.\n", stderr);
    std::_Exit(EXIT_FAILURE);
  }

  QtMessageHandler former;
};

/// The icon in the sizes that it is drawn for.
QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    icon.addFile(QStringLiteral(":/icons/%1.png").arg(size));
  }
  return icon;
}

}  // namespace

int Application::Run(int argc, char** argv) {
  const CommandLine asked =
      ReadCommandLine(std::vector<std::string_view>(argv + std::min(argc, 1), argv + argc));
  if (!asked.error.empty()) return Print(stderr, asked.error, kWrongUse);
  if (!asked.answer.empty()) return Print(stdout, asked.answer, EXIT_SUCCESS);

  // First of all: a second copy ends without touching the settings. Its place is free when
  // everything below has gone, the last settings saved.
  SingleInstance instance;
  const SingleInstance::Role role = instance.Claim(asked.mode);
  if (role == SingleInstance::Role::Second) return 0;

  // A file that may not grow further is a write that fails, and no reason to die.
  signal(SIGXFSZ, SIG_IGN);

  const FontsAhead fonts;
  EndWithoutDisplay refusing;
  QApplication application(argc, argv);
  refusing.Stop();
  application.setApplicationName(FromWide(settings::kSettingsKey));
  application.setDesktopFileName(QStringLiteral("org.vexa.calculator"));
  application.setWindowIcon(ProgramIcon());
  application.setStyle(new TouchStyle);
  application.setFont(theme::ProgramFont(application.font()));
  // The frame ends the program, not the last of its boxes.
  application.setQuitOnLastWindowClosed(false);

  TerminationSignals termination;
  FileSettingsStore store;
  store.SetSettingsKey(settings::kSettingsKey);
  SettingsSaver saver(store);
  MainFrame frame(store);
  if (asked.mode) frame.AskForMode(*asked.mode);
  ProgramGuide guide;
  QObject::connect(&frame, &MainFrame::GuideChosen, &frame,
                   [&guide](std::string_view page) { guide.Show(page); });
  QObject::connect(&saver, &SettingsSaver::NoticeRaised, &frame, &MainFrame::ShowNotice);
  QObject::connect(&frame, &MainFrame::Closed, &application, [&instance] {
    instance.StopListening();
    QCoreApplication::exit(0);
  });
  QObject::connect(&termination, &TerminationSignals::TerminationRequested, &frame,
                   &MainFrame::Exit);
  QObject::connect(&instance, &SingleInstance::FrontRequested, &frame,
                   [&frame](const QByteArray& activationToken, const QByteArray& modeWord) {
                     if (!activationToken.isEmpty()) qputenv(kActivationToken, activationToken);
                     frame.BringToFront();
                     if (const auto mode = ModeOfWord(modeWord.toStdString())) {
                       frame.AskForMode(*mode);
                     }
                   });
  // Not before it can answer: who asks meanwhile waits. A window that is not painted, because it
  // starts minimised, can answer too.
  QObject::connect(&frame, &MainFrame::Started, &instance, &SingleInstance::Listen);
  QTimer::singleShot(kLongestStart, &instance, &SingleInstance::Listen);
  if (role == SingleInstance::Role::Beside) frame.ShowNotice(QString::fromLatin1(kBesideAnother));
  frame.show();
  return application.exec();
}

}  // namespace vexa
