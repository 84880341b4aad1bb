#pragma once

#include <algorithm>

#include "app/CVorl_ADVDoc.h"
#include "table/Clock.h"

namespace bench {

/// A port that measures the longest processor time between two of its calls.
class GapPort : public vorlan::SilentPort {
  public:
    /// Done stages are not repeated.
    bool confirm(vorlan::Question) override { return false; }
    void beginRun(vorlan::Calculation) override {
        last_ = threadSeconds();
        running_ = true;
    }
    void endRun() override {
        note();
        running_ = false;
    }
    void pump() override {
        note();
        ++breaths_;
    }

    void forget() {
        longest_ = 0.0;
        breaths_ = 0;
    }
    double longestGap() const { return longest_; }
    int breaths() const { return breaths_; }

  private:
    void note() {
        const double now = threadSeconds();
        if (running_) {
            longest_ = std::max(longest_, now - last_);
        }
        last_ = now;
    }

    double last_ = 0.0;
    double longest_ = 0.0;
    int breaths_ = 0;
    bool running_ = false;
};

/// A document with one selected probe of so many samples: velocities, scores, compass and pressure.
void openRecord(vorlan::CVorl_ADVDoc& document, std::size_t samples);

}  // namespace bench
