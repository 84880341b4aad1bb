#include "ui/frame/TurbulenceTools.h"

#include "model/Index.h"
#include "stages/TurbulenceReadOut.h"
#include "ui/views/tools/DissipationTool.h"
#include "ui/views/tools/ScalesTool.h"
#include "ui/views/tools/TriangleTool.h"

namespace vorlan {

namespace {

constexpr const char* kLineHint = "Right button or Return accepts, Esc ends";
constexpr const char* kScalesHint = "Drag a range, or arrow keys and Return; Esc ends";
constexpr const char* kTriangleHint = "Drag a range, or arrow keys; Esc removes the triangle";

}  // namespace

TurbulenceTools::TurbulenceTools(CVorl_ADVDoc& document, PaneGrid& panes, Voice voice)
    : document_(document), panes_(panes), voice_(std::move(voice)) {
    for (CVorl_ADVView* view : panes_.views()) {
        connect(view, &CVorl_ADVView::toolEnded, this, [this] {
            voice_.showHint({});
            voice_.showRest();
        });
    }
}

void TurbulenceTools::begin(Command command) {
    CVorl_ADVView& view = panes_.view(document_.ActivePane());
    switch (command) {
        case Command::ExtractDissipationRate:
            return beginDissipation(view);
        case Command::ExtractScales:
            return beginScales(view);
        case Command::TriangleSpectrum:
        case Command::TriangleStructure:
            return beginTriangle(view);
        default:
            return;
    }
}

void TurbulenceTools::start(CVorl_ADVView& view, std::unique_ptr<PaneTool> tool, const QString& hint) {
    connect(tool.get(), &PaneTool::readOut, this, [this](const QString& text) { voice_.showReadOut(text); });
    connect(
        tool.get(), &PaneTool::left, this,
        [&view, started = tool.get()] {
            // The view may have got another tool meanwhile.
            if (view.tool() == started) {
                view.endTool();
            }
        },
        Qt::QueuedConnection);
    voice_.showReport({});
    view.beginTool(std::move(tool));
    voice_.showHint(hint);
}

void TurbulenceTools::beginDissipation(CVorl_ADVView& view) {
    const std::optional<DissipationSource> source = dissipationSourceOf(document_.CurrentStage(), view.pane());
    if (!source) {
        return;
    }
    const SAdvProbe& probe = document_.Probe();
    auto tool = std::make_unique<DissipationTool>(view, *source, asInt(probe.spectralUnit),
                                                  convectiveVelocity(probe, document_.Settings()));
    connect(
        tool.get(), &DissipationTool::chosen, this,
        [this, &view, started = tool.get()](const DissipationReading& reading, const QString& slopes) {
            if (view.tool() == started) {
                view.endTool();
                acceptDissipation(reading, slopes);
            }
        },
        Qt::QueuedConnection);
    start(view, std::move(tool), QString::fromLatin1(kLineHint));
}

void TurbulenceTools::acceptDissipation(const DissipationReading& reading, const QString& slopes) {
    if (document_.ExtractDissipationRate(reading) == Outcome::Done) {
        voice_.showReport(QString::fromStdString(acceptedRateText(document_.Probe())) + QStringLiteral("   ") + slopes);
    }
}

void TurbulenceTools::beginScales(CVorl_ADVView& view) {
    const std::optional<ScalesSource> source = scalesSourceOf(document_.CurrentStage(), view.pane());
    if (!source) {
        return;
    }
    auto tool = std::make_unique<ScalesTool>(view, *source);
    connect(
        tool.get(), &ScalesTool::chosen, this,
        [this, &view, started = tool.get()](const ScalesReading& reading) {
            if (view.tool() == started) {
                acceptScales(view, reading);
            }
        },
        Qt::QueuedConnection);
    start(view, std::move(tool), QString::fromLatin1(kScalesHint));
}

void TurbulenceTools::acceptScales(CVorl_ADVView& view, const ScalesReading& reading) {
    // A range without anything to integrate leaves the tool on: the next one may have it.
    const Outcome outcome = document_.ExtractScales(reading);
    if (outcome == Outcome::Refused) {
        return;
    }
    view.endTool();
    if (outcome == Outcome::Done) {
        voice_.showReport(QString::fromStdString(acceptedScalesText(reading.source, document_.Probe())));
    }
}

void TurbulenceTools::beginTriangle(CVorl_ADVView& view) {
    const std::optional<DissipationSource> source = dissipationSourceOf(document_.CurrentStage(), view.pane());
    if (!source) {
        return;
    }
    const SAdvProbe& probe = document_.Probe();
    start(view,
          std::make_unique<TriangleTool>(view, *source, asInt(probe.spectralUnit),
                                         convectiveVelocity(probe, document_.Settings())),
          QString::fromLatin1(kTriangleHint));
}

}  // namespace vorlan
