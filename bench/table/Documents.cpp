#include "table/Documents.h"

#include "analysis/Simulation.h"
#include "table/PlainLoops.h"

namespace bench {

void openRecord(vorlan::CVorl_ADVDoc& document, std::size_t samples) {
    using vorlan::SAdvProbe;
    vorlan::SAdvFile file;
    SAdvProbe& probe = file.probes.GrowTo(0);
    probe.samplingInterval = 0.01;
    std::uint32_t seed = 1;
    const auto fill = [&](std::size_t table, int columns, double resolution, double offset) {
        probe.sampledTables[table].Reshape(columns, resolution);
        for (int c = 0; c < columns; ++c) {
            plain::Values values = plain::record(samples, seed++);
            for (double& v : values) {
                v += offset;
            }
            probe.sampledTables[table].ElementAt(c).StoreValues(values);
        }
    };
    fill(SAdvProbe::kVelocities, 3, 0.01, 20.0);
    fill(SAdvProbe::kCorrelation, 3, 0.01, 85.0);
    fill(SAdvProbe::kSignalToNoise, 3, 0.01, 30.0);
    fill(SAdvProbe::kSampledCompass, 3, 0.01, 0.0);
    fill(SAdvProbe::kSampledPressure, 1, 0.01, 100.0);
    probe.Reset();
    vorlan::finishNewProbe(probe);
    document.AppendFiles({std::move(file)});
    document.SelectFile(document.GetWorkspace().dataFiles.files.GetSize() - 1);
}

vorlan::EditingSettings allCriteria() {
    using vorlan::ScoreStatistic;
    vorlan::EditingSettings settings;
    settings.correlation = {true, ScoreStatistic::Average, 76.0, 70.0};
    settings.signalToNoise = {true, ScoreStatistic::Minimum, 10.0, 12.5};
    settings.spikeFilter = settings.velocityTest = true;
    settings.accelerationThreshold = 3.5;
    return settings;
}

vorlan::RotationSettings threeAngles() {
    vorlan::RotationSettings settings;
    settings.heading = settings.pitch = settings.roll = 3.0;
    return settings;
}

vorlan::SpectralSettings tenThousandLags() {
    vorlan::SpectralSettings settings;
    settings.percent = 1;
    return settings;
}

MillionFile::MillionFile() {
    BreathPort port;
    vorlan::CVorl_ADVDoc document(port);
    openRecord(document, 1'000'000);
    document.SaveWorkspace(path);
}

}  // namespace bench
