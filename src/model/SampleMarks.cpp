#include "model/SampleMarks.h"

#include <algorithm>
#include <span>
#include <vector>

namespace vorlan {

namespace {

// A record that nearly repeats itself is not compared at every place of its own.
constexpr std::size_t kMostPasses = 8;

// The marked samples of the working record against the sampled one.
class Comparison {
  public:
    explicit Comparison(const SAdvProbe& probe) : marks_(probe.sampleFlags.view()) {
        const SMultiArray& working = probe.Velocities();
        const SMultiArray& sampled = probe.SampledVelocities();
        for (int c = 0; c < std::min(working.GetSize(), sampled.GetSize()); ++c) {
            working_.push_back(working.GetAt(c).view());
            sampled_.push_back(sampled.GetAt(c).view());
        }
        for (std::size_t c = 0; c < working_.size(); ++c) {
            comparable_ = comparable_ && working_[c].size() == marks_.size() &&
                          sampled_[c].size() == sampled_[0].size() && sampled_[c].size() >= marks_.size();
        }
        comparable_ = comparable_ && !working_.empty();
    }
    bool agreesSomewhere() {
        if (!comparable_) {
            return false;
        }
        left_ = kMostPasses * sampled_[0].size();
        for (std::size_t offset = 0; offset + marks_.size() <= sampled_[0].size() && left_ > 0; ++offset) {
            if (agrees(offset)) {
                return true;
            }
        }
        return false;
    }

  private:
    bool agrees(std::size_t offset) {
        for (std::size_t i = 0; i < marks_.size(); ++i) {
            if (left_ == 0) {
                return false;
            }
            --left_;
            for (std::size_t c = 0; c < working_.size() && marks_[i] >= 1; ++c) {
                if (working_[c][i] != sampled_[c][offset + i]) {
                    return false;
                }
            }
        }
        return true;
    }

    std::span<const std::int32_t> marks_;
    std::vector<std::span<const std::int32_t>> working_;
    std::vector<std::span<const std::int32_t>> sampled_;
    bool comparable_ = true;
    std::size_t left_ = 0;
};

}  // namespace

bool marksAreOfWorkingSamples(const SAdvProbe& probe) {
    const bool clipped = probe.sampleFlags.GetSize() < SAdvProbe::ColumnLength(probe.SampledVelocities());
    return !clipped || Comparison(probe).agreesSomewhere();
}

}  // namespace vorlan
