#pragma once

#include <algorithm>
#include <cstddef>

#include "analysis/Progress.h"

namespace vorlan {

/// Pumps the progress once per some millions of terms: about every millisecond, whatever the block sizes. It
/// tells the share that is done when it knows how many terms there are, about.
class Pacer {
  public:
    explicit Pacer(Progress& progress, double allTerms = 0.0) : progress_(progress), allTerms_(allTerms) {}

    void worked(std::size_t terms) {
        terms_ += terms;
        if (terms_ >= kTermsPerBreath) {
            workedBefore_ += static_cast<double>(terms_);
            terms_ = 0;
            if (allTerms_ > 0.0) {
                progress_.done(std::min(workedBefore_ / allTerms_, 1.0));
            }
            progress_.pump();
        }
    }

  private:
    static constexpr std::size_t kTermsPerBreath = std::size_t{1} << 22;

    Progress& progress_;
    double allTerms_;
    double workedBefore_ = 0.0;
    std::size_t terms_ = 0;
};

}  // namespace vorlan
