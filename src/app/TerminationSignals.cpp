#include "app/TerminationSignals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QSocketNotifier>
#include <cerrno>

namespace vexa {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

/// A handler may do next to nothing, so it writes into this pipe, which the event loop reads.
int signalPipe[2] = {-1, -1};

void HandleSignal(int) {
  const int savedError = errno;
  const char note = 1;
  // A full pipe already says that the program is to end.
  [[maybe_unused]] const ssize_t written = write(signalPipe[1], &note, 1);
  errno = savedError;
}

void SetHandler(int signalNumber, void (*handler)(int)) {
  struct sigaction current {};
  // A signal that the starter chose to ignore, as nohup does, stays ignored.
  if (sigaction(signalNumber, nullptr, &current) == 0 && current.sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  sigaction(signalNumber, &action, nullptr);
}

}  // namespace

TerminationSignals::TerminationSignals() {
  connect(qGuiApp, &QGuiApplication::commitDataRequest, this,
          &TerminationSignals::TerminationRequested);
  if (pipe2(signalPipe, O_NONBLOCK | O_CLOEXEC) != 0) return;
  notifier = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
  connect(notifier.get(), &QSocketNotifier::activated, this, &TerminationSignals::ReadSignals);
  for (const int signalNumber : kSignals) SetHandler(signalNumber, HandleSignal);
}

TerminationSignals::~TerminationSignals() {
  if (!notifier) return;
  for (const int signalNumber : kSignals) SetHandler(signalNumber, SIG_DFL);
  notifier.reset();
  for (int& end : signalPipe) {
    close(end);
    end = -1;
  }
}

void TerminationSignals::ReadSignals() {
  char notes[16];
  while (read(signalPipe[0], notes, sizeof notes) > 0) {
  }
  emit TerminationRequested();
}

}  // namespace vexa
