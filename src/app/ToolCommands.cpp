// The document's commands that are no stage of a probe: new records, the convective velocity, printed pages.
#include "app/CVorl_ADVDoc.h"
#include "app/CommandReports.h"
#include "model/Index.h"
#include "model/PageLayout.h"
#include "model/StageTable.h"
#include "model/Text.h"

namespace vorlan {

Outcome CVorl_ADVDoc::SimulateTimeSeries(const SimulationParameters& parameters, std::uint64_t seed) {
    AppendFiles({simulate(parameters, seed)}, "Simulate Time Series");
    return Report(Outcome::Done, [&] { return simulationReport(File()); });
}

void CVorl_ADVDoc::AppendFiles(std::vector<SAdvFile> files, const char* command) {
    if (files.empty()) {
        return;
    }
    WorkspacePatch patch;
    const int index = workspace_.dataFiles.files.GetSize();
    const int count = asInt(files.size());
    patch.files = {index, count, std::move(files)};
    patch.settings = Settings();
    patch.settings->activeFile = index + count - 1;
    patch.settings->activeProbe = -1;
    patch.settings->activeItem = -1;
    TakeOverSelection(*patch.settings);
    Write(command, std::move(patch));
    Tell(Change::Content);
}

Outcome CVorl_ADVDoc::SetPage(Stage stage, const PageAtrType& page) {
    const Refusal refusal = refusalOf(page);
    if (!refusal.empty()) {
        port_->refuse(refusal.text);
        return Report(Outcome::Refused, {});
    }
    const int record = stageRow(stage).pageRecord;
    if (page != workspace_.pages.GetAt(record)) {
        SPageAtrArray pages = workspace_.pages;
        pages.SetAt(record, page);
        Write("Page Setup", {.pages = std::move(pages)},
              {DoneOn(DoneCommand::kWholeWorkspace, DoneCommand::kWholeWorkspace,
                      PageGiven{stage, workspace_.pages.GetAt(record), page})});
        Tell(Change::View);
    }
    return Report(Outcome::Done, [&] { return std::string("Page of ") + stageRow(stage).text + " set up"; });
}

Outcome CVorl_ADVDoc::SetMeanVelocity(const MeanVelocitySettings& chosen) {
    WorkspaceSettings settings = Settings();
    settings.meanVelocity = chosen;
    Write("Mean Velocity", {.settings = settings},
          {DoneOn(DoneCommand::kWholeWorkspace, DoneCommand::kWholeWorkspace, chosen)});
    Tell(Change::Content);
    return Report(Outcome::Done, [&] {
        return chosen.mode == MeanVelocityMode::Averaged ? "Mean velocity: that of the record"
                                                         : formatted("Mean velocity: %g cm/s", chosen.value);
    });
}

}  // namespace vorlan
