#include "app/Application.h"

#include <signal.h>

#include <QApplication>
#include <QTimer>
#include <chrono>

#include "app/MainFrame.h"
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

}  // namespace

int Application::Run(int argc, char** argv) {
  // First of all: a second copy ends without touching the settings. Its place is free when
  // everything below has gone, the last settings saved.
  SingleInstance instance;
  const SingleInstance::Role role = instance.Claim();
  if (role == SingleInstance::Role::Second) return 0;

  // A file that may not grow further is a write that fails, and no reason to die.
  signal(SIGXFSZ, SIG_IGN);

  QApplication application(argc, argv);
  application.setApplicationName(FromWide(settings::kSettingsKey));
  application.setDesktopFileName(QStringLiteral("vexa-calculator"));
  application.setStyle(new TouchStyle);
  application.setFont(theme::ProgramFont(application.font()));
  // The frame ends the program, not the last of its boxes.
  application.setQuitOnLastWindowClosed(false);

  TerminationSignals termination;
  FileSettingsStore store;
  store.SetSettingsKey(settings::kSettingsKey);
  SettingsSaver saver(store);
  MainFrame frame(store);
  QObject::connect(&saver, &SettingsSaver::NoticeRaised, &frame, &MainFrame::ShowNotice);
  QObject::connect(&frame, &MainFrame::Closed, &application, [&instance] {
    instance.StopListening();
    QCoreApplication::exit(0);
  });
  QObject::connect(&termination, &TerminationSignals::TerminationRequested, &frame,
                   &MainFrame::Exit);
  QObject::connect(&instance, &SingleInstance::FrontRequested, &frame,
                   [&frame](const QByteArray& activationToken) {
                     if (!activationToken.isEmpty()) qputenv(kActivationToken, activationToken);
                     frame.BringToFront();
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
