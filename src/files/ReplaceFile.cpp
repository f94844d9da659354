#include "files/ReplaceFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "files/Descriptor.h"

namespace vexa {
namespace fs = std::filesystem;
namespace {

/// What mkostemp replaces by letters and digits that make a free name.
constexpr std::string_view kFreeEnding = "XXXXXX";
/// Links to links: as many as the system itself follows.
constexpr int kMostLinks = 40;
/// Files kept aside: with this many, somebody should look before there are more.
constexpr int kMostKept = 1000;

/// The file that `link` leads to, whether it exists or not.
std::error_code FollowLinks(const fs::path& link, fs::path& target) {
  target = link;
  for (int n = 0; n < kMostLinks; ++n) {
    std::error_code error;
    const fs::path next = fs::read_symlink(target, error);
    if (error) return {};
    target = target.parent_path() / next;
  }
  return make_error_code(std::errc::too_many_symbolic_link_levels);
}

std::error_code WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(file, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) return LastError();
    bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
  }
  // Some file systems cannot be asked for this.
  return fsync(file) == 0 || errno == EINVAL ? std::error_code() : LastError();
}

/// Makes the new name last through a power failure; where that cannot be asked for, it is as good
/// as it gets.
void SyncFolder(const fs::path& folder) {
  const Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened) fsync(opened.Number());
}

bool IsLeftName(std::string_view name, const std::string& file) {
  if (!name.starts_with(file + '.')) return false;
  name.remove_prefix(file.size() + 1);
  return name.size() == kFreeEnding.size() && std::ranges::all_of(name, [](char c) {
           return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
         });
}

}  // namespace

std::error_code ReplaceFile(const fs::path& file, std::string_view bytes) {
  fs::path target;
  if (const auto error = FollowLinks(file, target)) return error;
  std::string name = target.string() + '.' + std::string(kFreeEnding);
  const Descriptor temporary(mkostemp(name.data(), O_CLOEXEC));
  if (!temporary) return LastError();
  std::error_code error = WriteAll(temporary.Number(), bytes);
  if (!error && rename(name.c_str(), target.c_str()) != 0) error = LastError();
  if (error) {
    unlink(name.c_str());
  } else {
    SyncFolder(target.parent_path());
  }
  return error;
}

void RemoveLeftFiles(const fs::path& file) {
  fs::path target;
  if (FollowLinks(file, target)) return;
  std::error_code error;
  for (fs::directory_iterator entry(target.parent_path(), error), end; !error && entry != end;
       entry.increment(error)) {
    struct stat info {};
    const bool isLeft = IsLeftName(entry->path().filename().string(), target.filename()) &&
                        lstat(entry->path().c_str(), &info) == 0 && S_ISREG(info.st_mode) &&
                        info.st_uid == geteuid();
    if (isLeft) unlink(entry->path().c_str());
  }
}

std::error_code MoveAside(const fs::path& file, std::string_view label, fs::path& kept) {
  for (int n = 1; n <= kMostKept; ++n) {
    kept = file;
    kept.replace_extension(label);
    kept += '-' + std::to_string(n);
    kept += file.extension();
    std::error_code error;
    const fs::file_status status = fs::symlink_status(kept, error);
    if (status.type() == fs::file_type::none) return error;
    if (status.type() != fs::file_type::not_found) continue;
    fs::rename(file, kept, error);
    return error;
  }
  return make_error_code(std::errc::file_exists);
}

}  // namespace vexa
