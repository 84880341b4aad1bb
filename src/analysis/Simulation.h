#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "analysis/Progress.h"
#include "model/SAdvFile.h"
#include "model/SettingField.h"

namespace vorlan {

struct Harmonic {
    double amplitude = 0.0;  ///< cm/s
    double period = 1.0;     ///< s
    double phase = 0.0;      ///< degrees
};

/// What the dialog "Simulate Time Series | Parameters" edits.
struct SimulationParameters {
    struct Component {
        double meanVelocity = 0.0;  ///< cm/s
        double noiseMean = 0.0;
        double noiseVariance = 1.0;  ///< used as it stands for the standard deviation
        std::vector<Harmonic> harmonics{1};
    };

    std::string fileName = "test";
    double samplingInterval = 0.04;  ///< s
    double length = 100.0;           ///< s
    double correlation = 90.0;       ///< per cent
    double signalToNoise = 25.0;     ///< dB
    bool compass = false;
    double heading = 0.0;  ///< degrees
    double pitch = 0.0;
    double roll = 0.0;
    bool whiteNoise = false;
    int harmonicCount = 1;  ///< of every component
    std::array<Component, 3> components{{{50.0, 0.0, 1.0, {{}}}, {5.0, 0.0, 1.0, {{}}}, {0.0, 0.0, 1.0, {{}}}}};
    std::array<double, 3> position{};  ///< m
};

inline constexpr int kMaximumHarmonics = 25;

/// Allowed ranges.
namespace simulation_range {
inline constexpr Range kInterval{0.04, 100.0};
inline constexpr Range kLength{0.08, 1000.0};
inline constexpr Range kCorrelation{0.0, 100.0};
inline constexpr Range kSignalToNoise{0.0, 50.0};
inline constexpr Range kHeading{0.0, 360.0};
inline constexpr Range kTilt{-30.0, 30.0};
inline constexpr Range kVelocity{-200.0, 200.0};
inline constexpr Range kAmplitude{-200.0, 200.0};
inline constexpr Range kPeriod{1e-7, 1e7};
inline constexpr Range kPhase{0.0, 360.0};
inline constexpr Range kHarmonics{1.0, kMaximumHarmonics};
}  // namespace simulation_range

/// Uniform integers 0..32767, the same sequence for one seed on every machine.
class Random15 {
  public:
    explicit Random15(std::uint64_t seed) : state_(seed) {}
    int next();

  private:
    std::uint64_t state_;
};

/// (sum of 50 values next() / 32767.0, minus 25) / sqrt(4.166666666666667) * s + m.
double gaussianNumber(Random15& random, double m, double s);

/// A data file with one probe of N = trunc(length / interval) samples: constant mean, harmonics and noise, resolution
/// 0.001, marks 1, sampled and working tables, moments and stresses, default diagrams and the first stage's tab.
SAdvFile simulate(const SimulationParameters& parameters, std::uint64_t seed);

/// The seed of a record that nobody gave one: the seconds of the calendar.
std::uint64_t seedOfClock();

/// What a freshly made probe (simulated or imported) gets after its tables are filled: sample count and time axis,
/// stresses, moments, the "Sampled" statistics, default diagrams, first tab.
void finishNewProbe(SAdvProbe& probe);

}  // namespace vorlan
