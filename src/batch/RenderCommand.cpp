#include "batch/LoadPictures.h"
#include "batch/Options.h"
#include "batch/Subcommands.h"
#include "recipes/Outputs.h"
#include "recipes/RecipeKeys.h"
#include "recipes/RenderRun.h"
#include "recipes/RunError.h"

namespace vorlan {

namespace {

struct RenderArguments {
    std::string input;
    ProbePlace place;
    RenderRequest request;
    int stage = 0;
    int pane = -1;
    int value = 0;
    int rightBottom = -1;
    int paper = kUsualPaper;
    bool landscape = false;
};

/// A page has the size of its paper, a picture lies on none.
void requireFittingSizes(const CLI::App& app, const RenderRequest& request) {
    const bool page = isPage(request.pane, request.path);
    for (const char* name : {"--size", "--paper", "--landscape"}) {
        const bool ofPicture = std::string(name) == "--size";
        if (app.count(name) > 0 && ofPicture == page) {
            throw usageError(std::string(name) + ": " + faultOfSize(page));
        }
    }
    if (const std::string fault = faultOfDpi(request.path); app.count("--dpi") > 0 && !fault.empty()) {
        throw usageError("--dpi: " + fault);
    }
}

void runRender(RenderArguments& arguments, const CLI::App& app, Console& console) {
    RenderRequest& request = arguments.request;
    request.stage = static_cast<Stage>(arguments.stage);
    request.value = static_cast<PhysicalValue>(arguments.value);
    if (arguments.pane >= 0) {
        request.pane = static_cast<Pane>(arguments.pane);
    }
    if (arguments.rightBottom >= 0) {
        request.showTable = arguments.rightBottom == 0;
    }
    if (const std::string fault = faultOfTriangles(request); !fault.empty()) {
        throw usageError("--triangle: " + fault);
    }
    requireFittingSizes(app, request);
    request.paper = paperOf(arguments.paper, arguments.landscape);
    requireOtherThanInput(request.path, arguments.input);
    requireOtherThanWorkspace(request.path);
    SilentPort port;
    CVorl_ADVDoc document(port);
    openDocument(document, arguments.input);
    Renderer renderer(loadPictures);
    std::string bytes;
    try {
        selectPlace(document, arguments.place);
        bytes = renderer.render(document, request);
        for (const std::string& text : triangleReadOuts(document, request)) {
            console.complain(arguments.input + ": " + text);
        }
    } catch (const RunError& error) {
        throw RunError(error.status(), arguments.input + ": " + error.what());
    }
    writeOutput(request.path, bytes, console.out);
}

}  // namespace

Subcommand addRenderCommand(CLI::App& program) {
    CLI::App* app = program.add_subcommand("render", "Draw a stage's diagrams into a picture");
    const auto arguments = std::make_shared<RenderArguments>();
    addChoice(*app, "--stage", arguments->stage, stageNames(), choicesHelp("The stage", stageNames()))
        ->required()
        ->type_name("STAGE");
    addChoice(*app, "--pane", arguments->pane, paneNames(),
              "One pane: " + listed(paneNames()) + ";\nall four without it")
        ->type_name("PANE");
    addChoice(*app, "--values", arguments->value, physicalValueNames(), "What stages with two sides show")
        ->type_name("velocities|stresses")
        ->default_str("velocities");
    app->add_option_function<std::string>(
           "--out",
           [arguments](const std::string& text) {
               const std::string fault = faultOfPicturePath(text);
               if (!fault.empty()) {
                   throw CLI::ValidationError("--out", "\"" + text + "\" " + fault);
               }
               arguments->request.path = text;
           },
           "The picture to write, .png, .svg or .pdf; a .pdf of all panes\nis the printed page")
        ->required()
        ->type_name("OUT");
    app->add_option_function<std::string>(
           "--size",
           [arguments](const std::string& text) {
               const std::optional<PictureSize> size = parsePictureSize(text);
               if (!size) {
                   throw CLI::ValidationError("--size", std::string("\"") + text + "\" " + kPictureSizeFault);
               }
               arguments->request.size = *size;
           },
           "Width and height, pixels (of 1/96 inch in .svg and .pdf)")
        ->type_name("WxH")
        ->default_str("1200x900");
    addInteger(*app, "--dpi", arguments->request.dpi, kDpiRange,
               "Dots per inch of a .png: fonts, ticks and pens grow with it");
    addChoice(*app, "--right-bottom", arguments->rightBottom, rightBottomNames(),
              "What the right bottom pane shows that has a table and a\ndiagram; without it what the stage opens with")
        ->type_name("table|diagram");
    app->add_option_function<std::vector<std::string>>(
           "--triangle",
           [arguments](const std::vector<std::string>& texts) {
               for (const std::string& text : texts) {
                   const std::optional<std::vector<double>> numbers = parseReals(text, 3);
                   if (!numbers) {
                       throw CLI::ValidationError("--triangle",
                                                  "\"" + text + "\" must be three numbers, as in 1,4,0.5");
                   }
                   arguments->request.triangles.push_back({(*numbers)[0], (*numbers)[1], (*numbers)[2]});
               }
           },
           "A triangle of the slope -5/3 (left-bottom of spectral) or 2/3\n(right-top) from X1 to X2, at X1 as high as "
           "Y; may be given again")
        ->type_name("X1,X2,Y")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->expected(1);
    addPaper(*app, arguments->paper, arguments->landscape);
    addPlace(*app, arguments->place);
    needsName(app->add_option("IN.avp", arguments->input, "The workspace to read"))->required()->type_name("");
    return {app, [arguments, app](Console& console) {
                runRender(*arguments, *app, console);
                return ExitStatus::Done;
            }};
}

}  // namespace vorlan
