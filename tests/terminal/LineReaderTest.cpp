#include "terminal/LineReader.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "support/TemporaryFolder.h"

namespace vexa::terminal {
namespace {

/// The lines of a file with these bytes; a too long one has "..." behind it.
std::vector<std::string> LinesOf(const std::string& bytes) {
  const test::TemporaryFolder folder;
  test::PutBytes(folder / "lines", bytes);
  const int file = open((folder / "lines").c_str(), O_RDONLY);
  LineReader reader(file);
  std::vector<std::string> lines;
  while (reader.Next()) {
    lines.push_back(std::string(reader.Line()) + (reader.IsTooLong() ? "..." : ""));
    EXPECT_EQ(reader.Number(), lines.size());
  }
  EXPECT_EQ(reader.Failure(), "");
  close(file);
  return lines;
}

using Lines = std::vector<std::string>;

TEST(LineReader, EndsOfLines) {
  EXPECT_EQ(LinesOf(""), Lines{});
  EXPECT_EQ(LinesOf("\n"), Lines{""});
  EXPECT_EQ(LinesOf("a\nb\r\n\nc"), (Lines{"a", "b", "", "c"}));
  EXPECT_EQ(LinesOf("a\rb\r\n"), Lines{"a\rb"});
}

TEST(LineReader, LinesAcrossPieces) {
  std::string bytes;
  Lines expected;
  for (std::size_t i = 0; i < 3000; ++i) {
    expected.push_back(std::string(i % 300, 'x') + std::to_string(i));
    bytes += expected.back() + "\n";
  }
  EXPECT_EQ(LinesOf(bytes), expected);
}

TEST(LineReader, LongLinesAreCutAndTheNextOneIsRead) {
  constexpr std::size_t kLongest = LineReader::kLongestLine;
  const std::string longest(kLongest, 'x');
  for (const std::size_t length :
       {kLongest, kLongest + 1, 2 * kLongest - 1, 2 * kLongest, 2 * kLongest + 1, 5 * kLongest}) {
    const std::string first = length == kLongest ? longest : longest + "...";
    EXPECT_EQ(LinesOf(std::string(length, 'x') + "\ny\n"), (Lines{first, "y"})) << length;
    EXPECT_EQ(LinesOf(std::string(length, 'x')), Lines{first}) << length;
  }
}

TEST(LineReader, WhatCannotBeRead) {
  const int folder = open("/", O_RDONLY);
  LineReader reader(folder);
  EXPECT_FALSE(reader.Next());
  EXPECT_EQ(reader.Failure(), "Is a directory");
  close(folder);
}

}  // namespace
}  // namespace vexa::terminal
