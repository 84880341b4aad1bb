#include <gtest/gtest.h>

#include <cmath>

#include "Records.h"
#include "analysis/Simulation.h"
#include "model/DefaultFrames.h"

namespace vorlan::test {
namespace {

/// The generator written out a second time.
class Reference {
  public:
    explicit Reference(std::uint64_t seed) : state_(seed) {}
    double gauss(double m, double s) {
        double sum = 0.0;
        for (int i = 0; i < 50; ++i) {
            state_ += 0x9E3779B97F4A7C15ULL;
            std::uint64_t z = state_;
            z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
            z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
            sum += static_cast<double>((z ^ (z >> 31)) >> 49) / 32767.0;
        }
        return (sum - 25.0) / std::sqrt(4.166666666666667) * s + m;
    }

  private:
    std::uint64_t state_;
};

int stored(double value) {
    return held(value, 0.001);
}

TEST(Simulation, ConstantRecord) {
    const SAdvFile file = simulate(SimulationParameters(), 1);
    EXPECT_EQ(file.fileName, "test");
    EXPECT_EQ(file.headerDoubleA, 0.04);
    EXPECT_EQ(file.headerDoubleB, 100.0);
    ASSERT_EQ(file.probes.GetSize(), 1);
    const SAdvProbe& probe = file.probes.GetAt(0);
    EXPECT_EQ(probe.sampleCount, 2500U);
    EXPECT_EQ(probe.sampledTables[0], probe.workTables[0]);
    for (const auto& [component, expected] : {std::pair{0, 50000}, {1, 5000}, {2, 0}}) {
        EXPECT_EQ(probe.workTables[0].GetAt(component), columnOf(std::vector<std::int32_t>(2500, expected), 0.001));
    }
    EXPECT_EQ(probe.sampledTables[SAdvProbe::kCorrelation], probe.workTables[SAdvProbe::kCorrelation]);
    EXPECT_EQ(probe.sampledTables[SAdvProbe::kSignalToNoise].GetSize(), 3);
    for (const auto* table :
         {&probe.sampledTables[SAdvProbe::kSampledAmplitudes], &probe.sampledTables[SAdvProbe::kSampledCompass],
          &probe.workTables[SAdvProbe::kWorkCompass]}) {
        EXPECT_TRUE(table->IsEmpty());
    }
    ASSERT_EQ(probe.sampleFlags.GetSize(), 2500);
    EXPECT_EQ(probe.sampleFlags.GetAt(2499), 1);
    EXPECT_EQ(probe.timeAxis.GetScale(), 0.001);
    EXPECT_EQ(probe.timeAxis.GetAt(2499), stored(2499 * 0.04));
    EXPECT_EQ(probe.workTables[SAdvProbe::kStresses].GetAt(2).GetSize(), 2500);
    EXPECT_NEAR(probe.VelocityMoments(0).mean, 50.0, 1e-9);
    EXPECT_EQ(probe.scalarResults[1], probe.VelocityMoments(0).mean);
    EXPECT_EQ(probe.scalarResults[5], probe.VelocityMoments(1).variance);
    EXPECT_EQ(probe.tabItems.GetAt(0).text, "Pre-Processing");
    for (int group = 0; group < 7; ++group) {
        EXPECT_EQ(probe.frameAttributes[static_cast<std::size_t>(group)].GetSize(), defaultFrameCount(group));
    }
}

TEST(Simulation, DrawsInTheOrderOfTheColumns) {
    SimulationParameters parameters;
    parameters.length = 0.1;
    parameters.whiteNoise = true;
    parameters.compass = true;
    parameters.heading = 350.0;
    parameters.pitch = -3.0;
    parameters.roll = 4.0;
    parameters.position = {1.5, 0.25, -0.5};
    parameters.harmonicCount = 2;
    parameters.components[0].harmonics = {{10.0, 2.0, 90.0}, {3.0, 0.5, 30.0}};
    parameters.components[1].harmonics = {{0.0, 1.0, 0.0}};
    parameters.components[2].noiseMean = -7.0;
    parameters.components[2].noiseVariance = -4.0;
    const SAdvProbe probe = simulate(parameters, 42).probes.GetAt(0);
    EXPECT_NE(simulate(parameters, 43).probes.GetAt(0).workTables[1], probe.workTables[1]);
    ASSERT_EQ(probe.sampleCount, 2U);

    Reference reference(42);
    for (int i = 0; i < 2; ++i) {
        const double swing = 10.0 * std::sin(90.0 * 3.141592 / 180.0 + i * 6.283184 * 0.04 / 2.0) +
                             3.0 * std::sin(30.0 * 3.141592 / 180.0 + i * 6.283184 * 0.04 / 0.5);
        const auto& velocity = probe.workTables[0];
        EXPECT_EQ(velocity.GetAt(0).GetAt(i), stored(50.0 + swing + reference.gauss(0.0, 1.0)));
        EXPECT_EQ(velocity.GetAt(1).GetAt(i), stored(5.0 + reference.gauss(0.0, 1.0)));
        EXPECT_EQ(velocity.GetAt(2).GetAt(i), stored(0.0 + reference.gauss(-7.0, -4.0)));
        for (int beam = 0; beam < 3; ++beam) {
            EXPECT_EQ(probe.sampledTables[1].GetAt(beam).GetAt(i), stored(90.0 + reference.gauss(0.0, 2.0)));
        }
        for (int beam = 0; beam < 3; ++beam) {
            EXPECT_EQ(probe.workTables[2].GetAt(beam).GetAt(i), stored(25.0 + reference.gauss(0.0, 1.0)));
        }
        const std::array<double, 3> tilt = {350.0, -3.0, 4.0};
        for (int angle = 0; angle < 3; ++angle) {
            const int expected = stored(tilt[static_cast<std::size_t>(angle)] + reference.gauss(0.0, 0.5));
            EXPECT_EQ(probe.sampledTables[4].GetAt(angle).GetAt(i), expected);
            EXPECT_EQ(probe.workTables[3].GetAt(angle).GetAt(i), expected);
        }
    }
    EXPECT_DOUBLE_EQ(probe.samplingVolumeX, 1500.0);
    EXPECT_DOUBLE_EQ(probe.samplingVolumeZ, -500.0);
}

}  // namespace
}  // namespace vorlan::test
