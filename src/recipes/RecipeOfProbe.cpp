#include "recipes/RecipeOfProbe.h"

#include <array>
#include <charconv>
#include <cmath>

#include "model/Index.h"
#include "model/Printable.h"
#include "model/Text.h"
#include "recipes/ProgramName.h"
#include "recipes/RecipeSteps.h"
#include "recipes/StepsOfCommands.h"

namespace vorlan {

namespace {

/// The fewest digits that read back to the same number.
std::string realText(double value) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    const std::string text(buffer.data(), end);
    // An integer would lose the sign.
    return value == 0.0 && std::signbit(value) ? "-0.0" : text;
}

std::string quoted(const std::string& bytes) {
    std::string text = "\"";
    for (const char c : utf8Text(bytes)) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            text += std::string("\\") + c;
        } else if (code < 0x20 || code == 0x7F) {
            text += formatted("\\u%04X", code);
        } else {
            text += c;
        }
    }
    return text + "\"";
}

template <class List, class Text>
std::string bracketed(const List& list, Text textOfItem) {
    std::string text;
    for (const auto& item : list) {
        text += (text.empty() ? "" : ", ") + textOfItem(item);
    }
    return "[" + text + "]";
}

std::string valueText(const KeyRule& key, const StepValues& values) {
    const auto word = [&](int index) { return quoted(key.choices.at(asSize(index))); };
    switch (key.type) {
        case KeyType::Boolean:
            return values.boolean(key.name) ? "true" : "false";
        case KeyType::Integer:
            return std::to_string(values.integer(key.name));
        case KeyType::Real:
            return realText(values.real(key.name));
        case KeyType::Choice:
            return word(values.choice(key.name));
        case KeyType::Text:
            return quoted(values.text(key.name));
        case KeyType::Triple:
            return bracketed(values.triple(key.name), realText);
        case KeyType::Pair:
            return bracketed(values.pair(key.name), realText);
        case KeyType::Choices:
            return bracketed(values.choices(key.name), word);
        case KeyType::RealOrAuto: {
            const std::optional<double> real = values.realOrAuto(key.name);
            return real ? realText(*real) : quoted("auto");
        }
    }
    return {};
}

std::string stepText(const NamedStep& step) {
    std::string text = "\n[[step]]\ndo = " + quoted(step.name) + "\n";
    for (const KeyRule& key : stepNamed(step.name)->keys) {
        if (step.values.has(key.name)) {
            text += key.name + " = " + valueText(key, step.values) + "\n";
        }
    }
    return text;
}

template <class Given>
std::vector<NamedStep> stepsOf(const Given& given) {
    return {stepOf(given)};
}

std::vector<NamedStep> stepsOf(const FramesGiven& given) {
    std::vector<NamedStep> steps;
    for (const FramesGiven::Frame& frame : given.frames) {
        steps.push_back(stepOf(frame));
    }
    return steps;
}

/// Collects steps so that repeated stages find the parameters that they found.
class StepList {
  public:
    explicit StepList(const WorkspaceSettings& settings) : settings_(settings) {}

    void add(const DoneCommand& done) {
        if (done.repeated == true) {
            provide(done, DoneMark::Stationarity, &WorkspaceSettings::stationarity);
            provide(done, DoneMark::Histograms, &WorkspaceSettings::histograms);
            provide(done, DoneMark::Quadrants, &WorkspaceSettings::quadrants);
        }
        for (NamedStep& step : std::visit([](const auto& given) { return stepsOf(given); }, done.given)) {
            if (done.repeated == false) {
                step.values.set("repeat", false);
            }
            text_ += stepText(step);
        }
        remember(done.given, &WorkspaceSettings::stationarity);
        remember(done.given, &WorkspaceSettings::histograms);
        remember(done.given, &WorkspaceSettings::quadrants);
    }
    const std::string& text() const { return text_; }

  private:
    /// The parameters of a stage may come from another probe: then the stage is run with them before it is repeated.
    template <class Settings>
    void provide(const DoneCommand& done, DoneMark mark, Settings WorkspaceSettings::*part) {
        const Settings found = usable(done.settings.*part);
        if (done.stageDone[asSize(mark)] != 0 && !(found == usable(settings_.*part))) {
            text_ += stepText(stepOf(found));
            settings_.*part = found;
        }
    }

    template <class Settings>
    void remember(const GivenCommand& given, Settings WorkspaceSettings::*part) {
        if (const auto* settings = std::get_if<Settings>(&given)) {
            settings_.*part = *settings;
        }
    }

    WorkspaceSettings settings_;
    std::string text_;
};

}  // namespace

std::string recipeOfProbe(const CVorl_ADVDoc& document, const std::string& workspace) {
    const ProbeCommands record = document.CommandsOfProbe();
    StepList steps(record.settings);
    for (const DoneCommand* done : record.commands) {
        steps.add(*done);
    }
    const std::string name = printable(utf8Text(workspace));
    return "# What was done to a probe of " + name + ". To do it again:\n# " + kBatchName +
           " run --recipe THIS_FILE --out NEW.avp " + name +
           "\n# Without the next two lines it is done to every probe of every data file.\nfiles = [" +
           std::to_string(record.file + 1) + "]\nprobes = [" + std::to_string(record.probe + 1) + "]\n" + steps.text();
}

}  // namespace vorlan
