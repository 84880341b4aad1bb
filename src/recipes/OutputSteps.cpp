// Steps that write files of the selected probe.
#include "recipes/ExportRun.h"
#include "recipes/RecipeSteps.h"

namespace vorlan {

namespace {

ExportRequest exportRequestOf(const StepValues& values) {
    ExportRequest request;
    request.kind = static_cast<ExportKind>(values.choice("kind"));
    request.options.header = values.boolean("header");
    request.options.time = values.boolean("time");
    request.options.separator = static_cast<Separator>(values.choice("separator"));
    request.all = values.boolean("all");
    return request;
}

Outcome runExport(StepContext& context, const StepValues& values) {
    context.outputs.add(outputOf(values)->expand(context.workspace, context.place),
                        exportedText(context.document, exportRequestOf(values)));
    return Outcome::Done;
}

std::string faultOfExport(const StepValues& values) {
    return faultOf(exportRequestOf(values));
}

RenderRequest renderRequestOf(const StepValues& values) {
    RenderRequest request;
    request.stage = static_cast<Stage>(values.choice("stage"));
    if (values.has("pane")) {
        request.pane = static_cast<Pane>(values.choice("pane"));
    }
    if (values.has("triangle")) {
        request.triangles.push_back(values.triple("triangle"));
    }
    request.value = static_cast<PhysicalValue>(values.choice("values"));
    if (values.has("size")) {
        request.size = parsePictureSize(values.text("size")).value();
    }
    if (values.has("dpi")) {
        request.dpi = values.integer("dpi");
    }
    if (values.has("right_bottom")) {
        request.showTable = values.choice("right_bottom") == 0;
    }
    request.paper = paperOf(values.has("paper") ? values.choice("paper") : kUsualPaper,
                            values.has("landscape") && values.boolean("landscape"));
    return request;
}

Outcome runRender(StepContext& context, const StepValues& values) {
    RenderRequest request = renderRequestOf(values);
    request.path = outputOf(values)->expand(context.workspace, context.place);
    context.outputs.add(request.path, context.renderer.render(context.document, request));
    for (const std::string& text : triangleReadOuts(context.document, request)) {
        context.port.tell(text);
    }
    return Outcome::Done;
}

/// A page has the size of its paper, a picture lies on none.
std::string faultOfRender(const StepValues& values) {
    const bool page = !values.has("pane") && isPage(std::nullopt, values.text("out"));
    for (const char* name : {"size", "paper", "landscape"}) {
        const bool ofPicture = std::string(name) == "size";
        if (values.has(name) && ofPicture == page) {
            return std::string("\"") + name + "\": " + faultOfSize(page);
        }
    }
    if (const std::string fault = faultOfDpi(values.text("out")); values.has("dpi") && !fault.empty()) {
        return "\"dpi\": " + fault;
    }
    return faultOfTriangles(renderRequestOf(values));
}

std::string faultOfPicturePattern(const std::string& text) {
    const std::string fault = OutputPattern::faultOf(text);
    return fault.empty() ? faultOfPicturePath(text) : fault;
}

std::string faultOfPictureSize(const std::string& text) {
    return parsePictureSize(text) ? "" : kPictureSizeFault;
}

}  // namespace

std::vector<StepKind> outputSteps() {
    return {
        {.name = "export",
         .keys = {required(choiceKey("kind", exportNames())), required(textKey("out", {}, OutputPattern::faultOf)),
                  booleanKey("header", false), booleanKey("time", false),
                  choiceKey("separator", separatorNames(), "space"), booleanKey("all", false)},
         .run = runExport,
         .faultOfValues = faultOfExport},
        {.name = "render",
         .keys = {required(choiceKey("stage", stageNames())), choiceKey("pane", paneNames()),
                  choiceKey("values", physicalValueNames(), "velocities"), textKey("size", {}, faultOfPictureSize),
                  within(integerKey("dpi", {}), kDpiRange.minimum, kDpiRange.maximum),
                  choiceKey("right_bottom", rightBottomNames()), choiceKey("paper", paperNames()),
                  booleanKey("landscape", {}), tripleKey("triangle"),
                  required(textKey("out", {}, faultOfPicturePattern))},
         .run = runRender,
         .faultOfValues = faultOfRender},
    };
}

}  // namespace vorlan
