#include "files/ReplaceFile.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "files/ReadFile.h"
#include "support/TemporaryFolder.h"

namespace vexa {
namespace {

namespace fs = std::filesystem;
using test::Bytes;
using test::PutBytes;
using test::TemporaryFolder;

std::size_t FileCount(const fs::path& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
}

TEST(ReadFile, ReadsWholeFilesOfTheLengthAllowed) {
  const TemporaryFolder folder;
  const std::string content(200'000, 'x');
  PutBytes(folder / "f", content);
  std::string bytes = "before";
  EXPECT_FALSE(ReadFile(folder / "f", content.size(), bytes));
  EXPECT_TRUE(bytes == content);
  EXPECT_EQ(ReadFile(folder / "f", content.size() - 1, bytes), std::errc::file_too_large);
  EXPECT_EQ(ReadFile(folder / "none", 1, bytes), std::errc::no_such_file_or_directory);
}

TEST(ReadFile, AFileThatSaysItIsEmptyIsReadToItsEnd) {
  std::string bytes;
  EXPECT_FALSE(ReadFile("/proc/self/status", 100'000, bytes));
  EXPECT_TRUE(bytes.starts_with("Name:"));
}

TEST(ReadFile, RefusesWhatIsNoFileWithoutWaiting) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  std::string bytes;
  for (const fs::path& path : {folder / "pipe", folder.path, fs::path("/dev/zero")}) {
    EXPECT_EQ(ReadFile(path, 100, bytes), std::errc::not_supported) << path;
  }
}

TEST(ReplaceFile, CreatesAndReplacesForTheUserAlone) {
  const TemporaryFolder folder;
  const mode_t before = umask(0);
  EXPECT_FALSE(ReplaceFile(folder / "f", "one"));
  EXPECT_EQ(Bytes(folder / "f"), "one");
  chmod((folder / "f").c_str(), 0666);
  EXPECT_FALSE(ReplaceFile(folder / "f", "two"));
  umask(before);
  EXPECT_EQ(Bytes(folder / "f"), "two");
  struct stat info {};
  ASSERT_EQ(stat((folder / "f").c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 07777, mode_t{0600});
  EXPECT_EQ(FileCount(folder.path), 1U);
}

TEST(ReplaceFile, FollowsLinks) {
  const TemporaryFolder folder;
  PutBytes(folder / "a/target", "old");
  fs::create_symlink("a/target", folder / "second");
  fs::create_symlink("second", folder / "first");
  EXPECT_FALSE(ReplaceFile(folder / "first", "new"));
  EXPECT_EQ(Bytes(folder / "a/target"), "new");
  EXPECT_TRUE(fs::is_symlink(folder / "first") && fs::is_symlink(folder / "second"));
}

TEST(ReplaceFile, FollowsALinkToAFileThatIsNotThereYet) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "a");
  fs::create_symlink(folder / "a/target", folder / "link");
  EXPECT_FALSE(ReplaceFile(folder / "link", "new"));
  EXPECT_EQ(Bytes(folder / "a/target"), "new");
  fs::create_symlink(folder / "nowhere/target", folder / "dangling");
  EXPECT_EQ(ReplaceFile(folder / "dangling", "new"), std::errc::no_such_file_or_directory);
  EXPECT_TRUE(fs::is_symlink(folder / "dangling"));
}

TEST(ReplaceFile, LinksInACircleAreAnError) {
  const TemporaryFolder folder;
  fs::create_symlink("b", folder / "a");
  fs::create_symlink("a", folder / "b");
  EXPECT_EQ(ReplaceFile(folder / "a", "new"), std::errc::too_many_symbolic_link_levels);
}

TEST(ReplaceFile, AFullDiskKeepsTheOldContentAndLeavesNothing) {
  const TemporaryFolder folder;
  PutBytes(folder / "f", "old");
  // A limit on the size of files stands in for a full disk: each larger write fails.
  signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
  const rlimit full{1000, limit.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
  const std::error_code error = ReplaceFile(folder / "f", std::string(5000, 'x'));
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  EXPECT_EQ(error, std::errc::file_too_large);
  EXPECT_EQ(Bytes(folder / "f"), "old");
  EXPECT_EQ(FileCount(folder.path), 1U);
}

TEST(ReplaceFile, AKillAtAnyTimeLeavesOldOrNewAndWhatIsLeftIsRemoved) {
  const TemporaryFolder folder;
  const std::string contents[] = {std::string(300'000, 'a'), std::string(300'000, 'b')};
  PutBytes(folder / "f", contents[0]);
  bool sawLeftFile = false;
  // How far a child comes is chance: most of these are killed while they write.
  for (int n = 0; n < 200 && !sawLeftFile; ++n) {
    const pid_t child = fork();
    if (child == 0) {
      for (std::size_t i = 0;; ++i) {
        if (ReplaceFile(folder / "f", contents[i % 2])) _exit(1);
      }
    }
    usleep(static_cast<unsigned>(500 + 37 * n));
    kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    const std::string left = Bytes(folder / "f");
    ASSERT_TRUE(left == contents[0] || left == contents[1]);
    sawLeftFile = FileCount(folder.path) > 1;
  }
  EXPECT_TRUE(sawLeftFile);
  RemoveLeftFiles(folder / "f");
  EXPECT_EQ(FileCount(folder.path), 1U);
}

TEST(ReplaceFile, OnlyLeftFilesAreRemoved) {
  const TemporaryFolder folder;
  const char* const others[] = {"f", "f.lock", "f.abcde", "f.abcdefg", "f.abc-ef", "g.abcdef"};
  for (const char* const name : others) PutBytes(folder / name, "");
  fs::create_directory(folder / "f.folder");
  fs::create_symlink("f", folder / "f.linked");
  PutBytes(folder / "f.aB3xyZ", "");
  RemoveLeftFiles(folder / "f");
  EXPECT_FALSE(fs::exists(folder / "f.aB3xyZ"));
  EXPECT_EQ(FileCount(folder.path), std::size(others) + 2);
}

TEST(MoveAside, TakesAFreeNameAndTellsIt) {
  const TemporaryFolder folder;
  for (int n = 1; n <= 3; ++n) {
    PutBytes(folder / "settings.json", std::to_string(n));
    fs::path kept;
    EXPECT_FALSE(MoveAside(folder / "settings.json", "damaged", kept));
    EXPECT_EQ(kept, folder / ("settings.damaged-" + std::to_string(n) + ".json"));
    EXPECT_EQ(Bytes(kept), std::to_string(n));
  }
  EXPECT_FALSE(fs::exists(folder / "settings.json"));
}

TEST(MoveAside, WithoutAFreeNameNothingIsMoved) {
  const TemporaryFolder folder;
  for (int n = 1; n <= 1000; ++n) {
    PutBytes(folder / ("f.old-" + std::to_string(n)), "");
  }
  PutBytes(folder / "f", "x");
  fs::path kept;
  EXPECT_EQ(MoveAside(folder / "f", "old", kept), std::errc::file_exists);
  EXPECT_EQ(Bytes(folder / "f"), "x");
}

}  // namespace
}  // namespace vexa
