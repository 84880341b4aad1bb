// The document's selection: data file, probe, stage, physical value, active view.
#include "app/CVorl_ADVDoc.h"
#include "model/Index.h"
#include "model/StageTable.h"
#include "model/Text.h"

namespace vorlan {

namespace {

int shownTabOf(const SAdvProbe& probe, int activeItem) {
    const STabsArray& tabs = probe.tabItems;
    if (tabs.IsEmpty()) {
        return -1;
    }
    const auto valid = [&](int index) { return index >= 0 && index < tabs.GetSize(); };
    if (valid(activeItem)) {
        return activeItem;
    }
    if (valid(probe.selectedTab)) {
        return probe.selectedTab;
    }
    // Some workspaces hold the stage number where the tab's index is meant.
    const int ofStage = tabs.IndexOfStage(probe.selectedTab);
    return ofStage >= 0 ? ofStage : 0;
}

/// Selects a tab of the active probe, and the stage that it stands for.
void selectTab(int tabIndex, SAdvProbe& probe, WorkspaceSettings& settings) {
    settings.activeItem = tabIndex;
    probe.SetSelectedTab(tabIndex);
    const STabsArray& tabs = probe.tabItems;
    if (tabIndex < 0 || tabIndex >= tabs.GetSize()) {
        return;
    }
    if (const StageRow* row = stageNumbered(tabs.GetAt(tabIndex).imageIndex)) {
        settings.choiceA = asInt(row->stage) + 1;
        settings.displaySwitch = row->opensWithTable() ? 1 : 0;
    }
}

}  // namespace

int CVorl_ADVDoc::ActiveFile() const {
    const int index = workspace_.settings.activeFile;
    return index >= 0 && index < workspace_.dataFiles.files.GetSize() ? index : -1;
}

int CVorl_ADVDoc::ActiveProbe() const {
    if (!HasFile()) {
        return -1;
    }
    const int index = workspace_.settings.activeProbe;
    return index >= 0 && index < File().probes.GetSize() ? index : -1;
}

const SAdvFile& CVorl_ADVDoc::File() const {
    return workspace_.dataFiles.files.GetAt(ActiveFile());
}

const SAdvProbe& CVorl_ADVDoc::Probe() const {
    return File().probes.GetAt(ActiveProbe());
}

int CVorl_ADVDoc::ShownTab() const {
    return HasProbe() ? shownTabOf(Probe(), workspace_.settings.activeItem) : -1;
}

int CVorl_ADVDoc::StageCode() const {
    const int tab = ShownTab();
    if (tab >= 0) {
        if (const StageRow* row = stageNumbered(Probe().tabItems.GetAt(tab).imageIndex)) {
            return asInt(row->stage) + 1;
        }
    }
    return workspace_.settings.choiceA;
}

bool CVorl_ADVDoc::ShowsTable() const {
    const int code = StageCode();
    const StageRow* row = stageNumbered(std::int64_t{code} - 1);
    if (code != workspace_.settings.choiceA && row != nullptr) {
        // Tab and switch were stored for different stages: the switch of the shown stage is its own.
        return row->opensWithTable();
    }
    return workspace_.settings.displaySwitch == 1;
}

Stage CVorl_ADVDoc::CurrentStage() const {
    const StageRow* row = stageNumbered(std::int64_t{StageCode()} - 1);
    return row != nullptr ? row->stage : Stage::PreProcessing;
}

PhysicalValue CVorl_ADVDoc::CurrentValue() const {
    return workspace_.settings.physicalValue == 1 ? PhysicalValue::Stresses : PhysicalValue::Velocities;
}

Pane CVorl_ADVDoc::ActivePane() const {
    const int view = workspace_.settings.activeView;
    return view >= 0 && view < kPaneCount ? static_cast<Pane>(view) : Pane::LeftTop;
}

void CVorl_ADVDoc::SelectFile(int index) {
    if (index < 0 || index >= workspace_.dataFiles.files.GetSize()) {
        return;
    }
    WorkspaceSettings settings = Settings();
    settings.activeFile = index;
    settings.activeProbe = -1;
    settings.activeItem = -1;
    const bool hasProbes = !workspace_.dataFiles.files.GetAt(index).probes.IsEmpty();
    if (!hasProbes) {
        TakeOverSelection(settings);
    }
    Select({.settings = settings});
    if (hasProbes) {
        SelectProbe(0);
    } else {
        Tell(Change::Content);
    }
}

void CVorl_ADVDoc::SelectProbe(int index) {
    if (!HasFile() || index < 0 || index >= File().probes.GetSize()) {
        return;
    }
    WorkspaceSettings settings = Settings();
    settings.activeProbe = index;
    // The tab of the probe before says nothing about this one.
    settings.activeItem = -1;
    Select({.settings = settings});
    SelectStage(ShownTab());
}

void CVorl_ADVDoc::SelectStage(int tabIndex) {
    WorkspacePatch patch = PatchOfTab(tabIndex);
    TakeOverSelection(*patch.settings);
    Select(std::move(patch));
    Tell(Change::Content);
}

WorkspacePatch CVorl_ADVDoc::PatchOfTab(int tabIndex) const {
    WorkspacePatch patch;
    WorkspaceSettings settings = Settings();
    settings.activeItem = tabIndex;
    if (HasProbe()) {
        SAdvProbe probe = Probe();
        selectTab(tabIndex, probe, settings);
        patch = PatchOf(std::move(probe));
    }
    patch.settings = settings;
    return patch;
}

void CVorl_ADVDoc::EnterStage(Stage stage, SAdvProbe& probe, WorkspaceSettings& settings) {
    selectTab(probe.tabItems.AppendStage(asInt(stage)), probe, settings);
    TakeOverSelection(settings);
}

void CVorl_ADVDoc::SelectPhysicalValue(PhysicalValue value) {
    WorkspaceSettings settings = Settings();
    settings.physicalValue = asInt(value);
    Select({.settings = settings});
    Tell(Change::Content);
}

void CVorl_ADVDoc::SelectActivePane(Pane pane) {
    WorkspaceSettings settings = Settings();
    settings.activeView = asInt(pane);
    Select({.settings = settings});
    Tell(Change::View);
}

void CVorl_ADVDoc::ShowTable(bool on) {
    WorkspacePatch patch;
    if (StageCode() != Settings().choiceA) {
        patch = PatchOfTab(ShownTab());
    } else {
        patch.settings = Settings();
    }
    patch.settings->displaySwitch = on ? 1 : 0;
    Select(std::move(patch));
    Tell(Change::Content);
}

void CVorl_ADVDoc::RestoreSelection(const WorkspaceSettings& found) {
    WorkspaceSettings settings = Settings();
    settings.activeFile = found.activeFile;
    settings.activeProbe = found.activeProbe;
    settings.activeItem = found.activeItem;
    settings.previousFile = found.previousFile;
    settings.previousProbe = found.previousProbe;
    settings.previousItem = found.previousItem;
    Select({.settings = settings});
}

void CVorl_ADVDoc::TakeOverSelection(WorkspaceSettings& settings) {
    settings.previousFile = settings.activeFile;
    settings.previousProbe = settings.activeProbe;
    settings.previousItem = settings.activeItem;
    settings.choiceB = settings.choiceA;
}

Outcome CVorl_ADVDoc::CloseFile() {
    if (!HasFile()) {
        return Outcome::Refused;
    }
    if (!port_->confirm(Question::CloseFile)) {
        return Report(Outcome::Cancelled, {});
    }
    const std::string name = utf8Text(File().fileName);
    WorkspacePatch patch;
    WorkspaceSettings settings = Settings();
    patch.files = {ActiveFile(), 1};
    // The indexes step down before the removal, so closing the first of several files leaves none selected.
    --settings.previousFile;
    --settings.activeFile;
    settings.activeProbe = -1;
    settings.activeItem = -1;
    if (settings.activeFile >= 0) {
        const SAdvProbesArray& probes = workspace_.dataFiles.files.GetAt(settings.activeFile).probes;
        if (!probes.IsEmpty()) {
            settings.activeProbe = 0;
            SAdvProbe probe = probes.GetAt(0);
            selectTab(shownTabOf(probe, settings.activeItem), probe, settings);
            patch.probes.push_back({settings.activeFile, settings.activeProbe, std::move(probe)});
        }
    }
    patch.settings = settings;
    Write("Close File", std::move(patch));
    Tell(Change::Content);
    return Report(Outcome::Done, [&] { return name + " closed"; });
}

}  // namespace vorlan
