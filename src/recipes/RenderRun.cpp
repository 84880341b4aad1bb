#include "recipes/RenderRun.h"

#include <QGuiApplication>
#include <algorithm>
#include <clocale>
#include <cstdio>
#include <filesystem>

#include "model/StageTable.h"
#include "model/Text.h"
#include "plot/PdfDocument.h"
#include "plot/RenderFile.h"
#include "recipes/ProbePlace.h"
#include "recipes/ProgramName.h"
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

// What the toolkit remarks about the machine it runs on is of no use to a script.
void keepQuiet(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::fprintf(stderr, "%s: %s\n", kBatchName, text.toUtf8().constData());
    }
}

void requirePrintable(const std::string& refused) {
    if (!refused.empty()) {
        throw refusal(refused);
    }
}

std::string renderedPage(const PaneRequest& request, const std::filesystem::path& workspace, const PaperSize& paper) {
    requirePrintable(refusalOf(pageOfStage(request.workspace, request.stage), paper).text);
    PdfDocument document(utf8Text(workspace.stem().string()) + ": " + stageRow(request.stage).text, paper);
    document.add(describePage(request, paper),
                 placeOf(request.workspace, {request.file, request.probe, request.stage}));
    return document.finish().toStdString();
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

/// The application object that fonts and painting need. A program that has one keeps it.
class Renderer::Toolkit {
  public:
    Toolkit() {
        if (QCoreApplication::instance() != nullptr) {
            return;
        }
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        handler_ = qInstallMessageHandler(keepQuiet);
        application_ = std::make_unique<QGuiApplication>(argumentCount_, arguments_);
        // The application takes over the desktop's language; numbers keep their point.
        std::setlocale(LC_NUMERIC, "C");
    }
    ~Toolkit() {
        if (application_ != nullptr) {
            application_.reset();
            qInstallMessageHandler(handler_);
        }
    }
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;

  private:
    QtMessageHandler handler_ = nullptr;
    std::string name_ = kBatchName;
    int argumentCount_ = 1;
    char* arguments_[2] = {name_.data(), nullptr};
    std::unique_ptr<QGuiApplication> application_;
};

Renderer::Renderer() = default;
Renderer::~Renderer() = default;

std::string Renderer::render(CVorl_ADVDoc& document, const RenderRequest& request) {
    // The plans show what every probe has; the other stages exist once they were run.
    const bool selected = selectStage(document, request.stage);
    const StageRow& row = stageRow(request.stage);
    if (!selected && row.mark && !row.spansAllFiles()) {
        throw refusal(std::string("this probe has no stage \"") + row.text + "\" yet");
    }
    const PaneRequest wanted{document.GetWorkspace(),
                             document.ActiveFile(),
                             document.ActiveProbe(),
                             request.stage,
                             request.pane.value_or(Pane::LeftTop),
                             request.value,
                             request.showTable.value_or(!selected || document.ShowsTable())};
    startToolkit();
    if (isPage(request.pane, request.path)) {
        return renderedPage(wanted, document.GetPath(), request.paper);
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
    const QByteArray bytes =
        renderPanes(panes, QSize(request.size.width, request.size.height), formatOf(request.path).value(), request.dpi);
    if (bytes.isEmpty()) {
        throw refusal("a picture of this size cannot be made");
    }
    return bytes.toStdString();
}

std::string Renderer::report(const Workspace& workspace, const std::string& title, const std::vector<ReportPage>& pages,
                             const PaperSize& paper, const std::function<void(std::size_t)>& told) {
    requirePrintable(refusalOf(workspace, pages, paper));
    startToolkit();
    PdfDocument document(title, paper);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        told(i);
        document.add(describePage(requestFor(workspace, pages[i]), paper), placeOf(workspace, pages[i]));
    }
    return document.finish().toStdString();
}

void Renderer::startToolkit() {
    if (!toolkit_) {
        toolkit_ = std::make_unique<Toolkit>();
    }
}

}  // namespace vorlan
