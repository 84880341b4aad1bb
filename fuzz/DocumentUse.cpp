#include "DocumentUse.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cstdlib>
#include <streambuf>

#include "app/CommandState.h"
#include "model/DefaultFrames.h"
#include "model/Errors.h"
#include "plot/PaintPage.h"
#include "plot/PaintPane.h"
#include "stages/PageDescription.h"
#include "stages/PlanReadOut.h"

namespace vorlan {

namespace {

constexpr int kLongestRun = 2000;  // breaths
constexpr int kMostHoles = 2000;

class Nowhere : public std::streambuf {
    int_type overflow(int_type character) override { return traits_type::not_eof(character); }
    std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

PositionChange positionChange(Choices& choices) {
    PositionChange change;
    for (auto& coordinate : change) {
        coordinate = choices.yes() ? std::optional(choices.real()) : std::nullopt;
    }
    return change;
}

Position position(Choices& choices) {
    return {choices.real(), choices.real(), choices.real()};
}

std::string boundaryPath(Choices& choices) {
    return "/fuzz-" + std::to_string(choices.below(3)) + ".bnd";
}

FrameAttributesType frame(Choices& choices, FrameAttributesType frame) {
    double* const limits[] = {&frame.xMin, &frame.xMax, &frame.yMin, &frame.yMax, &frame.xStep, &frame.yStep};
    std::int32_t* const modes[] = {&frame.xMinMode,  &frame.xMaxMode,  &frame.yMinMode,  &frame.yMaxMode,
                                   &frame.xStepMode, &frame.yStepMode, &frame.scaleType, &frame.gridMode};
    std::int32_t* const words[] = {&frame.tickSize,        &frame.markSize,       &frame.ticksPerMark,
                                   &frame.tickOrientation, &frame.xDigits,        &frame.yDigits,
                                   &frame.labelOffset,     &frame.gridLineStyle,  &frame.gridPenWidth,
                                   &frame.gridColour,      &frame.legendPosition, &frame.frameStyle};
    for (double* limit : limits) {
        *limit = choices.real();
    }
    for (std::int32_t* mode : modes) {
        *mode = choices.code<std::int32_t>(4);
    }
    *words[choices.below(static_cast<int>(std::size(words)))] = choices.integer();
    frame.plotTitleFont.setHeight(choices.integer());
    frame.labelFont.setHeight(choices.integer());
    frame.plotTitle = std::string(static_cast<std::size_t>(choices.below(99)), static_cast<char>(choices.integer()));
    return frame;
}

PageAtrType page(Choices& choices, PageAtrType page) {
    double* const lengths[] = {&page.innerMargin,  &page.leftMargin, &page.rightMargin,    &page.topMargin,
                               &page.bottomMargin, &page.fontScale,  &page.leftTop.height, &page.rightBottom.width};
    *lengths[choices.below(static_cast<int>(std::size(lengths)))] = choices.real();
    page.layout = choices.code<std::int32_t>(2);
    page.printLeftBottom = choices.below(3);
    page.header = std::string(static_cast<std::size_t>(choices.below(300)), static_cast<char>(choices.integer()));
    return page;
}

SimulationParameters simulation(Choices& choices) {
    SimulationParameters parameters;
    parameters.length = 0.04 * (2 + choices.below(100));
    parameters.whiteNoise = choices.yes();
    parameters.compass = choices.yes();
    parameters.components[0].meanVelocity = choices.below(400) - 200;
    parameters.components[2].noiseVariance = choices.below(100);
    return parameters;
}

QuadrantSettings quadrants(Choices& choices) {
    QuadrantSettings settings{choices.real(), choices.real(), choices.real(),
                              choices.real(), choices.real(), choices.code<std::int32_t>(3)};
    // Many hole sizes are allowed and take their time.
    settings.maximum = std::abs(settings.maximum / settings.increment) > kMostHoles ? 2.0 : settings.maximum;
    return settings;
}

SpectralDialogValues spectral(Choices& choices) {
    SpectralDialogValues values;
    values.windowButton = choices.code<std::int32_t>(4);
    values.unitButton = choices.code<std::int32_t>(2);
    values.truncationMode = choices.below(2);
    values.percent = choices.integer();
    values.lags = choices.integer();
    values.percentFlag = choices.yes();
    return values;
}

EditingSettings editing(Choices& choices) {
    EditingSettings settings;
    settings.correlation = {choices.yes(), choices.code<ScoreStatistic>(2), choices.real(), choices.real()};
    settings.signalToNoise = {choices.yes(), choices.code<ScoreStatistic>(2), choices.real(), choices.real()};
    settings.spikeFilter = choices.yes();
    settings.accelerationThreshold = choices.real();
    settings.velocityTest = choices.yes();
    settings.velocityThreshold = choices.real();
    settings.treatment = choices.code<BadSampleTreatment>(2);
    return settings;
}

void giveGridCommand(CVorl_ADVDoc& document, Choices& choices) {
    const int boundary = choices.below(3) - (choices.below(9) == 0 ? 1 : 0);
    const int node = choices.below(9) == 0 ? choices.integer() : choices.below(4);
    switch (choices.below(8)) {
        case 0:
            document.NewBoundary(boundaryPath(choices));
            return;
        case 1:
            document.OpenBoundary(boundaryPath(choices));
            return;
        case 2:
            document.SaveBoundary(boundary, boundaryPath(choices));
            return;
        case 3:
            document.CloseBoundary(boundary);
            return;
        case 4:
            document.SetNode(boundary, node, positionChange(choices));
            return;
        case 5:
            document.RemoveNode(boundary, node);
            return;
        case 6:
            document.PlaceProbe(choices.below(3) - 1, choices.below(3) - 1, positionChange(choices));
            return;
        default:
            document.InsertNode(boundary, node, position(choices));
    }
}

void select(CVorl_ADVDoc& document, Choices& choices) {
    switch (choices.below(7)) {
        case 0:
            return document.SelectFile(choices.below(4) - 1);
        case 1:
            return document.SelectProbe(choices.below(4) - 1);
        case 2:
            return document.SelectStage(choices.below(9) == 0 ? choices.integer() : choices.below(8) - 1);
        case 3:
            return document.SelectPhysicalValue(choices.yes() ? PhysicalValue::Stresses : PhysicalValue::Velocities);
        case 4:
            return document.SelectActivePane(static_cast<Pane>(choices.below(kPaneCount)));
        case 5:
            return document.ShowTable(choices.yes());
        default:
            document.CloseFile();
    }
}

void paint(const PaneRequest& request, const PaneContent& content, Choices& choices) {
    QImage image(20 + 10 * choices.below(30), 20 + 10 * choices.below(30), QImage::Format_RGB32);
    QPainter painter(&image);
    const std::optional<CScreenUtils> geometry = paintPane(painter, image.rect(), content);
    const auto* diagram = std::get_if<Diagram>(&content);
    for (int i = 0; geometry && diagram != nullptr && i < 9; ++i) {
        const int x = choices.below(320);
        const int y = choices.below(320);
        readOut(request.stage, request.pane, request.value, *geometry, x, y);
        dragReadOut(request.stage, request.pane, geometry->xValue(x), geometry->xValue(y));
        planReadOut(*diagram, *geometry, x, y);
    }
}

}  // namespace

void FuzzPort::pump() {
    if (++breaths_ > kLongestRun) {
        throw Cancelled();
    }
}

void MemoryBoundaries::read(SBndFile& boundary) {
    const auto file = files_.find(boundary.path);
    if (file == files_.end()) {
        throw BoundaryOpenError(boundary.path);
    }
    readBoundary(boundary, file->second);
}

std::vector<std::byte> storedBytes(const Workspace& workspace) {
    Workspace copy = workspace;
    Archive archive = Archive::storing();
    copy.Serialize(archive);
    return archive.takeBytes();
}

void requireSameAfterReading(const std::vector<std::byte>& bytes) {
    Workspace again;
    Archive archive = Archive::loading(bytes);
    again.Serialize(archive);
    if (storedBytes(again) != bytes) {
        std::abort();
    }
}

void giveCommand(CVorl_ADVDoc& document, FuzzPort& port, Choices& choices) {
    port.answer = choices.below(4) != 0;
    switch (choices.below(24)) {
        case 0:
        case 1:
            return select(document, choices);
        case 2:
            document.SimulateTimeSeries(simulation(choices), 1);
            return document.SelectProbe(0);
        case 3:
            document.EnterZoomMode();
            return;
        case 4:
            document.Clip(choices.real(), choices.real());
            return;
        case 5:
            document.ResetTimeSeries();
            return;
        case 6:
            document.ChangeCoordinateSystem({choices.real(), choices.real(), choices.real(), position(choices)});
            return;
        case 7:
            document.EditTimeSeries(editing(choices));
            return;
        case 8:
            document.FilterTimeSeries(
                {choices.code<FilterShape>(4), choices.code<FilterType>(4), choices.real(), choices.real()});
            return;
        case 9:
            document.StationarityAnalysis({choices.code<BandMode>(2), choices.integer()});
            return;
        case 10: {
            const std::int32_t grades = choices.integer();
            document.Distributions({grades > kMostHoles ? 7 : grades, choices.integer(), choices.yes()});
            return;
        }
        case 11:
        case 12:
            document.SpectralAnalysis(spectral(choices));
            return;
        case 13:
            document.CrossSpectralAnalysis();
            return;
        case 14:
            document.QuadrantsAnalysis(quadrants(choices));
            return;
        case 15:
            document.ExtractDissipationRate({choices.code<DissipationSource>(2), choices.real(), choices.real()});
            return;
        case 16:
            document.ExtractScales({choices.code<ScalesSource>(2), choices.real(), choices.real()});
            return;
        case 17:
            document.VectorsOfMeanVelocities(
                {choices.code<std::int32_t>(3), choices.integer(), choices.real(), choices.real()});
            return;
        case 18:
        case 19:
            return giveGridCommand(document, choices);
        case 20: {
            const auto stage = static_cast<Stage>(choices.below(kStageCount));
            document.SetPage(stage, page(choices, pageOfStage(document.GetWorkspace(), stage)));
            return;
        }
        case 21:
            document.SetMeanVelocity({choices.code<MeanVelocityMode>(2), choices.real()});
            return;
        case 22:
            if (const int group = choices.below(8); group == 7) {
                document.SetPlanFrame(choices.below(2), frame(choices, defaultPlanFrame(0)));
            } else if (document.HasProbe()) {
                document.SetFrame(group, choices.below(3), frame(choices, defaultFrame(group, 0)));
            }
            return;
        default:
            choices.yes() ? document.Undo() : document.Redo();
    }
}

void show(const CVorl_ADVDoc& document, Choices& choices) {
    const auto stage = static_cast<Stage>(choices.below(kStageCount));
    const int painted = choices.below(4 * kPaneCount);
    for (int i = 0; i < 4 * kPaneCount; ++i) {
        const PaneRequest request{document.GetWorkspace(),
                                  document.ActiveFile(),
                                  document.ActiveProbe(),
                                  stage,
                                  static_cast<Pane>(i % kPaneCount),
                                  i % 8 < 4 ? PhysicalValue::Velocities : PhysicalValue::Stresses,
                                  i < 8};
        const PaneContent content = describePane(request);
        if (i == painted) {
            paint(request, content, choices);
        }
    }
    for (int i = 0; i < kCommandCount; ++i) {
        commandState(document, static_cast<Command>(i));
    }
    if (choices.below(8) == 1 && refusalOf(pageOfStage(document.GetWorkspace(), stage), PaperSize()).empty()) {
        QImage image(400, 400, QImage::Format_RGB32);
        QPainter painter(&image);
        const PaneRequest request{document.GetWorkspace(), document.ActiveFile(), document.ActiveProbe(), stage};
        paintPage(painter, describePage(request, PaperSize()), 30.0);
    }
}

void exportOne(const CVorl_ADVDoc& document, Choices& choices) {
    const ExportKindInfo& info = exportKinds().at(static_cast<std::size_t>(choices.below(kExportKindCount)));
    Nowhere nowhere;
    for (const bool all : {false, true}) {
        std::ostream stream(&nowhere);
        try {
            document.Export(stream, info.kind, {.header = all, .time = all}, all && info.writeAll != nullptr);
        } catch (const InvalidArgument&) {
        }
    }
}

}  // namespace vorlan

// Starts the toolkit without a screen.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv);
    return 0;
}
