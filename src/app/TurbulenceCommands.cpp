// The document's commands that read turbulence quantities off the diagrams of the spectral stage.
#include "app/CVorl_ADVDoc.h"
#include "model/Text.h"

namespace vorlan {

namespace {

std::string scalesQuestion(ScalesSource source, const std::array<double, 3>& values) {
    const char* format = source == ScalesSource::Correlation
                             ? "Accept scales Tu = %f, Tv = %f, Tw = %f ?"
                             : "Accept integrals of spectra: Su = %f, Sv = %f, Sw = %f ?";
    return formatted(format, values[0], values[1], values[2]);
}

}  // namespace

Outcome CVorl_ADVDoc::ExtractDissipationRate(const DissipationReading& reading) {
    if (!HasProbe() || running_) {
        return Outcome::Refused;
    }
    const double offered = dissipationRate(reading, Probe(), Settings());
    if (!port_->accept(formatted("Accept the dissipation rate value = %f ?", offered))) {
        return Report(Outcome::Cancelled, {});
    }
    SAdvProbe copy = Probe();
    const double rate = dissipationRate(reading, copy, Settings());
    copy.SetResults(SAdvProbe::kDissipationRate, {&rate, 1});
    Write("Extract Dissipation Rate", PatchOf(std::move(copy)), {DoneOnActive(reading)});
    Tell(Change::Content);
    return Outcome::Done;
}

Outcome CVorl_ADVDoc::ExtractScales(const ScalesReading& reading) {
    if (!HasProbe() || running_) {
        return Outcome::Refused;
    }
    const IndexRange range = indexRange(reading, Probe());
    if (range.isEmpty()) {
        // On correlation functions nothing is said.
        if (reading.source == ScalesSource::Spectrum) {
            port_->refuse(formatted("Wrong limits for integration %f  %f wrong", reading.from, reading.to));
        }
        return Report(Outcome::Refused, {});
    }
    if (!port_->accept(scalesQuestion(reading.source, integratedScales(reading.source, Probe(), range)))) {
        return Report(Outcome::Cancelled, {});
    }
    SAdvProbe copy = Probe();
    const bool timeScales = reading.source == ScalesSource::Correlation;
    copy.SetResults(timeScales ? SAdvProbe::kTimeScales : SAdvProbe::kSpectrumIntegrals,
                    integratedScales(reading.source, copy, range));
    Write("Extract Scales", PatchOf(std::move(copy)), {DoneOnActive(reading)});
    Tell(Change::Content);
    return Outcome::Done;
}

}  // namespace vorlan
