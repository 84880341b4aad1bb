#pragma once

#include <array>

#include "analysis/Simulation.h"
#include "model/RecordColumns.h"
#include "model/SAdvProbe.h"

namespace vorlan {

/// Scores of a record that comes without them.
inline constexpr double kAbsentCorrelation = 100.0;   ///< per cent
inline constexpr double kAbsentSignalToNoise = 30.0;  ///< dB

/// What makes sense of a record, both ends included.
namespace import_range {
inline constexpr Range kInterval{1e-6, 1e6};
inline constexpr Range kResolution{1e-9, 1e3};
}  // namespace import_range

struct ImportSettings {
    double samplingInterval = 0.0;     ///< s
    double resolution = 0.001;         ///< of the velocities, cm/s; every other column takes 0.001
    std::array<double, 3> position{};  ///< of the sampling volume, m
    std::uint32_t probeNumber = 1;
};

/// A probe with the record in its sampled and working tables, as the generator makes one. Samples that are not valid
/// get mark 0. A missing velocity, angle or pressure lies on the straight line between its neighbours and takes the
/// nearest value at the ends; a missing score is 0. InvalidArgument for columns of unequal length, for a column in
/// which nothing is there, for an interval or resolution that is not above 0.
SAdvProbe importedProbe(const RecordColumns& record, const ImportSettings& settings);

/// Replaces every NaN by the straight line between its neighbours, at the ends by the nearest value. InvalidArgument
/// when nothing but NaN is there; an empty column stays so.
void bridgeGaps(std::vector<double>& values);

}  // namespace vorlan
