#include "analysis/Simulation.h"

#include <cmath>
#include <ctime>

#include "analysis/ProbeMoments.h"
#include "analysis/Stresses.h"
#include "model/DefaultFrames.h"
#include "model/Index.h"

namespace vorlan {

namespace {

constexpr double kResolution = 0.001;
constexpr double kPiOfHarmonics = 3.141592;
constexpr double kTwoPiOfHarmonics = 6.283184;
constexpr double kCorrelationDeviation = 2.0;
constexpr double kSignalToNoiseDeviation = 1.0;
constexpr double kTiltDeviation = 0.5;
constexpr int kColumns = 3;

double harmonicSum(const std::vector<Harmonic>& harmonics, int count, int sample, double interval) {
    double sum = 0.0;
    for (std::size_t k = 0; k < harmonics.size() && asInt(k) < count; ++k) {
        const Harmonic& h = harmonics[k];
        sum +=
            h.amplitude * std::sin(h.phase * kPiOfHarmonics / 180.0 + sample * kTwoPiOfHarmonics * interval / h.period);
    }
    return sum;
}

void addRow(SMultiArray& table, const std::array<double, kColumns>& row) {
    for (int c = 0; c < kColumns; ++c) {
        table.ElementAt(c).AddValue(row[asSize(c)]);
    }
}

std::array<double, kColumns> noisyRow(Random15& random, std::array<double, kColumns> row, double deviation) {
    for (double& value : row) {
        value += gaussianNumber(random, 0.0, deviation);
    }
    return row;
}

}  // namespace

int Random15::next() {
    // SplitMix64: one addition and two mixing multiplications, the same sequence everywhere.
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    z ^= z >> 31;
    return asInt(z >> 49);
}

double gaussianNumber(Random15& random, double m, double s) {
    double sum = 0.0;
    for (int i = 0; i < 50; ++i) {
        sum += random.next() / 32767.0;
    }
    return (sum - 25.0) / std::sqrt(4.166666666666667) * s + m;
}

SAdvFile simulate(const SimulationParameters& parameters, std::uint64_t seed) {
    Random15 random(seed);
    const double interval = parameters.samplingInterval;
    const int samples = static_cast<int>(parameters.length / interval);

    SAdvFile file;
    file.fileName = parameters.fileName;
    file.headerDoubleA = interval;
    file.headerDoubleB = parameters.length;

    SAdvProbe probe;
    probe.samplingInterval = interval;
    probe.SetPosition(parameters.position);
    for (const std::size_t table : {SAdvProbe::kVelocities, SAdvProbe::kCorrelation, SAdvProbe::kSignalToNoise}) {
        probe.sampledTables[table].Reshape(kColumns, kResolution);
    }
    if (parameters.compass) {
        probe.sampledTables[SAdvProbe::kSampledCompass].Reshape(kColumns, kResolution);
    }

    const double correlation = parameters.correlation;
    const double signalToNoise = parameters.signalToNoise;
    // The order of the draws is part of the result: velocities, correlation, signal to noise, compass.
    for (int i = 0; i < samples; ++i) {
        std::array<double, kColumns> velocity{};
        for (std::size_t c = 0; c < velocity.size(); ++c) {
            const SimulationParameters::Component& component = parameters.components[c];
            velocity[c] =
                component.meanVelocity + harmonicSum(component.harmonics, parameters.harmonicCount, i, interval);
            if (parameters.whiteNoise) {
                velocity[c] += gaussianNumber(random, component.noiseMean, component.noiseVariance);
            }
        }
        addRow(probe.SampledVelocities(), velocity);
        addRow(probe.sampledTables[SAdvProbe::kCorrelation],
               noisyRow(random, {correlation, correlation, correlation}, kCorrelationDeviation));
        addRow(probe.sampledTables[SAdvProbe::kSignalToNoise],
               noisyRow(random, {signalToNoise, signalToNoise, signalToNoise}, kSignalToNoiseDeviation));
        if (parameters.compass) {
            addRow(probe.sampledTables[SAdvProbe::kSampledCompass],
                   noisyRow(random, {parameters.heading, parameters.pitch, parameters.roll}, kTiltDeviation));
        }
    }
    // The working tables start as the sampled ones, with every mark 1.
    probe.Reset();
    finishNewProbe(probe);
    file.probes.Add(std::move(probe));
    return file;
}

std::uint64_t seedOfClock() {
    return static_cast<std::uint64_t>(std::time(nullptr));
}

void finishNewProbe(SAdvProbe& probe) {
    const int samples = probe.WorkingSamples();
    probe.sampleCount = static_cast<std::uint32_t>(samples);
    probe.timeAxis.RemoveAll();
    probe.timeAxis.SetScale(kResolution);
    for (int i = 0; i < samples; ++i) {
        probe.timeAxis.AddValue(i * probe.samplingInterval);
    }
    formStresses(probe);
    computeProbeMoments(probe);
    for (int component = 0; component < SAdvProbe::kComponents; ++component) {
        const Moments moments = probe.VelocityMoments(component);
        double* sampled = probe.scalarResults.data() + SAdvProbe::kSampledMoments + component;
        sampled[0] = moments.mean;
        sampled[3] = moments.variance;
        sampled[6] = moments.skewness;
    }
    createDefaultFrames(probe);
    probe.tabItems.AppendStage(asInt(Stage::PreProcessing));
}

}  // namespace vorlan
