// The document's selection: data file, probe, stage, physical value, active view.
#include "app/CVorl_ADVDoc.h"
#include "model/StageTable.h"

namespace vorlan {

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

SAdvProbe& CVorl_ADVDoc::ProbeForWriting() {
    return workspace_.dataFiles.files.ElementAt(ActiveFile()).probes.ElementAt(ActiveProbe());
}

int CVorl_ADVDoc::ShownTab() const {
    if (!HasProbe() || Probe().tabItems.IsEmpty()) {
        return -1;
    }
    const STabsArray& tabs = Probe().tabItems;
    const auto valid = [&](int index) { return index >= 0 && index < tabs.GetSize(); };
    if (valid(workspace_.settings.activeItem)) {
        return workspace_.settings.activeItem;
    }
    if (valid(Probe().selectedTab)) {
        return Probe().selectedTab;
    }
    // Some workspaces hold the stage number where the tab's index is meant.
    const int ofStage = tabs.IndexOfStage(Probe().selectedTab);
    return ofStage >= 0 ? ofStage : 0;
}

int CVorl_ADVDoc::StageCode() const {
    const int tab = ShownTab();
    if (tab >= 0) {
        if (const StageRow* row = stageNumbered(Probe().tabItems.GetAt(tab).imageIndex)) {
            return static_cast<int>(row->stage) + 1;
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
    workspace_.settings.activeFile = index;
    workspace_.settings.activeProbe = -1;
    workspace_.settings.activeItem = -1;
    if (!File().probes.IsEmpty()) {
        SelectProbe(0);
        return;
    }
    TestSelectionChange();
    Tell(Change::Content);
}

void CVorl_ADVDoc::SelectProbe(int index) {
    if (!HasFile() || index < 0 || index >= File().probes.GetSize()) {
        return;
    }
    workspace_.settings.activeProbe = index;
    // The tab of the probe before says nothing about this one.
    workspace_.settings.activeItem = -1;
    SelectStage(ShownTab());
}

void CVorl_ADVDoc::SelectStage(int tabIndex) {
    StoreStageOfTab(tabIndex);
    TestSelectionChange();
    Tell(Change::Content);
}

void CVorl_ADVDoc::StoreStageOfTab(int tabIndex) {
    WorkspaceSettings& settings = workspace_.settings;
    settings.activeItem = tabIndex;
    if (!HasProbe()) {
        return;
    }
    ProbeForWriting().SetSelectedTab(tabIndex);
    const STabsArray& tabs = Probe().tabItems;
    if (tabIndex < 0 || tabIndex >= tabs.GetSize()) {
        return;
    }
    if (const StageRow* row = stageNumbered(tabs.GetAt(tabIndex).imageIndex)) {
        settings.choiceA = static_cast<int>(row->stage) + 1;
        settings.displaySwitch = row->opensWithTable() ? 1 : 0;
    }
}

void CVorl_ADVDoc::EnterStage(Stage stage) {
    const int tab = ProbeForWriting().tabItems.AppendStage(static_cast<int>(stage));
    StoreStageOfTab(tab);
    TestSelectionChange();
}

void CVorl_ADVDoc::SelectPhysicalValue(PhysicalValue value) {
    workspace_.settings.physicalValue = static_cast<int>(value);
    Tell(Change::Content);
}

void CVorl_ADVDoc::SelectActivePane(Pane pane) {
    workspace_.settings.activeView = static_cast<int>(pane);
    Tell(Change::View);
}

void CVorl_ADVDoc::ShowTable(bool on) {
    if (StageCode() != workspace_.settings.choiceA) {
        StoreStageOfTab(ShownTab());
    }
    workspace_.settings.displaySwitch = on ? 1 : 0;
    Tell(Change::Content);
}

bool CVorl_ADVDoc::TestSelectionChange() {
    WorkspaceSettings& s = workspace_.settings;
    if (s.activeFile == s.previousFile && s.activeProbe == s.previousProbe && s.activeItem == s.previousItem &&
        s.choiceA == s.choiceB) {
        return false;
    }
    s.previousFile = s.activeFile;
    s.previousProbe = s.activeProbe;
    s.previousItem = s.activeItem;
    s.choiceB = s.choiceA;
    return true;
}

Outcome CVorl_ADVDoc::CloseFile() {
    if (!HasFile()) {
        return Outcome::Refused;
    }
    if (!port_->confirm("Do you want to close the active data file ?")) {
        return Outcome::Cancelled;
    }
    WorkspaceSettings& settings = workspace_.settings;
    const int selected = ActiveFile();
    // The indexes step down before the removal, so closing the first of several files leaves none selected.
    --settings.previousFile;
    --settings.activeFile;
    workspace_.dataFiles.files.RemoveAt(selected);
    if (HasFile() && !File().probes.IsEmpty()) {
        settings.activeProbe = 0;
        settings.activeItem = -1;
        StoreStageOfTab(ShownTab());
    } else {
        settings.activeProbe = -1;
        settings.activeItem = -1;
    }
    SetModified();
    Tell(Change::Content);
    return Outcome::Done;
}

}  // namespace vorlan
