// The program in a terminal as whole processes: its start, a pipe of expressions, statistics of a
// million rows, and its memory: terminal VEXA BARE_PARSE
//
// Processes take turns with what they are measured against. Times are the processor's, of a process
// and the system for it.

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>

#include "Ratios.h"

using namespace vexa::bench;

namespace {

constexpr int kStarts = 201;
constexpr int kLongRuns = 11;
constexpr int kExpressions = 500'000;
constexpr int kRows = 1'000'000;

constexpr double kStartBound = 3.0;
constexpr double kOtherStartBound = 0.05;
constexpr double kExpressionBoundNs = 2000.0;
constexpr double kStatisticsBound = 1.3;
constexpr double kMemoryBoundMiB = 6.0;

constexpr const char* kExpressionFile = "terminal-expressions.txt";
constexpr const char* kRowFile = "terminal-rows.txt";

/// What a process took.
struct Usage {
  double ns = 0.0;
  double peakMiB = 0.0;
};

double Nanoseconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_usec) * 1e3;
}

/// Runs `command` with its standard input from a file, and nobody reading what it writes.
Usage Run(std::vector<std::string> command, const char* input = "/dev/null") {
  std::vector<char*> arguments;
  for (std::string& word : command) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, 0, input, O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&files, 1, "/dev/null", O_WRONLY, 0);
  pid_t pid = 0;
  const int failure = posix_spawnp(&pid, arguments[0], &files, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&files);
  if (failure != 0) throw std::runtime_error("cannot start " + command[0]);
  int status = 0;
  rusage usage{};
  wait4(pid, &status, 0, &usage);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
    throw std::runtime_error(command[0] + " failed");
  return {Nanoseconds(usage.ru_utime) + Nanoseconds(usage.ru_stime),
          static_cast<double>(usage.ru_maxrss) / 1024.0};
}

/// Runs two commands in turns and compares them.
void Compare(Ratios& ratios, const std::string& what, const std::vector<std::string>& ours,
             const std::vector<std::string>& yardstick, int runs, double bound) {
  std::vector<double> ourTimes;
  std::vector<double> otherTimes;
  for (int run = 0; run < runs; ++run) {
    ourTimes.push_back(Run(ours).ns);
    otherTimes.push_back(Run(yardstick).ns);
  }
  const std::string name = std::filesystem::path(yardstick[0]).filename();
  ratios.Compare(what, ourTimes, name, otherTimes, bound);
}

void WriteExpressions() {
  const char* const kLines[] = {"2+3*4", "sin(30)/7", "(1.5+2.25)*3-4/5", "12345*6789",
                                "2^0.5+1/3"};
  std::ofstream file(kExpressionFile);
  for (int i = 0; i < kExpressions; ++i) file << kLines[i % std::size(kLines)] << '\n';
}

/// Rows as the desktop program writes them.
void WriteRows() {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> value(0.5, 1000.0);
  std::string bytes;
  char text[64];
  for (int row = 0; row < kRows; ++row) {
    const auto end =
        std::to_chars(text, text + sizeof text, value(random), std::chars_format::fixed, 12).ptr;
    bytes.append(text, end).append("\t1\r\n");
  }
  std::ofstream(kRowFile, std::ios::binary) << bytes;
}

void MeasurePipe(Ratios& ratios, const std::string& vexa) {
  std::vector<double> each;
  std::vector<double> memory;
  for (int run = 0; run < kLongRuns; ++run) {
    const Usage usage = Run({vexa, "-"}, kExpressionFile);
    each.push_back(usage.ns / kExpressions);
    memory.push_back(usage.peakMiB);
  }
  ratios.Figure("an expression in a pipe", Median(each), "ns", kExpressionBoundNs);
  ratios.Figure("peak memory of half a million expressions", Median(memory), "MiB",
                kMemoryBoundMiB);
}

int Measure(const std::string& vexa, const std::string& bareParse) {
  // A home with nothing in it, and never the user's own.
  const auto home = std::filesystem::absolute("terminal-home");
  std::filesystem::remove_all(home);
  std::filesystem::create_directories(home);
  setenv("HOME", home.c_str(), 1);
  unsetenv("XDG_CONFIG_HOME");

  Ratios ratios(nullptr);
  Compare(ratios, "vexa 1+1", {vexa, "1+1"}, {"/bin/true"}, kStarts, kStartBound);
  Compare(ratios, "vexa 1+1", {vexa, "1+1"}, {"qalc", "-t", "1+1"}, kLongRuns, kOtherStartBound);
  WriteExpressions();
  MeasurePipe(ratios, vexa);
  WriteRows();
  Compare(ratios, "vexa stats, a million rows", {vexa, "stats", kRowFile}, {bareParse, kRowFile},
          kLongRuns, kStatisticsBound);
  return ratios.Finish();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "terminal VEXA BARE_PARSE\n");
    return EXIT_FAILURE;
  }
  try {
    return Measure(argv[1], argv[2]);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "terminal: %s\n", failure.what());
    return EXIT_FAILURE;
  }
}
