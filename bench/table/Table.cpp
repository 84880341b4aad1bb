#include "table/Table.h"

#include <algorithm>
#include <cstdarg>

namespace bench {

std::string format(const char* pattern, ...) {
    char text[200];
    std::va_list values;
    va_start(values, pattern);
    std::vsnprintf(text, sizeof text, pattern, values);
    va_end(values);
    return text;
}

double Times::median(const std::string& name) const {
    std::vector<double> values = seconds_.at(name);
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double Times::best(const std::string& name) const {
    return *std::min_element(seconds_.at(name).begin(), seconds_.at(name).end());
}

void Table::row(const std::string& what, const Names& benchmarks, const std::string& unit, Goal goal,
                std::function<Cell(const Times&)> cell) {
    sections_.back().rows.push_back({what, benchmarks, unit, goal, std::move(cell)});
}

void Table::ratio(const std::string& what, const std::string& over, const std::string& under, const std::string& unit,
                  Goal goal, const std::function<Finding()>& check) {
    row(what, {over, under}, unit, goal, [=](const Times& times) {
        const double a = times.median(over);
        const double b = times.median(under);
        const std::string note = format("%.4g ms against %.4g ms", 1e3 * a, 1e3 * b);
        const Finding finding = check ? check() : Finding{};
        return Cell{a / b, check ? finding.text + ", " + note : note, finding.right};
    });
}

void Table::milliseconds(const std::string& what, const std::string& benchmark, Goal goal) {
    row(what, {benchmark}, "ms", goal, [=](const Times& times) { return Cell{1e3 * times.median(benchmark), {}}; });
}

bool Table::print(std::FILE* out, const Times& times) const {
    bool printed = false;
    bool allMet = true;
    bool allRight = true;
    for (const Section& section : sections_) {
        bool titled = false;
        for (const Row& row : section.rows) {
            if (!std::all_of(row.benchmarks.begin(), row.benchmarks.end(),
                             [&](const std::string& name) { return times.has(name); })) {
                continue;
            }
            if (!titled) {
                std::fprintf(out, "\n%s\n", section.title.c_str());
                titled = printed = true;
            }
            const Cell cell = row.cell(times);
            const bool met = row.goal.met(cell.value);
            std::string goal;
            if (row.goal.kind != Goal::None) {
                goal = format("%s %g  %s", row.goal.kind == Goal::AtLeast ? ">=" : "<=", row.goal.limit,
                              met ? "met" : "MISSED");
            }
            std::fprintf(out, "  %-52s %9.4g %-12s %-16s %s\n", row.what.c_str(), cell.value, row.unit.c_str(),
                         goal.c_str(), cell.note.c_str());
            allMet = allMet && met;
            allRight = allRight && cell.right;
        }
    }
    if (printed) {
        std::fprintf(out, "\n%s\n", allMet ? "Every goal is met." : "Some goals are missed.");
    }
    if (!allRight) {
        std::fprintf(out, "Some results are WRONG.\n");
    }
    return allRight;
}

}  // namespace bench
