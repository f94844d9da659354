#include "files/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <thread>

namespace vexa {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPause{5};
/// Tries to replace what stands in the place of the lock's file.
constexpr int kTries = 3;

/// Opens the lock's file. A pipe there must not be waited for, nor a link followed.
std::error_code OpenLockFile(const std::filesystem::path& name, Descriptor& file) {
  std::error_code error;
  for (int n = 0; n < kTries; ++n) {
    constexpr int kFlags = O_RDWR | O_CREAT | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC | O_NOCTTY;
    file = Descriptor(open(name.c_str(), kFlags, S_IRUSR | S_IWUSR));
    struct stat info {};
    if (file && fstat(file.Number(), &info) != 0) return LastError();
    if (file && S_ISREG(info.st_mode)) return {};
    error = file ? make_error_code(std::errc::not_supported) : LastError();
    if (lstat(name.c_str(), &info) != 0 || S_ISREG(info.st_mode)) return error;
    if (unlink(name.c_str()) != 0) return error;
  }
  return error;
}

/// True while `name` is the name of the open file: its last holder may have replaced it.
bool IsStillThere(const std::filesystem::path& name, const Descriptor& file) {
  struct stat opened {};
  struct stat named {};
  return fstat(file.Number(), &opened) == 0 && lstat(name.c_str(), &named) == 0 &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

}  // namespace

std::error_code FileLock::Acquire(const std::filesystem::path& name,
                                  std::chrono::milliseconds patience) {
  const Clock::time_point end = Clock::now() + patience;
  for (;;) {
    Descriptor opened;
    if (const auto error = OpenLockFile(name, opened)) return error;
    const bool isLocked = flock(opened.Number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    if (isLocked && IsStillThere(name, opened)) {
      file = std::move(opened);
      return {};
    }
    if (Clock::now() >= end) return kLockIsTaken;
    std::this_thread::sleep_for(kPause);
  }
}

}  // namespace vexa
