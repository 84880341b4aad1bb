#include "analysis/Rotation.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

#include "Records.h"
#include "analysis/ProbeMoments.h"
#include "analysis/Stresses.h"
#include "model/StoreValue.h"

namespace vorlan::test {
namespace {

TEST(Rotation, EachTurnReadsWhatTheOneBeforeStored) {
    SAdvProbe probe = velocityRecord(2057);
    // Turns that end on whole units, or a rounding beside them, and what does not fit.
    velocity(probe, 0).SetValue(3, 0.0);
    velocity(probe, 1).SetValue(3, 0.0);
    velocity(probe, 0).view()[1000] = std::numeric_limits<std::int32_t>::min();
    velocity(probe, 1).view()[1001] = std::numeric_limits<std::int32_t>::max();
    auto u = unitsOf(velocity(probe, 0));
    auto v = unitsOf(velocity(probe, 1));
    auto w = unitsOf(velocity(probe, 2));
    const auto turn = [](std::int32_t& a, double scaleA, std::int32_t& b, double scaleB, double angle) {
        const double x = a * scaleA;
        const double y = b * scaleB;
        const double phi = std::atan2(y, x) + angle * 3.141592653589 / 180.0;
        a = truncateToInt32(std::sqrt(x * x + y * y) * std::cos(phi) / scaleA);
        b = truncateToInt32(std::sqrt(x * x + y * y) * std::sin(phi) / scaleB);
    };
    const std::array<double, 3> turns[] = {{33.0, -20.5, 400.0}, {90.0, -180.0, 45.0}, {1e-13, 1e9, 60.0}};
    for (const auto& [heading, pitch, roll] : turns) {
        for (std::size_t i = 0; i < u.size(); ++i) {
            turn(u[i], 0.001, v[i], 0.01, heading);
            turn(v[i], 0.01, w[i], 0.002, pitch);
            turn(u[i], 0.001, w[i], 0.002, roll);
        }
        rotateProbe(probe, heading, pitch, roll);
        EXPECT_EQ(unitsOf(velocity(probe, 0)), u);
        EXPECT_EQ(unitsOf(velocity(probe, 1)), v);
        EXPECT_EQ(unitsOf(velocity(probe, 2)), w);
    }
}

TEST(Rotation, CommandWithoutAnglesKeepsTheSamplesAndFormsTheRest) {
    SAdvProbe probe = velocityRecord(101);
    SAdvProbe expected = probe;
    formStresses(expected);
    computeProbeMoments(expected);
    expected.title = "New Coordinate System";
    expected.frameAttributes[0].ElementAt(0).plotTitle = "New Coordinate System";
    expected.samplingVolumeX = 0.25 / 0.001;
    expected.samplingVolumeY = -1.5 / 0.001;
    expected.samplingVolumeZ = 0.007 / 0.001;

    probe.workTables[SAdvProbe::kStresses].Reshape(3, 1.0);
    changeCoordinateSystem(probe, {0.0, 0.0, 0.0, {0.25, -1.5, 0.007}});
    EXPECT_TRUE(probe == expected);
}

TEST(Rotation, RefusesColumnsOfDifferentLength) {
    SAdvProbe probe = velocityRecord(10);
    velocity(probe, 1).SetSize(9);
    EXPECT_THROW(rotateProbe(probe, 1.0, 0.0, 0.0), InvalidArgument);
}

}  // namespace
}  // namespace vorlan::test
