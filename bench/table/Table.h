#pragma once

#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// As printf.
[[gnu::format(printf, 1, 2)]] std::string format(const char* pattern, ...);

/// Seconds of an iteration in every repetition, by the names of the benchmarks.
class Times {
  public:
    void add(const std::string& name, double seconds) { seconds_[name].push_back(seconds); }
    bool has(const std::string& name) const { return seconds_.contains(name); }
    double median(const std::string& name) const;
    double best(const std::string& name) const;

  private:
    std::map<std::string, std::vector<double>> seconds_;
};

struct Goal {
    enum Kind { None, AtLeast, AtMost } kind = None;
    double limit = 0.0;

    bool met(double value) const { return kind == AtLeast ? value >= limit : kind != AtMost || value <= limit; }
};
inline Goal atLeast(double limit) {
    return {Goal::AtLeast, limit};
}
inline Goal atMost(double limit) {
    return {Goal::AtMost, limit};
}

/// What a comparison of two results found, in words.
struct Finding {
    bool right = true;
    std::string text;
};
inline Finding equality(bool equal, const std::string& what) {
    return {equal, equal ? what + " equal" : what + " DIFFER"};
}

struct Cell {
    double value;
    std::string note;
    bool right = true;
};

/// The rows to print when the benchmarks have run, each from the times of the benchmarks it names: when one of them has
/// not run, the row is left out.
class Table {
  public:
    using Names = std::vector<std::string>;

    void section(const std::string& title) { sections_.push_back({title, {}}); }
    void row(const std::string& what, const Names& benchmarks, const std::string& unit, Goal goal,
             std::function<Cell(const Times&)> cell);
    /// Median of one benchmark over the median of another; check compares their results.
    void ratio(const std::string& what, const std::string& over, const std::string& under, const std::string& unit,
               Goal goal = {}, const std::function<Finding()>& check = {});
    /// Median in milliseconds.
    void milliseconds(const std::string& what, const std::string& benchmark, Goal goal = {});

    /// False when results are wrong. A missed goal is only printed.
    bool print(std::FILE* out, const Times& times) const;

  private:
    struct Row {
        std::string what;
        Names benchmarks;
        std::string unit;
        Goal goal;
        std::function<Cell(const Times&)> cell;
    };
    struct Section {
        std::string title;
        std::vector<Row> rows;
    };

    std::vector<Section> sections_;
};

}  // namespace bench
