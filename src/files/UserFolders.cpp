#include "files/UserFolders.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>

#include "files/Descriptor.h"

namespace vexa {
namespace {

/// The home folder that the system's list of accounts names for this user.
std::string AccountHome() {
  constexpr std::size_t kLongestEntry = 16384;
  std::vector<char> texts(kLongestEntry);
  passwd entry{};
  passwd* found = nullptr;
  const bool isRead = getpwuid_r(geteuid(), &entry, texts.data(), texts.size(), &found) == 0;
  return isRead && found && found->pw_dir ? found->pw_dir : "";
}

/// Creates what is missing of `folder`; what is there stays as it is.
std::error_code MakeFolders(const std::filesystem::path& folder) {
  std::error_code error;
  if (std::filesystem::is_directory(folder, error)) return {};
  if (std::filesystem::exists(folder, error)) return make_error_code(std::errc::not_a_directory);
  if (const auto parent = folder.parent_path(); !parent.empty() && parent != folder) {
    if (const auto failure = MakeFolders(parent)) return failure;
  }
  // Another program may have been faster.
  return mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST ? std::error_code() : LastError();
}

}  // namespace

std::string Environment(const char* name) {
  const char* const value = std::getenv(name);
  return value ? value : "";
}

std::filesystem::path UserSettingsFolder() {
  if (std::filesystem::path config = Environment("XDG_CONFIG_HOME"); config.is_absolute()) {
    return config;
  }
  for (const std::filesystem::path home : {Environment("HOME"), AccountHome()}) {
    if (home.is_absolute()) return home / ".config";
  }
  return {};
}

bool IsPrivateFolder(const std::filesystem::path& folder) {
  struct stat info {};
  return stat(folder.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == geteuid() &&
         (info.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

std::error_code MakePrivateFolder(const std::filesystem::path& folder) {
  if (const auto error = MakeFolders(folder)) return error;
  struct stat info {};
  if (stat(folder.c_str(), &info) != 0) return LastError();
  const bool isOpen = (info.st_mode & (S_IRWXG | S_IRWXO)) != 0;
  // Where this is refused, what is done in the folder says why.
  if (isOpen && info.st_uid == geteuid()) chmod(folder.c_str(), S_IRWXU);
  return {};
}

}  // namespace vexa
