#include "Ratios.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace vexa::bench {
namespace {

/// One repetition takes about this long, and all of a thing's at most so many times as long.
constexpr double kRepetition = 1e6;
constexpr double kAllRepetitions = 4e9;
constexpr std::size_t kMostRepetitions = 101;
constexpr std::size_t kFewestRepetitions = 5;

/// The processor time of this program, in nanoseconds.
double Now() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

double TimeOf(const Work& work, std::size_t times) {
  const double start = Now();
  work(times);
  return (Now() - start) / static_cast<double>(times);
}

/// How often one repetition does the work. Warms it up, too.
std::size_t TimesOf(const Work& work) {
  std::size_t times = 1;
  while (TimeOf(work, times) * static_cast<double>(times) < kRepetition / 2) times *= 2;
  return times;
}

std::size_t Repetitions(double each) {
  const double most = std::clamp(kAllRepetitions / each, static_cast<double>(kFewestRepetitions),
                                 static_cast<double>(kMostRepetitions));
  return static_cast<std::size_t>(most);
}

double Quantile(std::vector<double> values, double share) {
  const auto at = static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
  std::nth_element(values.begin(), values.begin() + at, values.end());
  return values[static_cast<std::size_t>(at)];
}

/// The width of the middle half.
double Spread(const std::vector<double>& values) {
  return Quantile(values, 0.75) - Quantile(values, 0.25);
}

std::string Text(const char* format, double value) {
  char text[64];
  std::snprintf(text, sizeof text, format, value);
  return text;
}

std::string TimeText(double nanoseconds) {
  if (nanoseconds < 1e3) return Text("%.1f ns", nanoseconds);
  if (nanoseconds < 1e6) return Text("%.2f us", nanoseconds / 1e3);
  return Text("%.2f ms", nanoseconds / 1e6);
}

}  // namespace

double Median(std::vector<double> values) {
  return Quantile(std::move(values), 0.5);
}

void Ratios::Add(Row row) {
  // At once, too: the table comes when all is measured.
  std::fprintf(stderr, "%s: %s%s%s\n", row.what.c_str(), row.ours.c_str(),
               row.ratio.empty() ? "" : ", ratio ", row.ratio.c_str());
  rows.push_back(std::move(row));
}

void Ratios::Ratio(const std::string& what, const Work& ours, const std::string& yardstickName,
                   const Work& yardstick, double bound) {
  if (!IsWanted(what)) return;
  const std::size_t ourTimes = TimesOf(ours);
  const std::size_t theirTimes = TimesOf(yardstick);
  std::vector<double> ourTime, theirTime;
  std::size_t repetitions = kMostRepetitions;
  for (std::size_t i = 0; i < repetitions; ++i) {
    const double start = Now();
    ourTime.push_back(TimeOf(ours, ourTimes));
    theirTime.push_back(TimeOf(yardstick, theirTimes));
    if (i == 0) repetitions = Repetitions(Now() - start);
  }
  Compare(what, ourTime, yardstickName, theirTime, bound);
}

void Ratios::Compare(const std::string& what, const std::vector<double>& ours,
                     const std::string& yardstickName, const std::vector<double>& yardstick,
                     double bound) {
  std::vector<double> ratios;
  for (std::size_t i = 0; i < ours.size(); ++i) ratios.push_back(ours[i] / yardstick[i]);
  const double ratio = Median(ratios);
  Add({what, TimeText(Median(ours)), yardstickName + " " + TimeText(Median(yardstick)),
       Text("%.3f", ratio), bound == kUnbounded ? "" : Text("%.3g", bound),
       ratio - bound <= Spread(ratios)});
}

void Ratios::Time(const std::string& what, const Work& ours, double bound) {
  if (!IsWanted(what)) return;
  const std::size_t times = TimesOf(ours);
  std::vector<double> each;
  std::size_t repetitions = kMostRepetitions;
  for (std::size_t i = 0; i < repetitions; ++i) {
    each.push_back(TimeOf(ours, times));
    if (i == 0) repetitions = Repetitions(each.back() * static_cast<double>(times));
  }
  const double time = Median(each);
  Add({what, TimeText(time), "", "", bound == kUnbounded ? "" : TimeText(bound),
       time - bound <= Spread(each)});
}

void Ratios::Figure(const std::string& what, double value, const std::string& unit, double bound,
                    double spread) {
  if (!IsWanted(what)) return;
  Add({what, Text("%.4g ", value) + unit, "", "",
       bound == kUnbounded ? "" : Text("%.4g ", bound) + unit, value - bound <= spread});
}

int Ratios::Finish() const {
  bool allOk = true;
  std::printf("| %-44s | %12s | %-28s | %7s | %10s | %-6s |\n", "what", "ours", "yardstick",
              "ratio", "bound", "ok");
  for (const Row& row : rows) {
    std::printf("| %-44s | %12s | %-28s | %7s | %10s | %-6s |\n", row.what.c_str(),
                row.ours.c_str(), row.yardstick.c_str(), row.ratio.c_str(), row.bound.c_str(),
                row.bound.empty() ? ""
                : row.ok          ? "yes"
                                  : "MISSED");
    allOk = allOk && row.ok;
  }
  return allOk ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace vexa::bench
