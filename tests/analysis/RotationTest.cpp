#include "analysis/Rotation.h"

#include <gtest/gtest.h>

#include <cmath>

#include "VelocityRecord.h"
#include "analysis/ProbeMoments.h"
#include "analysis/Stresses.h"
#include "model/StoreValue.h"

namespace vorlan::test {
namespace {

struct QuarterTurn {
    const char* name;
    double heading, pitch, roll;
    std::array<std::int32_t, 3> from, to;
};

TEST(Rotation, QuarterTurnsGoFromTheFirstAxisTowardsTheSecond) {
    const QuarterTurn turns[] = {{"heading", 90, 0, 0, {1000, 0, 0}, {0, 1000, 0}},
                                 {"pitch", 0, 90, 0, {0, 1000, 0}, {0, 0, 1000}},
                                 {"roll", 0, 0, 90, {1000, 0, 0}, {0, 0, 1000}}};
    for (const QuarterTurn& turn : turns) {
        SCOPED_TRACE(turn.name);
        SAdvProbe probe;
        for (const std::int32_t n : turn.from) {
            probe.workTables[0].Add(columnOf({n}, 0.001));
        }
        rotateProbe(probe, turn.heading, turn.pitch, turn.roll);
        for (int c = 0; c < 3; ++c) {
            EXPECT_NEAR(velocity(probe, c).GetAt(0), turn.to[static_cast<std::size_t>(c)], 1);
        }
    }
}

TEST(Rotation, EachTurnReadsWhatTheOneBeforeStored) {
    SAdvProbe probe = velocityRecord(257);
    auto u = unitsOf(velocity(probe, 0));
    auto v = unitsOf(velocity(probe, 1));
    auto w = unitsOf(velocity(probe, 2));
    const auto turn = [](std::int32_t& a, double scaleA, std::int32_t& b, double scaleB, double angle) {
        const double x = a * scaleA;
        const double y = b * scaleB;
        const double phi = std::atan2(y, x) + angle * 3.141592653589 / 180.0;
        a = static_cast<std::int32_t>(std::sqrt(x * x + y * y) * std::cos(phi) / scaleA);
        b = static_cast<std::int32_t>(std::sqrt(x * x + y * y) * std::sin(phi) / scaleB);
    };
    for (std::size_t i = 0; i < u.size(); ++i) {
        turn(u[i], 0.001, v[i], 0.01, 33.0);
        turn(v[i], 0.01, w[i], 0.002, -20.5);
        turn(u[i], 0.001, w[i], 0.002, 400.0);
    }
    rotateProbe(probe, 33.0, -20.5, 400.0);
    EXPECT_EQ(unitsOf(velocity(probe, 0)), u);
    EXPECT_EQ(unitsOf(velocity(probe, 1)), v);
    EXPECT_EQ(unitsOf(velocity(probe, 2)), w);
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

TEST(Rotation, DialogShowsMetresAndTheCoordinateSystem) {
    SAdvProbe probe;
    probe.samplingVolumeX = 250.0;
    EXPECT_EQ(rotationSettingsOf(probe).position[0], 250.0 * 0.001);
    EXPECT_STREQ(coordinateSystemText(probe), "Probe( X, Y, Z ) ");
    probe.coordinateSystem = 2;
    EXPECT_STREQ(coordinateSystemText(probe), "Earth ( East, North, Up )");
}

}  // namespace
}  // namespace vorlan::test
