#include "app/SingleInstance.h"

#include <QByteArray>
#include <QSocketNotifier>
#include <optional>
#include <string>
#include <thread>

#include "app/InstanceSocket.h"
#include "display/SettingsLayout.h"
#include "files/UserFolders.h"

namespace vexa {
namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* kLockName = "vexa-calculator.lock";
constexpr std::chrono::milliseconds kPause{20};

/// The folder for lock and socket: the settings' own, for programs with the same settings are the
/// ones that must not run twice; else the session's. Empty when others may write into both.
std::filesystem::path InstanceFolder() {
  if (const std::filesystem::path config = UserSettingsFolder(); !config.empty()) {
    const std::filesystem::path own = config / settings::kSettingsKey;
    if (!MakePrivateFolder(own) && IsPrivateFolder(own)) return own;
  }
  const std::filesystem::path session = Environment("XDG_RUNTIME_DIR");
  return session.is_absolute() && IsPrivateFolder(session) ? session : std::filesystem::path();
}

/// The desktop's permission to take the focus, which it gave this copy for its start.
std::string ActivationToken() {
  const std::string token = Environment("XDG_ACTIVATION_TOKEN");
  return token.empty() ? Environment("DESKTOP_STARTUP_ID") : token;
}

/// Between the parts of a wish: no token of a desktop holds one.
constexpr char kSeparator = '\t';

/// What a running copy is asked for.
std::string WishFor(std::optional<Mode> mode) {
  std::string wish = ActivationToken();
  if (wish.find(kSeparator) != wish.npos) wish.clear();
  if (mode) wish += kSeparator + std::string(kModes[IndexOf(*mode)].word);
  return wish;
}

}  // namespace

SingleInstance::SingleInstance(std::chrono::milliseconds startPatience) : patience(startPatience) {}

SingleInstance::~SingleInstance() = default;

SingleInstance::Role SingleInstance::Claim(std::optional<Mode> mode) {
  folder = InstanceFolder();
  if (folder.empty()) return Role::Only;
  const Clock::time_point end = Clock::now() + patience;
  for (;;) {
    // First, for a copy that runs beside one that hung has no lock.
    const Answered answered = AskRunningCopy(folder, WishFor(mode));
    if (answered == Answered::Yes) return Role::Second;
    if (lock.Acquire(folder / kLockName, std::chrono::milliseconds(0)) != kLockIsTaken) {
      return Role::Only;
    }
    if (answered == Answered::No || Clock::now() >= end) return Role::Beside;
    std::this_thread::sleep_for(kPause);
  }
}

void SingleInstance::Listen() {
  if (folder.empty() || notifier) return;
  listener = ListenForCopies(folder);
  if (!listener) return;
  notifier = std::make_unique<QSocketNotifier>(listener.Number(), QSocketNotifier::Read);
  connect(notifier.get(), &QSocketNotifier::activated, this, &SingleInstance::Answer);
}

void SingleInstance::StopListening() {
  // This may run inside the notifier's own signal.
  if (notifier) notifier.release()->deleteLater();
  listener = Descriptor();
}

void SingleInstance::Answer() {
  while (std::optional<CopyRequest> request = TakeRequest(listener)) {
    const QByteArray wish = QByteArray::fromStdString(request->token);
    const qsizetype end = wish.indexOf(kSeparator);
    emit FrontRequested(end < 0 ? wish : wish.left(end),
                        end < 0 ? QByteArray() : wish.mid(end + 1));
    request->Grant();
  }
}

}  // namespace vexa
