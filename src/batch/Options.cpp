#include "batch/Options.h"

#include <algorithm>
#include <limits>

#include "model/Index.h"
#include "model/RangeText.h"
#include "model/Text.h"
#include "recipes/Outputs.h"
#include "recipes/RecipeKeys.h"
#include "recipes/TextValues.h"

namespace vorlan {

namespace {

void requireInRange(const std::string& option, double value, const Range& range) {
    if (!range.holds(value)) {
        throw CLI::ValidationError(option, shown(value) + " is not " + rangeText(range));
    }
}

CLI::Option* addNumber(CLI::App& app, const std::string& name, int& target, const std::string& help,
                       const std::string& fallback) {
    return app
        .add_option_function<std::string>(
            name,
            [&target, name](const std::string& text) {
                const std::optional<long long> number = parseInteger(text);
                if (!number || *number < 1 || *number > std::numeric_limits<int>::max()) {
                    throw CLI::ValidationError(name, "\"" + text + "\" is not an integer of 1 or more");
                }
                target = asInt(*number) - 1;
            },
            help)
        ->type_name("N")
        ->default_str(fallback);
}

}  // namespace

std::string shown(double value) {
    return formatted("%.15g", value);
}

CLI::Option* needsName(CLI::Option* option) {
    return option->check([](const std::string& name) { return name.empty() ? "the name is empty" : std::string(); });
}

CLI::Option* addWorkspaceOutput(CLI::App& app, std::string& path, const std::string& help) {
    return app
        .add_option_function<std::string>(
            "--out",
            [&path](const std::string& text) {
                if (text.empty() || text == kStandardOutput) {
                    throw CLI::ValidationError("--out", "a workspace needs a file name");
                }
                path = text;
            },
            help)
        ->type_name("OUT.avp");
}

CLI::Option* addReal(CLI::App& app, const std::string& name, double& target, const Range& range,
                     const std::string& unit, const std::string& help) {
    return app
        .add_option_function<std::string>(
            name,
            [&target, name, range](const std::string& text) {
                const std::optional<double> value = parseReal(text);
                if (!value) {
                    throw CLI::ValidationError(name, "\"" + text + "\" is not a number");
                }
                requireInRange(name, *value, range);
                target = *value;
            },
            help)
        ->type_name(unit);
}

CLI::Option* addInteger(CLI::App& app, const std::string& name, int& target, const Range& range,
                        const std::string& help) {
    return app
        .add_option_function<std::string>(
            name,
            [&target, name, range](const std::string& text) {
                const std::optional<long long> value = parseInteger(text);
                if (!value) {
                    throw CLI::ValidationError(name, "\"" + text + "\" is not a whole number");
                }
                requireInRange(name, static_cast<double>(*value), range);
                target = asInt(*value);
            },
            help)
        ->type_name("N")
        ->default_str(std::to_string(target));
}

CLI::Option* addTriple(CLI::App& app, const std::string& name, std::array<double, 3>& target, const Ranges& ranges,
                       const std::string& parts, const std::string& help) {
    return app
        .add_option_function<std::string>(
            name,
            [&target, name, ranges, parts](const std::string& text) {
                const std::optional<std::vector<double>> values = parseReals(text, target.size());
                if (!values) {
                    throw CLI::ValidationError(
                        name, "\"" + text + "\" is not three numbers " + parts + " with commas between them");
                }
                for (std::size_t i = 0; i < target.size(); ++i) {
                    requireInRange(name, (*values)[i], ranges[i]);
                }
                std::copy(values->begin(), values->end(), target.begin());
            },
            help)
        ->type_name(parts);
}

CLI::Option* addChoice(CLI::App& app, const std::string& name, int& target, const std::vector<std::string>& choices,
                       const std::string& help) {
    return app
        .add_option_function<std::string>(
            name,
            [&target, name, choices](const std::string& text) {
                const auto at = std::find(choices.begin(), choices.end(), text);
                if (at == choices.end()) {
                    throw CLI::ValidationError(name, "\"" + text + "\" is not " + listed(choices));
                }
                target = asInt(at - choices.begin());
            },
            help)
        ->type_name("NAME");
}

std::string choicesHelp(const std::string& what, const std::vector<std::string>& choices) {
    constexpr std::size_t kLineLength = 68;
    std::string help;
    std::size_t column = 0;
    for (const std::string& word : splitText(what + ": " + listed(choices), ' ')) {
        const bool fits = column + 1 + word.size() <= kLineLength;
        help += help.empty() ? "" : fits ? " " : "\n";
        column = fits ? column + 1 + word.size() : word.size();
        help += word;
    }
    return help;
}

void addPlace(CLI::App& app, ProbePlace& place, const std::string& fallback) {
    addNumber(app, "--file", place.file, "Data file, counted from 1", fallback);
    addNumber(app, "--probe", place.probe, "Probe in the data file, counted from 1", fallback);
}

void addPaper(CLI::App& app, int& paper, bool& landscape) {
    addChoice(app, "--paper", paper, paperNames(), "Size of a printed page")
        ->type_name("a3|a4|a5|letter|legal")
        ->default_str(paperNames()[kUsualPaper]);
    app.add_flag("--landscape", landscape, "The paper lies on its long side");
}

}  // namespace vorlan
