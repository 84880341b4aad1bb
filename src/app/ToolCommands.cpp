// The document's commands that are no stage of a probe: new records, the convective velocity.
#include "app/CVorl_ADVDoc.h"

namespace vorlan {

Outcome CVorl_ADVDoc::SimulateTimeSeries(const SimulationParameters& parameters, std::uint64_t seed) {
    AppendFile(simulate(parameters, seed));
    return Outcome::Done;
}

void CVorl_ADVDoc::AppendFile(SAdvFile file) {
    workspace_.dataFiles.files.Add(std::move(file));
    WorkspaceSettings& settings = workspace_.settings;
    settings.activeFile = workspace_.dataFiles.files.GetSize() - 1;
    settings.activeProbe = -1;
    settings.activeItem = -1;
    TestSelectionChange();
    SetModified();
    Tell(Change::Content);
}

Outcome CVorl_ADVDoc::SetMeanVelocity(const MeanVelocitySettings& settings) {
    workspace_.settings.meanVelocityMode = settings.mode;
    workspace_.settings.userMeanVelocity = settings.value;
    SetModified();
    Tell(Change::Content);
    return Outcome::Done;
}

MeanVelocitySettings CVorl_ADVDoc::GetMeanVelocity() const {
    return {workspace_.settings.meanVelocityMode, workspace_.settings.userMeanVelocity};
}

}  // namespace vorlan
