#pragma once

#include <optional>

namespace vorlan {

/// The samples of a record: count of them, interval seconds apart.
struct SampleAxis {
    double interval;
    int count;
};

/// The time that is being chosen on a diagram of a record, s: from the place where the mouse was pressed to where it
/// is, or from sample to sample with the keys. One edge is free, the other one stays.
class IntervalSelection {
  public:
    /// The keys: by samples, or to an end of the record.
    struct Step {
        int samples = 0;
        bool toStart = false;
        bool toEnd = false;
    };

    bool isOn() const { return on_; }
    double from() const { return fixed_ < free_ ? fixed_ : free_; }
    double to() const { return fixed_ < free_ ? free_ : fixed_; }

    void press(double time);
    void drag(double time);
    /// Begins with the whole record when nothing is chosen. Moves the free edge, or the other one.
    void move(const Step& step, bool otherEdge, const SampleAxis& axis);
    void end() { on_ = false; }
    /// True when the keys moved an edge after the mouse.
    bool isByKeys() const { return byKeys_; }

  private:
    bool on_ = false;
    bool byKeys_ = false;
    double fixed_ = 0.0;
    double free_ = 0.0;
};

}  // namespace vorlan
