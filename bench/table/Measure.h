#pragma once

#include <functional>
#include <string>
#include <vector>

// Times on a machine that others use too: pieces of work take turns, so that whatever happens meets all alike, and the
// middle of several rounds counts.

namespace bench {

/// Processor time of this thread: what others compute does not count, waiting for a disk does not either.
double threadSeconds();
double wallSeconds();

using Clock = double (*)();
using Work = std::function<void()>;

/// Seconds of every piece of work in every round: result[work][round]. reset runs before each, untimed.
std::vector<std::vector<double>> rounds(
    int count, const std::vector<Work>& works, Clock clock = threadSeconds, const Work& reset = [] {});

double median(std::vector<double> values);
double best(const std::vector<double>& times);
/// Median of a[round] / b[round]. Within a round the machine is the same.
double medianRatio(const std::vector<double>& a, const std::vector<double>& b);

/// Keeps the compiler from dropping what nobody reads.
template <class T>
void keep(const T& value) {
    asm volatile("" : : "r"(&value) : "memory");
}

enum class Goal { None, AtLeast, AtMost };

/// Prints rows of the table and remembers whether every goal was met.
class Table {
  public:
    void section(const std::string& title);
    void row(const std::string& what, double value, const std::string& unit, Goal goal = Goal::None, double limit = 0.0,
             const std::string& note = {});
    bool allMet() const { return allMet_; }

  private:
    bool allMet_ = true;
};

}  // namespace bench
