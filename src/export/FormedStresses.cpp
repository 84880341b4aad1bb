#include "export/FormedStresses.h"

#include "analysis/Stresses.h"

namespace vorlan {

namespace {

std::optional<SAdvProbe> formedCopy(const SAdvProbe& probe) {
    if (!probe.Stresses().HasNoValues()) {
        return std::nullopt;
    }
    SAdvProbe copy = probe;
    formStresses(copy, StressResolution::StreamwiseU);
    return copy;
}

}  // namespace

FormedStresses::FormedStresses(const SAdvProbe& probe)
    : copy_(formedCopy(probe)), probe_(copy_.has_value() ? *copy_ : probe) {}

const SArray& FormedStresses::pair(int index) const {
    return probe_.Stresses().GetAt(index);
}

}  // namespace vorlan
