#include "MedianReporter.h"

namespace vexa::bench {

void MedianReporter::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) {
    const bool isOnlyRun = run.run_type == Run::RT_Iteration && run.repetitions == 1;
    if (!isOnlyRun && run.aggregate_name != "median") continue;
    std::string name = run.run_name.function_name;
    if (!run.run_name.args.empty()) name += "/" + run.run_name.args;
    medians[name] =
        run.GetAdjustedCPUTime() * 1e9 / benchmark::GetTimeUnitMultiplier(run.time_unit);
  }
}

double MedianReporter::Median(const std::string& name) const {
  const auto found = medians.find(name);
  return found == medians.end() ? 0.0 : found->second;
}

}  // namespace vexa::bench
