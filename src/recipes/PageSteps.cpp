// The step that lays out a stage's printed page.
#include <algorithm>

#include "model/Index.h"
#include "model/PageLayout.h"
#include "model/StageTable.h"
#include "recipes/RecipeSteps.h"
#include "recipes/StepsOfCommands.h"

namespace vorlan {

namespace {

struct LengthKey {
    const char* name;
    double PageAtrType::*value;
};
constexpr LengthKey kLengths[] = {
    {"left", &PageAtrType::leftMargin},   {"right", &PageAtrType::rightMargin},
    {"top", &PageAtrType::topMargin},     {"bottom", &PageAtrType::bottomMargin},
    {"inner", &PageAtrType::innerMargin}, {"font_scale", &PageAtrType::fontScale},
};

// By pane.
constexpr const char* kSizes[] = {"left_top", "left_bottom", "right_top", "right_bottom"};

enum LayoutChoice { kColumn, kGrid };

Outcome runPage(StepContext& context, const StepValues& values) {
    const auto stage = static_cast<Stage>(values.choice("stage"));
    PageAtrType page = pageOfStage(context.document.GetWorkspace(), stage);
    if (values.has("header")) {
        page.header = values.text("header");
    }
    if (values.has("footer")) {
        page.footer = values.text("footer");
    }
    if (values.has("layout")) {
        page.layout = values.choice("layout") == kGrid ? 0 : 1;
    }
    for (const LengthKey& key : kLengths) {
        if (values.has(key.name)) {
            page.*key.value = values.real(key.name);
        }
    }
    for (int pane = 0; pane < kPaneCount; ++pane) {
        if (values.has(kSizes[pane])) {
            const auto& [height, width] = values.pair(kSizes[pane]);
            page.*sizeOf(static_cast<Pane>(pane)) = {height, width};
        }
        if (values.has("panes")) {
            const std::vector<int>& ticked = values.choices("panes");
            page.*printFlagOf(static_cast<Pane>(pane)) =
                static_cast<std::int32_t>(std::count(ticked.begin(), ticked.end(), pane) > 0);
        }
    }
    return context.document.SetPage(stage, page);
}

}  // namespace

NamedStep stepOf(const PageGiven& given) {
    const auto& [stage, before, after] = given;
    NamedStep step{"page", {}};
    StepValues& values = step.values;
    values.set("stage", asInt(stage));
    if (after.header != before.header) {
        values.set("header", after.header);
    }
    if (after.footer != before.footer) {
        values.set("footer", after.footer);
    }
    if (after.layout != before.layout) {
        values.set("layout", asInt(after.layout == 0 ? kGrid : kColumn));
    }
    for (const LengthKey& key : kLengths) {
        if (after.*key.value != before.*key.value) {
            values.set(key.name, after.*key.value);
        }
    }
    std::vector<int> ticked;
    bool ticksChange = false;
    for (int pane = 0; pane < kPaneCount; ++pane) {
        const auto size = sizeOf(static_cast<Pane>(pane));
        const auto flag = printFlagOf(static_cast<Pane>(pane));
        if (!(after.*size == before.*size)) {
            values.set(kSizes[pane], std::array{(after.*size).height, (after.*size).width});
        }
        if (after.*flag != 0) {
            ticked.push_back(pane);
        }
        ticksChange = ticksChange || after.*flag != before.*flag;
    }
    if (ticksChange) {
        values.set("panes", ticked);
    }
    return step;
}

std::vector<StepKind> pageSteps() {
    std::vector<KeyRule> keys = {required(choiceKey("stage", stageNames())), textKey("header", {}),
                                 textKey("footer", {}), choiceKey("layout", {"column", "grid"}),
                                 choicesKey("panes", paneNames())};
    for (const LengthKey& key : kLengths) {
        keys.push_back(realKey(key.name, {}));
    }
    for (const char* name : kSizes) {
        keys.push_back(pairKey(name));
    }
    return {{.name = "page", .keys = std::move(keys), .run = runPage, .onWorkspace = true}};
}

}  // namespace vorlan
