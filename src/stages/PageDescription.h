#pragma once

#include <string>
#include <vector>

#include "plot/PageContent.h"
#include "stages/PaneDescription.h"

namespace vorlan {

/// The page attributes of a stage.
const PageAtrType& pageOfStage(const Workspace& workspace, Stage stage);

/// The printed page of a stage: its ticked panes, header and footer. The request's pane is not used. InvalidArgument
/// for a page that is refused on this paper.
PageContent describePage(const PaneRequest& request, const PaperSize& paper);

/// A page of a report.
struct ReportPage {
    int file = 0;
    int probe = 0;
    Stage stage = Stage::PreProcessing;

    friend bool operator==(const ReportPage&, const ReportPage&) = default;
};

/// The pages of one probe: pre-processing, then the stages that are done in the order of their tabs.
std::vector<ReportPage> pagesOfProbe(const Workspace& workspace, int file, int probe);

/// The pages of many probes, by file and probe. The stages that show all probes of a file come once for each file, with
/// its first probe here that has them.
std::vector<ReportPage> pagesOfProbes(const Workspace& workspace, const std::vector<std::pair<int, int>>& probes);

/// All probes of all files, as file and probe.
std::vector<std::pair<int, int>> allProbes(const Workspace& workspace);

/// What a page of a report shows; the side of its stage is that at opening its tab.
PaneRequest requestFor(const Workspace& workspace, const ReportPage& page,
                       PhysicalValue value = PhysicalValue::Velocities);

/// Where a page stands in a document's outline: data file, probe, stage.
std::vector<OutlineEntry> placeOf(const Workspace& workspace, const ReportPage& page);

/// Why a page of the report is refused on this paper, after the stage that it belongs to; empty when all can be
/// printed.
std::string refusalOf(const Workspace& workspace, const std::vector<ReportPage>& pages, const PaperSize& paper);

}  // namespace vorlan
