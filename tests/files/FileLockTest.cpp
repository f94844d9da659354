#include "files/FileLock.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/TemporaryFolder.h"

namespace vexa {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

constexpr std::chrono::milliseconds kAtOnce{0};

TEST(FileLock, OneHoldsIt) {
  const TemporaryFolder folder;
  {
    FileLock first;
    EXPECT_FALSE(first.Acquire(folder / "lock", kAtOnce));
    FileLock second;
    EXPECT_EQ(second.Acquire(folder / "lock", kAtOnce), kLockIsTaken);
    EXPECT_EQ(second.Acquire(folder / "lock", std::chrono::milliseconds(20)), kLockIsTaken);
  }
  FileLock third;
  EXPECT_FALSE(third.Acquire(folder / "lock", kAtOnce));
  struct stat info {};
  ASSERT_EQ(stat((folder / "lock").c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 07777, mode_t{0600});
}

TEST(FileLock, EndsWithItsProcessHoweverThatEnds) {
  const TemporaryFolder folder;
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = fork();
  if (child == 0) {
    FileLock lock;
    const char note = lock.Acquire(folder / "lock", kAtOnce) ? 'n' : 'y';
    [[maybe_unused]] const ssize_t written = write(ready[1], &note, 1);
    for (;;) pause();
  }
  char note = 0;
  ASSERT_EQ(read(ready[0], &note, 1), 1);
  EXPECT_EQ(note, 'y');
  FileLock lock;
  EXPECT_EQ(lock.Acquire(folder / "lock", kAtOnce), kLockIsTaken);
  kill(child, SIGKILL);
  ASSERT_EQ(waitpid(child, nullptr, 0), child);
  EXPECT_FALSE(lock.Acquire(folder / "lock", kAtOnce));
  close(ready[0]);
  close(ready[1]);
}

TEST(FileLock, WhatStandsInItsPlaceIsReplacedAndNeverWaitedFor) {
  const TemporaryFolder folder;
  test::PutBytes(folder / "victim", "precious");
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  fs::create_symlink("victim", folder / "link");
  fs::create_symlink("nowhere", folder / "dangling");
  test::PutBytes(folder / "garbage", "garbage");
  for (const char* const name : {"pipe", "link", "dangling", "garbage"}) {
    FileLock lock;
    EXPECT_FALSE(lock.Acquire(folder / name, kAtOnce)) << name;
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / name))) << name;
    FileLock second;
    EXPECT_EQ(second.Acquire(folder / name, kAtOnce), kLockIsTaken) << name;
  }
  EXPECT_EQ(test::Bytes(folder / "victim"), "precious");
  EXPECT_FALSE(fs::exists(folder / "nowhere"));
}

TEST(FileLock, AFolderInItsPlaceIsAnError) {
  const TemporaryFolder folder;
  fs::create_directories(folder / "lock/inner");
  FileLock lock;
  const auto error = lock.Acquire(folder / "lock", kAtOnce);
  EXPECT_TRUE(error && error != kLockIsTaken);
  EXPECT_TRUE(lock.Acquire(folder / "nowhere/lock", kAtOnce));
}

}  // namespace
}  // namespace vexa
