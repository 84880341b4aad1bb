#pragma once

#include <cstddef>

#include "analysis/Progress.h"

namespace vorlan {

/// Lets the progress breathe once per some millions of terms: about every millisecond, whatever the block sizes.
class Pacer {
  public:
    explicit Pacer(Progress& progress) : progress_(progress) {}

    void worked(std::size_t terms) {
        terms_ += terms;
        if (terms_ >= kTermsPerBreath) {
            terms_ = 0;
            progress_.breathe();
        }
    }

  private:
    static constexpr std::size_t kTermsPerBreath = std::size_t{1} << 22;

    Progress& progress_;
    std::size_t terms_ = 0;
};

}  // namespace vorlan
