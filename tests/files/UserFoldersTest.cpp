#include "files/UserFolders.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>

#include "support/TemporaryFolder.h"

namespace vexa {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

/// An environment variable's value, put back afterwards.
class ChangedVariable {
 public:
  ChangedVariable(const char* variable, std::optional<std::string> value) : name(variable) {
    if (const char* const old = std::getenv(name)) before = old;
    Put(value);
  }
  ~ChangedVariable() { Put(before); }

 private:
  void Put(const std::optional<std::string>& value) const {
    if (value) {
      setenv(name, value->c_str(), 1);
    } else {
      unsetenv(name);
    }
  }

  const char* name;
  std::optional<std::string> before;
};

mode_t ModeOf(const fs::path& path) {
  struct stat info {};
  return stat(path.c_str(), &info) == 0 ? info.st_mode & 07777 : 0;
}

TEST(UserFolders, SettingsLieWhereTheEnvironmentSays) {
  struct Row {
    std::optional<std::string> config;
    std::optional<std::string> home;
    std::string folder;
  };
  const passwd* const account = getpwuid(geteuid());
  ASSERT_TRUE(account);
  const std::string ofAccount = std::string(account->pw_dir) + "/.config";
  const Row rows[] = {
      {"/c", "/h", "/c"},       {{}, "/h", "/h/.config"},
      {"", "/h", "/h/.config"}, {"relative", "/h", "/h/.config"},
      {"./c", {}, ofAccount},   {{}, {}, ofAccount},
      {{}, "", ofAccount},      {{}, "relative", ofAccount},
  };
  for (const Row& row : rows) {
    const ChangedVariable config("XDG_CONFIG_HOME", row.config);
    const ChangedVariable home("HOME", row.home);
    EXPECT_EQ(UserSettingsFolder(), row.folder);
  }
}

TEST(UserFolders, NewFoldersAreTheUsersAloneWhateverTheMask) {
  for (const mode_t mask : {0000, 0002, 0022, 0077}) {
    const TemporaryFolder folder;
    const mode_t before = umask(mask);
    EXPECT_FALSE(MakePrivateFolder(folder / "a/b"));
    umask(before);
    EXPECT_EQ(ModeOf(folder / "a"), mode_t{0700});
    EXPECT_EQ(ModeOf(folder / "a/b"), mode_t{0700});
    EXPECT_TRUE(IsPrivateFolder(folder / "a/b"));
  }
}

TEST(UserFolders, AnOpenFolderIsClosedAndTheOneAboveIsNot) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "a");
  fs::create_directory(folder / "a/b");
  chmod((folder / "a").c_str(), 0775);
  chmod((folder / "a/b").c_str(), 0777);
  EXPECT_FALSE(IsPrivateFolder(folder / "a/b"));
  EXPECT_FALSE(MakePrivateFolder(folder / "a/b"));
  EXPECT_TRUE(IsPrivateFolder(folder / "a/b"));
  EXPECT_EQ(ModeOf(folder / "a"), mode_t{0775});
}

TEST(UserFolders, AFileInTheWayIsAnError) {
  const TemporaryFolder folder;
  test::PutBytes(folder / "file", "");
  EXPECT_EQ(MakePrivateFolder(folder / "file"), std::errc::not_a_directory);
  EXPECT_EQ(MakePrivateFolder(folder / "file/below/it"), std::errc::not_a_directory);
  EXPECT_FALSE(IsPrivateFolder(folder / "file"));
}

}  // namespace
}  // namespace vexa
