#include "app/SingleInstance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

namespace vexa {
namespace {

constexpr const char* kPipeName = "vexa-calculator.instance";
constexpr const char* kConfigFolder = "Vexa Calculator";
/// What a wish may hold at most: such writes into a pipe never mix with others.
constexpr std::size_t kLongestToken = 512;

std::string Environment(const char* name) {
  const char* const value = std::getenv(name);
  return value ? value : "";
}

/// True when nobody but this user can put anything into `folder`.
bool IsPrivate(const std::string& folder) {
  struct stat info {};
  return stat(folder.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == geteuid() &&
         (info.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// The folders for the pipe, best first: the session's, then the one of this user's settings.
std::vector<std::string> Folders() {
  std::vector<std::string> folders;
  if (const std::string runtime = Environment("XDG_RUNTIME_DIR"); runtime.starts_with('/')) {
    folders.push_back(runtime);
  }
  std::string config = Environment("XDG_CONFIG_HOME");
  if (!config.starts_with('/')) config = Environment("HOME") + "/.config";
  config += std::string("/") + kConfigFolder;
  std::error_code ignored;
  if (folders.empty() || !IsPrivate(folders.front())) {
    std::filesystem::create_directories(config, ignored);
  }
  folders.push_back(config);
  return folders;
}

/// Opens this user's pipe at `path`, creating it and replacing anything else that stands there.
int OpenPipe(const std::string& path) {
  constexpr int kTries = 2;
  for (int n = 0; n < kTries; ++n) {
    mkfifo(path.c_str(), S_IRUSR | S_IWUSR);
    // For reading and writing: a pipe without a writer would report its end again and again.
    const int pipe = open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW);
    struct stat info {};
    if (pipe >= 0 && fstat(pipe, &info) == 0 && S_ISFIFO(info.st_mode) &&
        info.st_uid == geteuid()) {
      return pipe;
    }
    if (pipe >= 0) close(pipe);
    if (unlink(path.c_str()) != 0) return -1;
  }
  return -1;
}

/// The desktop's permission to take the focus, which it gave this copy for its start.
std::string ActivationToken() {
  std::string token = Environment("XDG_ACTIVATION_TOKEN");
  if (token.empty()) token = Environment("DESKTOP_STARTUP_ID");
  const bool isUsable = token.size() <= kLongestToken && token.find('\n') == token.npos;
  return isUsable ? token : "";
}

}  // namespace

SingleInstance::SingleInstance() = default;

SingleInstance::~SingleInstance() {
  notifier.reset();
  // The pipe stays: removing it could take it from under a copy that is just starting.
  if (pipe >= 0) close(pipe);
}

bool SingleInstance::Claim() {
  for (const std::string& folder : Folders()) {
    if (!IsPrivate(folder)) continue;
    pipe = OpenPipe(folder + '/' + kPipeName);
    if (pipe >= 0) break;
  }
  if (pipe < 0) return true;
  if (flock(pipe, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return true;
  const std::string wish = ActivationToken() + '\n';
  // A full pipe already holds more wishes than the running copy has been able to grant.
  [[maybe_unused]] const ssize_t written = write(pipe, wish.data(), wish.size());
  return false;
}

void SingleInstance::Listen() {
  if (pipe < 0) return;
  notifier = std::make_unique<QSocketNotifier>(pipe, QSocketNotifier::Read);
  connect(notifier.get(), &QSocketNotifier::activated, this, &SingleInstance::ReadRequests);
}

void SingleInstance::ReadRequests() {
  std::array<char, 4096> buffer;
  ssize_t count = 0;
  while ((count = read(pipe, buffer.data(), buffer.size())) > 0) {
    received.append(buffer.data(), static_cast<std::size_t>(count));
  }
  // Of several wishes, the last one's permission is the freshest.
  const std::size_t end = received.rfind('\n');
  if (end == received.npos) return;
  const std::size_t before = end == 0 ? received.npos : received.rfind('\n', end - 1);
  const std::size_t start = before == received.npos ? 0 : before + 1;
  const QByteArray token(received.data() + start, static_cast<qsizetype>(end - start));
  received.erase(0, end + 1);
  emit FrontRequested(token);
}

}  // namespace vexa
