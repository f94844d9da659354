#include "files/SettingsFile.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <fstream>

#include "files/SettingsJson.h"
#include "support/TemporaryFolder.h"

namespace vexa {
namespace {

namespace fs = std::filesystem;
using test::Bytes;
using test::PutBytes;

const SettingName kMode{L"Config", L"Mode"};
const SettingName kAngle{L"Config", L"Angle Type"};

class SettingsFileTest : public ::testing::Test {
 protected:
  fs::path Name(std::string_view file = "settings.json") const { return temporary / "own" / file; }
  SettingsFile Open() const { return SettingsFile(temporary / "own"); }
  SettingsValues Stored() const {
    const SettingsValues damaged{{{L"damaged", L""}, 0}};
    return ParseSettings(Bytes(Name())).value_or(damaged);
  }
  static int Integer(SettingsFile& file, const SettingName& name) {
    const SettingValue* const value = file.Find(name);
    return value && std::holds_alternative<int>(*value) ? std::get<int>(*value) : -1;
  }
  static std::wstring Text(SettingsFile& file, const SettingName& name) {
    const SettingValue* const value = file.Find(name);
    return value && value->index() == 1 ? std::get<std::wstring>(*value) : L"none";
  }

  test::TemporaryFolder temporary;
};

TEST_F(SettingsFileTest, WhatIsSavedIsFoundAgain) {
  SettingsFile file = Open();
  EXPECT_FALSE(file.Find(kMode));
  file.Set(kMode, 3);
  file.Set({L"Macro0", L"Formula"}, L"X*2");
  EXPECT_TRUE(file.Save());
  SettingsFile again = Open();
  EXPECT_EQ(Integer(again, kMode), 3);
  EXPECT_EQ(Text(again, {L"Macro0", L"Formula"}), L"X*2");
  EXPECT_TRUE(again.TakeNotices().empty());
}

TEST_F(SettingsFileTest, FileAndFolderAreTheUsersAloneWhateverTheMask) {
  const mode_t before = umask(0);
  SettingsFile file = Open();
  file.Set(kMode, 1);
  EXPECT_TRUE(file.Save());
  umask(before);
  for (const auto& [name, mode] : {std::pair(Name(), 0600),
                                   {Name("settings.json.lock"), 0600},
                                   {Name().parent_path(), 0700}}) {
    struct stat info {};
    ASSERT_EQ(stat(name.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, static_cast<mode_t>(mode)) << name;
  }
}

TEST_F(SettingsFileTest, AFileThatWasRemovedIsWrittenAnewWhole) {
  SettingsFile file = Open();
  file.Set(kMode, 3);
  file.Set(kAngle, 2);
  EXPECT_TRUE(file.Save());
  fs::remove(Name());
  EXPECT_EQ(Integer(file, kMode), 3);
  file.Set(kMode, 4);
  EXPECT_TRUE(file.Save());
  EXPECT_EQ(Stored(), (SettingsValues{{kMode, 4}, {kAngle, 2}}));
}

TEST_F(SettingsFileTest, WithoutAFolderNothingIsReadFromTheCurrentOne) {
  PutBytes(Name(), "{\"Config\":{\"Mode\":2}}");
  const fs::path before = fs::current_path();
  fs::current_path(Name().parent_path());
  SettingsFile file{fs::path()};
  EXPECT_FALSE(file.Find(kMode));
  fs::current_path(before);
}

TEST_F(SettingsFileTest, WithoutAChangeNothingIsWritten) {
  PutBytes(Name(), "{\"Config\":{\"Mode\":2}}");
  SettingsFile file = Open();
  EXPECT_EQ(Integer(file, kMode), 2);
  file.Set(kMode, 2);
  EXPECT_TRUE(file.Save());
  EXPECT_EQ(Bytes(Name()), "{\"Config\":{\"Mode\":2}}");
}

TEST_F(SettingsFileTest, WhatOthersWriteIsFoundAndKept) {
  SettingsFile first = Open();
  SettingsFile second = Open();
  first.Set(kMode, 2);
  EXPECT_TRUE(first.Save());
  EXPECT_EQ(Integer(second, kMode), 2);
  second.Set(kAngle, 1);
  EXPECT_TRUE(second.Save());
  EXPECT_EQ(Integer(first, kAngle), 1);
  first.Set(kAngle, 2);
  EXPECT_EQ(Integer(first, kAngle), 2);
  EXPECT_TRUE(first.Save());
  EXPECT_EQ(Integer(second, kAngle), 2);
  EXPECT_EQ(Integer(second, kMode), 2);
}

TEST_F(SettingsFileTest, WhatIsSetAsItWasFoundIsLeftToOthers) {
  PutBytes(Name(), "{\"Config\":{\"Mode\":1,\"Angle Type\":1}}");
  SettingsFile first = Open();
  EXPECT_EQ(Integer(first, kAngle), 1);
  SettingsFile second = Open();
  second.Set(kAngle, 2);
  EXPECT_TRUE(second.Save());
  first.Set(kAngle, 1);
  first.Set(kMode, 2);
  EXPECT_TRUE(first.Save());
  EXPECT_EQ(Stored(), (SettingsValues{{kAngle, 2}, {kMode, 2}}));
}

TEST_F(SettingsFileTest, FourProcessesWritingAtOnceLoseNothing) {
  constexpr int kWriters = 4;
  constexpr int kEntries = 1000;
  constexpr int kEntriesPerSave = 50;
  for (int writer = 0; writer < kWriters; ++writer) {
    if (fork() != 0) continue;
    SettingsFile file = Open();
    for (int n = 0; n < kEntries; ++n) {
      file.Set({L"Writer" + std::to_wstring(writer), L"Entry" + std::to_wstring(n)}, n);
      if (n % kEntriesPerSave == 0) file.Save();
    }
    // The lock is not handed out in turns: who has to wait for too long tries again.
    while (!file.Save()) {
    }
    _exit(0);
  }
  for (int writer = 0; writer < kWriters; ++writer) {
    int status = -1;
    ASSERT_GT(wait(&status), 0);
    EXPECT_EQ(status, 0);
  }
  SettingsValues expected;
  for (int writer = 0; writer < kWriters; ++writer) {
    for (int n = 0; n < kEntries; ++n) {
      expected[{L"Writer" + std::to_wstring(writer), L"Entry" + std::to_wstring(n)}] = n;
    }
  }
  EXPECT_TRUE(Stored() == expected);
}

TEST_F(SettingsFileTest, ADamagedFileIsKeptAsideAndSaidOnce) {
  const std::string damaged[] = {"{\"Config\":{\"Mode\":2}", "garbage", "[Config]\nMode=2\n",
                                 std::string("\0\0", 2), "{\"Config\":{\"Mode\":\"\xFF\"}}"};
  int n = 0;
  for (const std::string& bytes : damaged) {
    PutBytes(Name(), bytes);
    const std::string kept = "settings.damaged-" + std::to_string(++n) + ".json";
    SettingsFile file = Open();
    EXPECT_FALSE(file.Find(kMode));
    EXPECT_EQ(file.TakeNotices(),
              std::vector{L"The settings file could not be read. It is kept as settings.damaged-" +
                          std::to_wstring(n) + L".json."});
    EXPECT_TRUE(file.TakeNotices().empty());
    EXPECT_EQ(Bytes(Name(kept)), bytes);
    file.Set(kMode, n);
    EXPECT_TRUE(file.Save());
    EXPECT_TRUE(file.TakeNotices().empty());
    EXPECT_EQ(Stored(), (SettingsValues{{kMode, n}}));
    EXPECT_EQ(Bytes(Name(kept)), bytes);
  }
}

TEST_F(SettingsFileTest, WhatIsNoFileIsKeptAside) {
  fs::create_directories(Name() / "inner");
  SettingsFile file = Open();
  EXPECT_TRUE(fs::is_directory(Name("settings.damaged-1.json") / "inner"));
  ASSERT_EQ(mkfifo(Name().c_str(), 0600), 0);
  SettingsFile again = Open();
  EXPECT_TRUE(fs::is_fifo(Name("settings.damaged-2.json")));
  again.Set(kMode, 3);
  EXPECT_TRUE(again.Save());
  EXPECT_EQ(Stored(), (SettingsValues{{kMode, 3}}));
}

TEST_F(SettingsFileTest, AFileTooLargeIsKeptAsideAndNotRead) {
  PutBytes(Name(), "{}");
  fs::resize_file(Name(), kLargestSettingsFile + 1);
  SettingsFile file = Open();
  EXPECT_EQ(fs::file_size(Name("settings.damaged-1.json")), kLargestSettingsFile + 1);
}

TEST_F(SettingsFileTest, MoreThanWouldBeReadIsNotWritten) {
  SettingsFile file = Open();
  file.Set(kMode, 3);
  EXPECT_TRUE(file.Save());
  file.Set({L"Macro0", L"Name"}, std::wstring(kLargestSettingsFile, L'x'));
  EXPECT_FALSE(file.Save());
  EXPECT_EQ(Stored(), (SettingsValues{{kMode, 3}}));
  EXPECT_EQ(file.TakeNotices().size(), 1U);
  file.Set({L"Macro0", L"Name"}, L"short");
  EXPECT_TRUE(file.Save());
}

TEST_F(SettingsFileTest, DamageWhileTheProgramRunsLosesNothing) {
  SettingsFile file = Open();
  file.Set(kMode, 3);
  EXPECT_TRUE(file.Save());
  PutBytes(Name(), "garbage");
  EXPECT_EQ(Integer(file, kMode), 3);
  EXPECT_TRUE(file.TakeNotices().empty());
  file.Set(kAngle, 2);
  EXPECT_TRUE(file.Save());
  EXPECT_EQ(Stored(), (SettingsValues{{kAngle, 2}, {kMode, 3}}));
  EXPECT_EQ(Bytes(Name("settings.damaged-1.json")), "garbage");
  EXPECT_EQ(file.TakeNotices().size(), 1U);
}

TEST_F(SettingsFileTest, WhatCannotBeKeptAsideIsNotOverwritten) {
  PutBytes(Name(), "damaged");
  for (int n = 1; n <= 1000; ++n) {
    PutBytes(Name("settings.damaged-" + std::to_string(n) + ".json"), "");
  }
  SettingsFile file = Open();
  file.Set(kMode, 3);
  EXPECT_FALSE(file.Save());
  EXPECT_EQ(Integer(file, kMode), 3);
  EXPECT_EQ(Bytes(Name()), "damaged");
  EXPECT_EQ(file.TakeNotices(),
            std::vector<std::wstring>{L"The settings cannot be saved: File exists."});
}

TEST_F(SettingsFileTest, AFailureIsSaidOnceWithItsReasonAndTriedAgain) {
  PutBytes(temporary / "own", "a file in the place of the folder");
  SettingsFile file = Open();
  EXPECT_TRUE(file.TakeNotices().empty());
  file.Set(kMode, 3);
  EXPECT_FALSE(file.Save());
  EXPECT_EQ(file.TakeNotices(),
            std::vector<std::wstring>{L"The settings cannot be saved: Not a directory."});
  file.Set(kAngle, 2);
  EXPECT_FALSE(file.Save());
  EXPECT_TRUE(file.TakeNotices().empty());
  EXPECT_EQ(Integer(file, kMode), 3);
  fs::remove(temporary / "own");
  EXPECT_TRUE(file.Save());
  EXPECT_EQ(Stored(), (SettingsValues{{kAngle, 2}, {kMode, 3}}));
}

TEST_F(SettingsFileTest, AFullDiskKeepsTheOldFile) {
  SettingsFile file = Open();
  file.Set(kMode, 3);
  EXPECT_TRUE(file.Save());
  // A limit on the size of files stands in for a full disk: each larger write fails.
  signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
  const rlimit full{1000, limit.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
  file.Set({L"Macro0", L"Formula"}, std::wstring(5000, L'X'));
  const bool isSaved = file.Save();
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  EXPECT_FALSE(isSaved);
  EXPECT_EQ(Stored(), (SettingsValues{{kMode, 3}}));
  EXPECT_EQ(file.TakeNotices(),
            std::vector<std::wstring>{L"The settings cannot be saved: File too large."});
  EXPECT_TRUE(file.Save());
  EXPECT_EQ(Stored().size(), 2U);
}

TEST_F(SettingsFileTest, ADanglingLinkIsAFailureWithItsReason) {
  fs::create_directory(temporary / "own");
  fs::create_symlink(temporary / "nowhere/settings.json", Name());
  SettingsFile file = Open();
  file.Set(kMode, 3);
  EXPECT_FALSE(file.Save());
  EXPECT_EQ(file.TakeNotices(),
            std::vector<std::wstring>{L"The settings cannot be saved: No such file or directory."});
}

TEST_F(SettingsFileTest, AFileThatOnlyRootMayWriteIsReadAndTheFailureSaid) {
  PutBytes(Name(), "{\"Config\":{\"Mode\":2}}");
  // Root plays root and somebody; everybody else a user whose folder is closed to writing.
  constexpr uid_t kSomebody = 12345;
  const bool isRoot = geteuid() == 0;
  fs::permissions(temporary.path, fs::perms(0755));
  fs::permissions(Name().parent_path(), fs::perms(isRoot ? 0755 : 0500));
  ASSERT_EQ(isRoot ? seteuid(kSomebody) : 0, 0);
  SettingsFile file = Open();
  const int found = Integer(file, kMode);
  file.Set(kMode, 3);
  const bool isSaved = file.Save();
  ASSERT_EQ(isRoot ? seteuid(0) : 0, 0);
  fs::permissions(Name().parent_path(), fs::perms(0700));
  EXPECT_EQ(found, 2);
  EXPECT_FALSE(isSaved);
  EXPECT_EQ(Integer(file, kMode), 3);
  EXPECT_EQ(file.TakeNotices(),
            std::vector<std::wstring>{L"The settings cannot be saved: Permission denied."});
}

TEST_F(SettingsFileTest, WithoutAFolderValuesLastAsLongAsTheObject) {
  SettingsFile file((fs::path()));
  file.Set(kMode, 3);
  EXPECT_FALSE(file.Save());
  EXPECT_EQ(Integer(file, kMode), 3);
}

TEST_F(SettingsFileTest, APipeAsLockDoesNotStall) {
  fs::create_directory(temporary / "own");
  for (const char* const name : {"settings.json.lock", "settings.ini.lock"}) {
    ASSERT_EQ(mkfifo(Name(name).c_str(), 0600), 0);
  }
  SettingsFile file = Open();
  file.Set(kMode, 3);
  EXPECT_TRUE(file.Save());
}

TEST_F(SettingsFileTest, ALockThatIsHeldIsAFailureThatPasses) {
  SettingsFile file = Open();
  file.Set(kMode, 3);
  {
    FileLock other;
    ASSERT_FALSE(other.Acquire(Name("settings.json.lock"), std::chrono::milliseconds(0)));
    EXPECT_FALSE(file.Save());
  }
  EXPECT_TRUE(file.Save());
}

TEST_F(SettingsFileTest, LeftTemporaryFilesAreRemovedAtTheNextStart) {
  PutBytes(Name(), "{\"Config\":{\"Mode\":2}}");
  PutBytes(Name("settings.json.aB3xyZ"), "half");
  PutBytes(Name("settings.ini.aB3xyZ"), "half");
  {
    FileLock other;
    ASSERT_FALSE(other.Acquire(Name("settings.json.lock"), std::chrono::milliseconds(0)));
    // It may be what another program is writing.
    Open();
    EXPECT_TRUE(fs::exists(Name("settings.json.aB3xyZ")));
  }
  SettingsFile file = Open();
  EXPECT_FALSE(fs::exists(Name("settings.json.aB3xyZ")));
  EXPECT_FALSE(fs::exists(Name("settings.ini.aB3xyZ")));
  EXPECT_EQ(Integer(file, kMode), 2);
}

TEST_F(SettingsFileTest, TheFileOfAnEarlierVersionIsReadOnceAndKept) {
  const std::string old = "[Config]\nAngle%20Type=2\n\n[History]\nCalHistory1=\"=[D]1,234\"\n";
  PutBytes(Name("settings.ini"), old);
  SettingsFile file = Open();
  EXPECT_EQ(Text(file, kAngle), L"2");
  EXPECT_TRUE(file.TakeNotices().empty());
  EXPECT_EQ(Bytes(Name("settings.ini")), old);
  file.Set(kMode, 3);
  EXPECT_TRUE(file.Save());
  EXPECT_FALSE(fs::exists(Name("settings.ini")));
  EXPECT_EQ(Bytes(Name("settings.imported-1.ini")), old);
  EXPECT_EQ(
      Stored(),
      (SettingsValues{{kAngle, L"2"}, {kMode, 3}, {{L"History", L"CalHistory1"}, L"=[D]1,234"}}));
  // What such a version writes afterwards does not come in between.
  PutBytes(Name("settings.ini"), "[Config]\nMode=1\n");
  SettingsFile again = Open();
  EXPECT_EQ(Integer(again, kMode), 3);
}

TEST_F(SettingsFileTest, ADamagedFileOfAnEarlierVersionIsKeptAsideToo) {
  PutBytes(Name("settings.ini"), "[Config]\nMode\n");
  SettingsFile file = Open();
  EXPECT_EQ(file.TakeNotices(),
            std::vector<std::wstring>{
                L"The settings file could not be read. It is kept as settings.damaged-1.ini."});
  file.Set(kMode, 3);
  EXPECT_TRUE(file.Save());
  EXPECT_EQ(Bytes(Name("settings.damaged-1.ini")), "[Config]\nMode\n");
  EXPECT_FALSE(fs::exists(Name("settings.imported-1.ini")));
}

// Reading the start of a process's memory is an input error, as of a disk that fails for a moment.
TEST_F(SettingsFileTest, AFileThatCannotBeReadForAMomentIsNoDamage) {
  fs::create_directory(temporary / "own");
  fs::create_symlink("/proc/self/mem", Name());
  SettingsFile file = Open();
  EXPECT_TRUE(file.TakeNotices().empty());
  file.Set(kMode, 3);
  EXPECT_FALSE(file.Save());
  EXPECT_TRUE(fs::is_symlink(Name()));
  EXPECT_EQ(Integer(file, kMode), 3);
  // Once it can be read, what it holds is kept beside what was changed.
  fs::remove(Name());
  std::ofstream(Name()) << R"({"Config":{"Precision":9}})";
  EXPECT_TRUE(file.Save());
  const SettingsValues expected{{kMode, 3}, {{L"Config", L"Precision"}, 9}};
  EXPECT_EQ(Stored(), expected);
}

TEST_F(SettingsFileTest, AMillionKeysAreRefused) {
  std::string bytes = "{\"S\":{";
  for (int n = 0; n < 1'000'000; ++n) bytes += "\"k" + std::to_string(n) + "\":1,";
  bytes.back() = '}';
  PutBytes(Name(), bytes + "}");
  EXPECT_EQ(Open().TakeNotices().size(), 1U);
}

}  // namespace
}  // namespace vexa
