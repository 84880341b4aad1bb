#include "table/Reporter.h"

#include <algorithm>

namespace bench {

Reporter::Reporter()
    : shown_(*benchmark::CreateDefaultDisplayReporter()),
      console_(dynamic_cast<benchmark::ConsoleReporter*>(&shown_) != nullptr) {}

void Reporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        failed_ = failed_ || run.error_occurred;
        const std::string& name = run.run_name.function_name;
        // When the command line asks for aggregates only, the median stands for all.
        if (run.error_occurred ||
            (run.run_type == Run::RT_Aggregate && (run.aggregate_name != "median" || times_.has(name)))) {
            continue;
        }
        const double time = run.run_name.time_type.empty() ? run.GetAdjustedCPUTime() : run.GetAdjustedRealTime();
        times_.add(name, time / benchmark::GetTimeUnitMultiplier(run.time_unit));
    }
    std::vector<Run> lines;
    std::copy_if(runs.begin(), runs.end(), std::back_inserter(lines), [&](const Run& run) {
        return !console_ || run.error_occurred || runs.size() == 1 || run.aggregate_name == "median";
    });
    if (!lines.empty()) {
        shown_.ReportRuns(lines);
    }
}

}  // namespace bench
