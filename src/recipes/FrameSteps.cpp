// The step that changes how diagrams are drawn.
#include <algorithm>
#include <cmath>

#include "model/FrameLimits.h"
#include "model/FrameSlot.h"
#include "recipes/RecipeSteps.h"
#include "recipes/RunError.h"
#include "recipes/StepsOfCommands.h"
#include "recipes/TextValues.h"

namespace vorlan {

namespace {

constexpr int kLargestCount = 32767;
constexpr int kLargestDigits = 9;
constexpr int kLargestPart = 255;  // of a colour
constexpr int kLargestWeight = 1000;
constexpr const char* kFontFault =
    "must be a face, a height in pixels, then a weight, \"italic\", \"underline\" or \"strike-out\" as wanted, as in "
    "\"Arial, 14, 700, italic\"";

// The words of a code, in the order of the code's values.
const std::vector<std::string> kScales = {"linear", "log", "x-log", "y-log"};
const std::vector<std::string> kGrids = {"none", "marks", "ticks", "both"};
const std::vector<std::string> kFrames = {"ordinary", "full"};
const std::vector<std::string> kOrientations = {"up-right", "down-left"};
const std::vector<std::string> kLegends = {"bottom", "right-top", "none"};
const std::vector<std::string> kLineStyles = {"solid", "dotted"};
constexpr std::int32_t kDotted = 2;

std::string trimmed(const std::string& text) {
    const std::size_t from = text.find_first_not_of(' ');
    return from == std::string::npos ? "" : text.substr(from, text.find_last_not_of(' ') - from + 1);
}

std::optional<FontDescription> parseFont(const std::string& text) {
    const std::vector<std::string> parts = splitText(text, ',');
    const std::optional<long long> height = parts.size() > 1 ? parseInteger(trimmed(parts[1])) : std::nullopt;
    if (!height || *height == 0 || std::llabs(*height) > kLargestCount || trimmed(parts[0]).empty()) {
        return std::nullopt;
    }
    FontDescription font(trimmed(parts[0]), static_cast<std::int32_t>(*height), FontDescription().weight());
    for (std::size_t i = 2; i < parts.size(); ++i) {
        const std::string part = trimmed(parts[i]);
        const std::optional<long long> weight = parseInteger(part);
        if (weight && *weight > 0 && *weight <= kLargestWeight) {
            font.setWeight(static_cast<std::int32_t>(*weight));
        } else if (part == "italic") {
            font.setItalic(true);
        } else if (part == "underline") {
            font.setUnderline(true);
        } else if (part == "strike-out") {
            font.setStrikeOut(true);
        } else {
            return std::nullopt;
        }
    }
    return font;
}

std::string faultOfFont(const std::string& text) {
    return parseFont(text) ? "" : kFontFault;
}

/// A key of the step and the member that it sets.
template <class Member>
struct FrameKey {
    const char* name;
    Member FrameAttributesType::*member;
};

constexpr FrameKey<std::string> kTexts[] = {{"title", &FrameAttributesType::plotTitle},
                                            {"x_title", &FrameAttributesType::xTitle},
                                            {"y_title", &FrameAttributesType::yTitle},
                                            {"legend_title", &FrameAttributesType::legendTitle}};
constexpr FrameKey<std::int32_t> kCounts[] = {{"tick_size", &FrameAttributesType::tickSize},
                                              {"mark_size", &FrameAttributesType::markSize},
                                              {"x_ticks", &FrameAttributesType::ticksPerMark},
                                              {"y_ticks", &FrameAttributesType::ticksPerMark}};
constexpr FrameKey<std::int32_t> kDigits[] = {{"x_digits", &FrameAttributesType::xDigits},
                                              {"y_digits", &FrameAttributesType::yDigits}};
constexpr FrameKey<FontDescription> kFonts[] = {{"title_font", &FrameAttributesType::plotTitleFont},
                                                {"axis_font", &FrameAttributesType::axisTitleFont},
                                                {"label_font", &FrameAttributesType::labelFont},
                                                {"legend_font", &FrameAttributesType::legendFont}};

struct FreeValue {
    const char* name;
    double FrameAttributesType::*value;
    std::int32_t FrameAttributesType::*mode;
};
constexpr FreeValue kFreeValues[] = {{"x_min", &FrameAttributesType::xMin, &FrameAttributesType::xMinMode},
                                     {"x_max", &FrameAttributesType::xMax, &FrameAttributesType::xMaxMode},
                                     {"y_min", &FrameAttributesType::yMin, &FrameAttributesType::yMinMode},
                                     {"y_max", &FrameAttributesType::yMax, &FrameAttributesType::yMaxMode},
                                     {"x_step", &FrameAttributesType::xStep, &FrameAttributesType::xStepMode},
                                     {"y_step", &FrameAttributesType::yStep, &FrameAttributesType::yStepMode}};

struct Code {
    const char* name;
    const std::vector<std::string>& words;
    std::int32_t FrameAttributesType::*member;
};

const std::vector<Code>& codes() {
    static const std::vector<Code> all = {{"scale", kScales, &FrameAttributesType::scaleType},
                                          {"grid", kGrids, &FrameAttributesType::gridMode},
                                          {"frame", kFrames, &FrameAttributesType::frameStyle},
                                          {"orientation", kOrientations, &FrameAttributesType::tickOrientation},
                                          {"legend", kLegends, &FrameAttributesType::legendPosition}};
    return all;
}

void applyFreeValue(const FreeValue& key, const StepValues& values, FrameAttributesType& frame) {
    if (!values.has(key.name)) {
        return;
    }
    const std::optional<double> number = values.realOrAuto(key.name);
    frame.*key.mode = number ? 1 : 0;
    if (number) {
        frame.*key.value = *number;
    }
}

void apply(const StepValues& values, FrameAttributesType& frame) {
    for (const auto& key : kTexts) {
        frame.*key.member = values.has(key.name) ? values.text(key.name) : frame.*key.member;
    }
    for (const auto& key : kCounts) {
        frame.*key.member = values.has(key.name) ? values.integer(key.name) : frame.*key.member;
    }
    for (const auto& key : kDigits) {
        frame.*key.member = values.has(key.name) ? values.integer(key.name) : frame.*key.member;
    }
    for (const auto& key : kFonts) {
        frame.*key.member = values.has(key.name) ? parseFont(values.text(key.name)).value() : frame.*key.member;
    }
    for (const Code& key : codes()) {
        frame.*key.member = values.has(key.name) ? values.choice(key.name) : frame.*key.member;
    }
    for (const FreeValue& key : kFreeValues) {
        applyFreeValue(key, values, frame);
    }
    if (values.has("grid_style")) {
        frame.gridLineStyle = values.choice("grid_style") == 0 ? 0 : kDotted;
    }
    if (values.has("grid_color")) {
        const std::array<double, 3>& parts = values.triple("grid_color");
        frame.gridColour = static_cast<std::int32_t>(parts[0] + 256.0 * parts[1] + 65536.0 * parts[2]);
    }
}

Outcome runFrame(StepContext& context, const StepValues& values) {
    const auto stage = static_cast<Stage>(values.choice("stage"));
    const auto pane = static_cast<Pane>(values.choice("pane"));
    const std::optional<FrameSlot> slot =
        frameSlotOf(stage, pane, static_cast<PhysicalValue>(values.choice("values")), false);
    const bool allPanes = values.boolean("all_panes");
    if (!slot && !allPanes) {
        throw refusal("this pane shows no diagram");
    }
    const bool limits = std::any_of(std::begin(kFreeValues), std::end(kFreeValues),
                                    [&](const FreeValue& key) { return values.has(key.name); });
    // Called on copies: nothing is written when one is refused.
    const auto change = [&](const FrameSlot& changed, FrameAttributesType& frame) {
        const std::int32_t scale = frame.scaleType;
        apply(values, frame);
        if (allPanes && !allowsScale(changed, frame.scaleType)) {
            frame.scaleType = scale;
        }
        const Refusal refused = limitsRefusal(frame);
        if (limits && !refused.empty()) {
            throw refusal(refused.text);
        }
    };
    const std::vector<FrameSlot> slots = allPanes ? frameSlotsOf(stage) : std::vector<FrameSlot>{*slot};
    context.document.ChangeFrames(slots, change, values.boolean("all_probes"));
    return Outcome::Done;
}

std::string faultOfFrame(const StepValues& values) {
    if (values.has("x_ticks") && values.has("y_ticks") && values.integer("x_ticks") != values.integer("y_ticks")) {
        return "\"y_ticks\": both axes have as many ticks per mark";
    }
    if (values.has("grid_color")) {
        for (const double part : values.triple("grid_color")) {
            if (part < 0.0 || part > kLargestPart || part != std::floor(part)) {
                return "\"grid_color\": must be red, green and blue, integers from 0 to 255";
            }
        }
    }
    return {};
}

std::vector<KeyRule> frameKeys() {
    std::vector<KeyRule> keys = {required(choiceKey("stage", stageNames())),
                                 required(choiceKey("pane", paneNames())),
                                 choiceKey("values", physicalValueNames(), "velocities"),
                                 booleanKey("all_probes", false),
                                 booleanKey("all_panes", false),
                                 choiceKey("grid_style", kLineStyles),
                                 tripleKey("grid_color")};
    for (const auto& key : kTexts) {
        keys.push_back(textKey(key.name, {}));
    }
    for (const auto& key : kCounts) {
        keys.push_back(within(integerKey(key.name, {}), 0, kLargestCount));
    }
    for (const auto& key : kDigits) {
        keys.push_back(within(integerKey(key.name, {}), 0, kLargestDigits));
    }
    for (const auto& key : kFonts) {
        keys.push_back(textKey(key.name, {}, faultOfFont));
    }
    for (const FreeValue& key : kFreeValues) {
        keys.push_back(realOrAutoKey(key.name));
    }
    for (const Code& key : codes()) {
        keys.push_back(choiceKey(key.name, key.words));
    }
    return keys;
}

std::string fontText(const FontDescription& font) {
    return font.face() + ", " + std::to_string(font.height()) + ", " + std::to_string(font.weight()) +
           (font.italic() ? ", italic" : "") + (font.underline() ? ", underline" : "") +
           (font.strikeOut() ? ", strike-out" : "");
}

/// Names the diagram of a slot.
void giveDiagram(const FrameSlot& slot, StepValues& values) {
    for (int stage = 0; stage < kStageCount; ++stage) {
        for (int pane = 0; pane < kPaneCount; ++pane) {
            for (const int value : {0, 1}) {
                if (frameSlotOf(static_cast<Stage>(stage), static_cast<Pane>(pane), static_cast<PhysicalValue>(value),
                                false) == slot &&
                    !values.has("stage")) {
                    values.set("stage", stage);
                    values.set("pane", pane);
                    values.set("values", value);
                }
            }
        }
    }
}

}  // namespace

NamedStep stepOf(const FramesGiven::Frame& given) {
    const FrameAttributesType& before = given.before;
    const FrameAttributesType& after = given.after;
    NamedStep step{"frame", {}};
    giveDiagram(given.slot, step.values);
    const auto giveChanged = [&](const char* name, auto member, const auto& value) {
        if (!(after.*member == before.*member)) {
            step.values.set(name, value);
        }
    };
    for (const auto& key : kTexts) {
        giveChanged(key.name, key.member, after.*key.member);
    }
    for (const auto& key : kCounts) {
        giveChanged(key.name, key.member, static_cast<int>(after.*key.member));
    }
    for (const auto& key : kDigits) {
        giveChanged(key.name, key.member, static_cast<int>(after.*key.member));
    }
    for (const auto& key : kFonts) {
        giveChanged(key.name, key.member, fontText(after.*key.member));
    }
    for (const Code& key : codes()) {
        giveChanged(key.name, key.member, static_cast<int>(after.*key.member));
    }
    for (const FreeValue& key : kFreeValues) {
        const bool isFree = after.*key.mode != 0;
        if (after.*key.mode != before.*key.mode || (isFree && after.*key.value != before.*key.value)) {
            step.values.set(key.name, isFree ? KeyValue(after.*key.value) : KeyValue(std::string("auto")));
        }
    }
    giveChanged("grid_style", &FrameAttributesType::gridLineStyle, after.gridLineStyle == 0 ? 0 : 1);
    giveChanged("grid_color", &FrameAttributesType::gridColour,
                std::array<double, 3>{static_cast<double>(after.gridColour & 255),
                                      static_cast<double>(after.gridColour >> 8 & 255),
                                      static_cast<double>(after.gridColour >> 16 & 255)});
    return step;
}

std::vector<StepKind> frameSteps() {
    return {{.name = "frame", .keys = frameKeys(), .run = runFrame, .faultOfValues = faultOfFrame}};
}

}  // namespace vorlan
