#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace vexa::bench {

/// Shows what Google Benchmark reports, and keeps the median CPU time of every benchmark that ran
/// with repetitions, else its only one.
class MedianReporter : public benchmark::ConsoleReporter {
 public:
  MedianReporter() : ConsoleReporter(OO_None) {}

  void ReportRuns(const std::vector<Run>& runs) override;

  /// In nanoseconds; 0 when there was no such benchmark.
  double Median(const std::string& name) const;

 private:
  std::map<std::string, double> medians;
};

}  // namespace vexa::bench
