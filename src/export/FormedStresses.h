#pragma once

#include <optional>

#include "model/SAdvProbe.h"

namespace vorlan {

/// A probe seen with its stress series: a probe without them is copied, and the copy's are formed as an analysis of
/// the stresses would form them. The probe itself stays as it is, and must outlive the view.
class FormedStresses {
  public:
    explicit FormedStresses(const SAdvProbe& probe);
    FormedStresses(const FormedStresses&) = delete;
    FormedStresses& operator=(const FormedStresses&) = delete;

    /// Stress series of pair 0..2 (u'v', u'w', v'w').
    const SArray& pair(int index) const;

  private:
    std::optional<SAdvProbe> copy_;
    const SAdvProbe& probe_;
};

}  // namespace vorlan
