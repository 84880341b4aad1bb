// The document's commands that change the working record.
#include <algorithm>

#include "analysis/Clipping.h"
#include "analysis/Filtration.h"
#include "analysis/Rotation.h"
#include "app/CVorl_ADVDoc.h"
#include "app/CommandReports.h"

namespace vorlan {

namespace {

/// Whether results of the one are results of the other.
bool sameRecord(const SAdvProbe& a, const SAdvProbe& b) {
    constexpr std::size_t kRecordTables = SAdvProbe::kWorkPressure + 1;
    return a.UsesAllSamples() == b.UsesAllSamples() && a.sampleFlags == b.sampleFlags &&
           std::equal(a.workTables.begin(), a.workTables.begin() + kRecordTables, b.workTables.begin());
}

}  // namespace

Outcome CVorl_ADVDoc::ChangeSeries(const ProbeCommand& command, const ProbeOperation& change,
                                   const Sentence& sentence) {
    const Outcome outcome = RunOnProbe(command, [&](SAdvProbe& copy, Progress& progress) {
        const Outcome changed = change(copy, progress);
        if (changed == Outcome::Done) {
            if (!sameRecord(copy, Probe())) {
                copy.AgeResults();
            }
            ApplyChangeRule(copy, progress);
        }
        return changed;
    });
    return Report(outcome, [&] {
        return sentence() + (Probe().HasOldStage() ? std::string(". ") + kEarlierResultsReport : std::string());
    });
}

Outcome CVorl_ADVDoc::EnterZoomMode() {
    const Outcome outcome =
        RunOnProbe({.calculation = Calculation::Zoom, .given = ZoomGiven{}}, [](SAdvProbe& copy, Progress&) {
            enterZoomMode(copy);
            return Outcome::Done;
        });
    return Report(outcome, [] { return std::string("Drag over the time to keep, or use the arrow keys and Return"); });
}

Outcome CVorl_ADVDoc::Clip(double tStart, double tEnd) {
    const double length = HasProbe() ? Probe().WorkingSamples() * Probe().samplingInterval : 0.0;
    return ChangeSeries(
        {.calculation = Calculation::Clipping, .given = ClipGiven{tStart, tEnd}},
        [&](SAdvProbe& copy, Progress& progress) {
            if (!clip(copy, tStart, tEnd, progress)) {
                port_->refuse(kClippingLimitsWrong);
                return Outcome::Refused;
            }
            return Outcome::Done;
        },
        [&] { return clippingReport(Probe(), tStart, tEnd, length); });
}

Outcome CVorl_ADVDoc::ResetTimeSeries() {
    return ChangeSeries(
        {.calculation = Calculation::Reset, .given = ResetGiven{}},
        [](SAdvProbe& copy, Progress& progress) {
            resetProbe(copy, progress);
            return Outcome::Done;
        },
        [&] { return resetReport(Probe()); });
}

Outcome CVorl_ADVDoc::ChangeCoordinateSystem(const RotationSettings& settings) {
    return ChangeSeries(
        {.calculation = Calculation::Rotation, .given = settings},
        [&](SAdvProbe& copy, Progress& progress) {
            changeCoordinateSystem(copy, settings, progress);
            return Outcome::Done;
        },
        [&] { return rotationReport(settings); });
}

Outcome CVorl_ADVDoc::EditTimeSeries(const EditingSettings& settings) {
    ProbeCommand command{.calculation = Calculation::Editing, .given = settings, .settings = Settings()};
    command.settings->editing = settings;
    return ChangeSeries(
        command,
        [&](SAdvProbe& copy, Progress& progress) {
            lastEditing_ = editSeries(copy, settings, progress);
            return Outcome::Done;
        },
        [&] { return editingReport(settings, lastEditing_); });
}

Outcome CVorl_ADVDoc::FilterTimeSeries(const FilterSettings& settings) {
    ProbeCommand command{.calculation = Calculation::Filtration, .given = settings, .settings = Settings()};
    command.settings->filter = settings;
    return ChangeSeries(
        command,
        [&](SAdvProbe& copy, Progress& progress) {
            const FilterDecision decision = filterSeries(copy, settings, progress);
            for (const std::string& refusal : decision.refusals) {
                port_->refuse(refusal);
            }
            if (decision.run) {
                return Outcome::Done;
            }
            // At equality with a limit nothing happens and nothing is said.
            return decision.refusals.empty() ? Outcome::Unchanged : Outcome::Refused;
        },
        [&] { return filtrationReport(settings); });
}

}  // namespace vorlan
