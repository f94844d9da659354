// How long a start takes, from the start of the process until its window is painted whole, and how
// much memory it needs, against a bare window of the same toolkit: startup CALCULATOR BARE [RUNS]
//
// Both are measured alike, on a display in memory that reports every drawing: a first run shows
// what the display looks like in the end, and each measured run ends with the drawing that
// completes just that picture, so a calculator that still says that it is loading does not count as
// painted. The programs take turns, and the medians are compared.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <thread>

#include "Ratios.h"
#include "WatchedDisplay.h"

using namespace vexa::bench;

namespace {

constexpr int kRuns = 21;
constexpr double kTimeBound = 1.25;
constexpr double kMemoryBound = 5.0;

/// A program under measurement.
struct Program {
  std::string file;
  FinishedPicture painted{};
  std::vector<double> times{};     ///< ns
  std::vector<double> memories{};  ///< MiB
};

/// The program finds a home with what an earlier run left there, and never the user's own.
void UseHome(const std::filesystem::path& home) {
  std::filesystem::remove_all(home);
  std::filesystem::create_directories(home);
  std::filesystem::permissions(home, std::filesystem::perms::owner_all);
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME"}) {
    setenv(name, home.c_str(), 1);
  }
  setenv("QT_QPA_PLATFORM", "xcb", 1);
}

/// Learns what the program's window looks like. The first run leaves its settings for the others.
void LearnPicture(WatchedDisplay& display, Program& program) {
  for (int run = 0; run < 2; ++run) {
    ChildProcess process({program.file});
    program.painted = display.ReadFinished(Milliseconds(2000), Milliseconds(2000));
    if (!process.IsRunning()) throw std::runtime_error(program.file + " ended by itself");
    process.Terminate();
    display.WaitFor(display.Empty());
  }
  if (display.Empty().Matches(program.painted.pixels)) {
    throw std::runtime_error(program.file + " painted nothing");
  }
  WatchedDisplay::Save(
      program.painted.pixels,
      "startup-" + std::filesystem::path(program.file).filename().string() + ".ppm");
}

void Measure(WatchedDisplay& display, Program& program) {
  const auto start = Clock::now();
  ChildProcess process({program.file});
  const auto time = display.WaitFor(program.painted) - start;
  program.times.push_back(std::chrono::duration<double, std::nano>(time).count());
  // What is still to be done for the first window belongs to the start's memory.
  std::this_thread::sleep_for(Milliseconds(200));
  program.memories.push_back(static_cast<double>(process.PeakMemory()) / 1024.0);
  process.Terminate();
  display.WaitFor(display.Empty());
}

int Compare(const std::string& calculatorFile, const std::string& bareFile, int runs) {
  UseHome(std::filesystem::absolute("startup-home"));
  WatchedDisplay display;
  Program calculator{calculatorFile};
  Program bare{bareFile};
  LearnPicture(display, calculator);
  LearnPicture(display, bare);
  for (int run = 0; run < runs; ++run) {
    Measure(display, calculator);
    Measure(display, bare);
  }

  std::fprintf(stderr, "each start at most %.0f ms too long or short\n",
               display.LongestRead().count());
  Ratios ratios(nullptr);
  ratios.Compare("start to painted window", calculator.times, "bare window", bare.times,
                 kTimeBound);
  ratios.Figure("peak memory above the bare window",
                Median(calculator.memories) - Median(bare.memories), "MiB", kMemoryBound);
  return ratios.Finish();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "startup CALCULATOR BARE [RUNS]\n");
    return EXIT_FAILURE;
  }
  try {
    return Compare(argv[1], argv[2], argc > 3 ? std::max(1, std::atoi(argv[3])) : kRuns);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "startup: %s\n", failure.what());
    return EXIT_FAILURE;
  }
}
