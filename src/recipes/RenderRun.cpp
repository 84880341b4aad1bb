#include "recipes/RenderRun.h"

#include <algorithm>
#include <filesystem>

#include "model/StageTable.h"
#include "model/Text.h"
#include "recipes/ProbePlace.h"
#include "recipes/RunError.h"
#include "stages/PaneDescription.h"
#include "stages/TurbulenceReadOut.h"

namespace vorlan {

namespace {

std::optional<RenderFormat> formatOf(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    if (extension == ".png") {
        return RenderFormat::Png;
    }
    if (extension == ".svg") {
        return RenderFormat::Svg;
    }
    if (extension == ".pdf") {
        return RenderFormat::Pdf;
    }
    return std::nullopt;
}

void requirePrintable(const std::string& refused) {
    if (!refused.empty()) {
        throw refusal(refused);
    }
}

std::string renderedPage(Pictures& pictures, const PaneRequest& request, const std::filesystem::path& workspace,
                         const PaperSize& paper) {
    requirePrintable(refusalOf(pageOfStage(request.workspace, request.stage), paper).text);
    const std::string title = utf8Text(workspace.stem().string()) + ": " + stageRow(request.stage).text;
    return pictures.document(title, paper, 1, [&](std::size_t) -> PlacedPage {
        return {describePage(request, paper), placeOf(request.workspace, {request.file, request.probe, request.stage})};
    });
}

}  // namespace

const std::vector<std::string>& stageNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> list;
        for (const StageRow& row : stageTable()) {
            list.emplace_back(row.name);
        }
        return list;
    }();
    return names;
}

const std::vector<std::string>& paneNames() {
    static const std::vector<std::string> names = {"left-top", "left-bottom", "right-top", "right-bottom"};
    return names;
}

const std::vector<std::string>& physicalValueNames() {
    static const std::vector<std::string> names = {"velocities", "stresses"};
    return names;
}

bool isPage(const std::optional<Pane>& pane, const std::string& path) {
    return !pane && formatOf(path) == RenderFormat::Pdf;
}

const char* faultOfSize(bool page) {
    return page ? "a printed page has the size of its paper" : "only a .pdf of all panes stands on paper";
}

std::string faultOfDpi(const std::string& path) {
    return formatOf(path) == RenderFormat::Png ? "" : "only a .png has dots per inch";
}

const std::vector<std::string>& rightBottomNames() {
    static const std::vector<std::string> names = {"table", "diagram"};
    return names;
}

std::string faultOfPicturePath(const std::string& path) {
    return formatOf(path) ? "" : "must end in .png, .svg or .pdf";
}

std::string faultOfTriangles(const RenderRequest& request) {
    const bool drawn = request.pane && dissipationSourceOf(request.stage, *request.pane);
    return request.triangles.empty() || drawn
               ? ""
               : "a triangle needs the pane left-bottom or right-top of the stage spectral";
}

std::vector<std::string> triangleReadOuts(const CVorl_ADVDoc& document, const RenderRequest& request) {
    std::vector<std::string> texts;
    for (const auto& [from, to, y] : request.triangles) {
        const DissipationReading begin{dissipationSourceOf(request.stage, *request.pane).value(), from, y};
        texts.push_back(dissipationReadOut(begin, dissipationRate(begin, document.Probe(), document.Settings())));
    }
    return texts;
}

namespace {

void addTriangles(PaneContent& content, const RenderRequest& request) {
    auto* diagram = std::get_if<Diagram>(&content);
    if (diagram == nullptr) {
        return;
    }
    for (const auto& [from, to, y] : request.triangles) {
        diagram->triangles.push_back(
            slopeTriangle({dissipationSourceOf(request.stage, *request.pane).value(), from, y}, to));
    }
}

}  // namespace

std::string Renderer::render(CVorl_ADVDoc& document, const RenderRequest& request) {
    // The plans show what every probe has; the other stages exist once they were run.
    const bool selected = selectStage(document, request.stage);
    const StageRow& row = stageRow(request.stage);
    if (!selected && row.mark && !row.spansAllFiles()) {
        throw refusal(std::string("this probe has no stage \"") + row.text + "\" yet");
    }
    return draw({document.GetWorkspace(), document.ActiveFile(), document.ActiveProbe(), request.stage,
                 request.pane.value_or(Pane::LeftTop), request.value,
                 request.showTable.value_or(!selected || document.ShowsTable())},
                document.GetPath(), request);
}

std::string Renderer::draw(const PaneRequest& wanted, const std::filesystem::path& workspace,
                           const RenderRequest& request) {
    if (isPage(request.pane, request.path)) {
        return renderedPage(pictures(), wanted, workspace, request.paper);
    }
    std::vector<PaneContent> panes;
    for (int pane = 0; pane < kPaneCount; ++pane) {
        if (!request.pane || *request.pane == static_cast<Pane>(pane)) {
            PaneRequest one = wanted;
            one.pane = static_cast<Pane>(pane);
            panes.push_back(describePane(one));
        }
    }
    for (PaneContent& pane : panes) {
        addTriangles(pane, request);
    }
    std::string bytes =
        pictures().panes(panes, request.size.width, request.size.height, formatOf(request.path).value(), request.dpi);
    if (bytes.empty()) {
        throw refusal("a picture of this size cannot be made");
    }
    return bytes;
}

std::string Renderer::report(const Workspace& workspace, const std::string& title, const std::vector<ReportPage>& pages,
                             const PaperSize& paper, const std::function<void(std::size_t)>& told) {
    requirePrintable(refusalOf(workspace, pages, paper));
    return pictures().document(title, paper, pages.size(), [&](std::size_t i) -> PlacedPage {
        told(i);
        return {describePage(requestFor(workspace, pages[i]), paper), placeOf(workspace, pages[i])};
    });
}

Pictures& Renderer::pictures() {
    if (!pictures_) {
        pictures_ = source_();
    }
    return *pictures_;
}

}  // namespace vorlan
