#include "table/Measure.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace bench {

namespace {

double seconds(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

}  // namespace

double threadSeconds() {
    return seconds(CLOCK_THREAD_CPUTIME_ID);
}

double wallSeconds() {
    return seconds(CLOCK_MONOTONIC);
}

std::vector<std::vector<double>> rounds(int count, const std::vector<Work>& works, Clock clock, const Work& reset) {
    std::vector<std::vector<double>> times(works.size());
    for (int round = 0; round < count; ++round) {
        for (std::size_t i = 0; i < works.size(); ++i) {
            reset();
            const double start = clock();
            works[i]();
            times[i].push_back(clock() - start);
        }
    }
    return times;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double best(const std::vector<double>& times) {
    return *std::min_element(times.begin(), times.end());
}

double medianRatio(const std::vector<double>& a, const std::vector<double>& b) {
    std::vector<double> ratios(a.size());
    std::transform(a.begin(), a.end(), b.begin(), ratios.begin(), [](double x, double y) { return x / y; });
    return median(std::move(ratios));
}

void Table::section(const std::string& title) {
    std::printf("\n%s\n", title.c_str());
    std::fflush(stdout);
}

void Table::row(const std::string& what, double value, const std::string& unit, Goal goal, double limit,
                const std::string& note) {
    std::string wanted;
    if (goal != Goal::None) {
        char text[64];
        std::snprintf(text, sizeof text, "%s %g", goal == Goal::AtLeast ? ">=" : "<=", limit);
        const bool met = goal == Goal::AtLeast ? value >= limit : value <= limit;
        wanted = std::string(text) + (met ? "  met" : "  MISSED");
        allMet_ = allMet_ && met;
    }
    std::printf("  %-52s %9.4g %-12s %-16s %s\n", what.c_str(), value, unit.c_str(), wanted.c_str(), note.c_str());
    std::fflush(stdout);
}

}  // namespace bench
