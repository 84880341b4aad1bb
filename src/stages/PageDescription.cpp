#include "stages/PageDescription.h"

#include <algorithm>

#include "model/Index.h"
#include "model/ProbeInformation.h"
#include "model/StageTable.h"
#include "model/Text.h"

namespace vorlan {

namespace {

/// Done stages in the order of their tabs; those without a tab follow by number.
std::vector<Stage> doneStages(const SAdvProbe& probe) {
    std::vector<const StageRow*> rows;
    const auto add = [&](const StageRow* row) {
        const bool done = row != nullptr && row->mark && probe.IsDone(*row->mark);
        if (done && std::find(rows.begin(), rows.end(), row) == rows.end()) {
            rows.push_back(row);
        }
    };
    for (const TabItem& tab : probe.tabItems) {
        add(stageNumbered(tab.imageIndex));
    }
    for (const StageRow& row : stageTable()) {
        add(&row);
    }
    std::vector<Stage> stages{Stage::PreProcessing};
    std::transform(rows.begin(), rows.end(), std::back_inserter(stages),
                   [](const StageRow* row) { return row->stage; });
    return stages;
}

}  // namespace

const PageAtrType& pageOfStage(const Workspace& workspace, Stage stage) {
    return workspace.pages.GetAt(stageRow(stage).pageRecord);
}

PageContent describePage(const PaneRequest& request, const PaperSize& paper) {
    const PageAtrType& attributes = pageOfStage(request.workspace, request.stage);
    PageContent page;
    page.layout = layoutPage(attributes, paper, kPageDpi);
    page.header = utf8Text(attributes.header);
    page.footer = utf8Text(attributes.footer);
    for (const PageLayout::PlacedPane& placed : page.layout.panes) {
        PaneRequest pane = request;
        pane.pane = placed.pane;
        page.panes.push_back(describePane(pane));
    }
    return page;
}

std::vector<ReportPage> pagesOfProbe(const Workspace& workspace, int file, int probe) {
    std::vector<ReportPage> pages;
    if (const SAdvProbe* record = probeAt(workspace.dataFiles, file, probe)) {
        for (const Stage stage : doneStages(*record)) {
            pages.push_back({file, probe, stage});
        }
    }
    return pages;
}

std::vector<ReportPage> pagesOfProbes(const Workspace& workspace, const std::vector<std::pair<int, int>>& probes) {
    std::vector<ReportPage> pages;
    for (const auto& [file, probe] : probes) {
        for (const ReportPage& page : pagesOfProbe(workspace, file, probe)) {
            const auto same = [&](const ReportPage& other) {
                return other.file == page.file && other.stage == page.stage;
            };
            if (!stageRow(page.stage).spansAllFiles() || std::none_of(pages.begin(), pages.end(), same)) {
                pages.push_back(page);
            }
        }
    }
    return pages;
}

std::vector<std::pair<int, int>> allProbes(const Workspace& workspace) {
    std::vector<std::pair<int, int>> probes;
    for (int file = 0; file < workspace.dataFiles.files.GetSize(); ++file) {
        for (int probe = 0; probe < workspace.dataFiles.files.GetAt(file).probes.GetSize(); ++probe) {
            probes.emplace_back(file, probe);
        }
    }
    return probes;
}

PaneRequest requestFor(const Workspace& workspace, const ReportPage& page, PhysicalValue value) {
    return {workspace, page.file, page.probe, page.stage, Pane::LeftTop, value, stageRow(page.stage).opensWithTable()};
}

std::vector<OutlineEntry> placeOf(const Workspace& workspace, const ReportPage& page) {
    std::vector<OutlineEntry> place;
    if (page.file >= 0 && page.file < workspace.dataFiles.files.GetSize()) {
        place.push_back({page.file, utf8Text(workspace.dataFiles.files.GetAt(page.file).fileName)});
    }
    if (const SAdvProbe* probe = probeAt(workspace.dataFiles, page.file, page.probe)) {
        place.push_back({page.probe, probeListText(*probe)});
    }
    place.push_back({asInt(page.stage), stageRow(page.stage).text});
    return place;
}

std::string refusalOf(const Workspace& workspace, const std::vector<ReportPage>& pages, const PaperSize& paper) {
    for (const StageRow& row : stageTable()) {
        const bool used =
            std::any_of(pages.begin(), pages.end(), [&](const ReportPage& page) { return page.stage == row.stage; });
        const std::string refusal = used ? refusalOf(pageOfStage(workspace, row.stage), paper).text : "";
        if (!refusal.empty()) {
            return std::string(row.text) + ": " + refusal;
        }
    }
    return {};
}

}  // namespace vorlan
