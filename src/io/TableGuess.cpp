#include "io/TableGuess.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "io/TableText.h"
#include "model/Index.h"
#include "model/ParseNumber.h"
#include "model/Text.h"

namespace vorlan {

namespace {

using Column = RecordColumns::Column;

/// Lower case letters and digits of a name: "Vel_X [m/s]" is "velx" without its brackets.
std::string plainName(std::string_view name) {
    std::string plain;
    for (const char c : name.substr(0, name.find_first_of("[("))) {
        const char lower = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        if ((lower >= 'a' && lower <= 'z') || (lower >= '0' && lower <= '9')) {
            plain += lower;
        }
    }
    for (const std::string_view unit : {"cms", "mms", "ms"}) {
        // "u m/s": the unit behind a blank.
        if (name.find('/') != std::string_view::npos && plain.size() > unit.size() && plain.ends_with(unit)) {
            plain.resize(plain.size() - unit.size());
            break;
        }
    }
    return plain;
}

struct KnownNames {
    Column column;
    std::array<std::string_view, 9> names;
};

// Names that instruments and spreadsheets give to the columns, without blanks and punctuation.
constexpr KnownNames kKnown[] = {
    {Column::U, {"u", "ux", "vx", "velx", "velocityx", "vel1", "velocity1", "east", "v1"}},
    {Column::V, {"v", "uy", "vy", "vely", "velocityy", "vel2", "velocity2", "north", "v2"}},
    {Column::W, {"w", "uz", "vz", "velz", "velocityz", "vel3", "velocity3", "up", "v3"}},
    {Column::Cor1, {"cor1", "corr1", "correlation1", "corx", "corrx"}},
    {Column::Cor2, {"cor2", "corr2", "correlation2", "cory", "corry"}},
    {Column::Cor3, {"cor3", "corr3", "correlation3", "corz", "corrz"}},
    {Column::Snr1, {"snr1", "snrx", "signaltonoise1", "snrbeam1"}},
    {Column::Snr2, {"snr2", "snry", "signaltonoise2", "snrbeam2"}},
    {Column::Snr3, {"snr3", "snrz", "signaltonoise3", "snrbeam3"}},
    {Column::Heading, {"heading", "hdg", "headingdeg"}},
    {Column::Pitch, {"pitch", "pitchdeg"}},
    {Column::Roll, {"roll", "rolldeg"}},
    {Column::Pressure, {"pressure", "press", "p"}},
};
constexpr std::array<std::string_view, 6> kTimes = {"t", "time", "times", "seconds", "sec", "elapsed"};

ColumnRole roleNamed(std::string_view name) {
    const std::string plain = plainName(name);
    if (plain.empty()) {
        return ColumnRole::skipped();
    }
    if (std::find(kTimes.begin(), kTimes.end(), plain) != kTimes.end()) {
        return ColumnRole::time();
    }
    for (const KnownNames& known : kKnown) {
        if (std::find(known.names.begin(), known.names.end(), plain) != known.names.end()) {
            return ColumnRole::record(known.column);
        }
    }
    return ColumnRole::skipped();
}

/// Whether the first fields of the rows rise by about the same step, from 0 or a step on or far away from velocities.
bool firstColumnRises(const TablePreview& preview) {
    std::vector<double> times;
    for (const TablePreview::Row& row : preview.rows) {
        double time = 0.0;
        if (row.fields.empty() || parseNumber(row.fields.front(), time) != std::errc()) {
            return false;
        }
        times.push_back(time);
    }
    constexpr double kSteady = 0.5;
    const std::optional<TimeSteps> steps = timeStepsOf(times);
    return times.size() > 2 && steps && steps->shortest > 0.0 && steps->unevenness() < kSteady;
}

std::vector<ColumnRole> rolesByPlace(const TablePreview& preview) {
    std::vector<ColumnRole> roles(preview.columns, ColumnRole::skipped());
    std::size_t first = 0;
    if (preview.columns > 3 && firstColumnRises(preview)) {
        roles[first++] = ColumnRole::time();
    }
    for (const Column column : {Column::U, Column::V, Column::W}) {
        if (first < roles.size()) {
            roles[first++] = ColumnRole::record(column);
        }
    }
    return roles;
}

}  // namespace

std::string ColumnRole::name() const {
    return isTime() ? "time" : isSkipped() ? "-" : RecordColumns::kNames.at(asSize(code_));
}

std::vector<ColumnRole> columnRoles() {
    std::vector<ColumnRole> roles = {ColumnRole::skipped(), ColumnRole::time()};
    for (std::size_t column = 0; column < RecordColumns::kColumns; ++column) {
        roles.push_back(ColumnRole::record(static_cast<Column>(column)));
    }
    return roles;
}

std::vector<ColumnRole> guessRoles(const TablePreview& preview) {
    if (preview.names.empty()) {
        return rolesByPlace(preview);
    }
    std::vector<ColumnRole> roles;
    for (const std::string& name : preview.names) {
        const ColumnRole role = roleNamed(name);
        const bool taken = std::find(roles.begin(), roles.end(), role) != roles.end();
        roles.push_back(taken ? ColumnRole::skipped() : role);
    }
    return roles;
}

VelocityUnit guessVelocityUnit(const TablePreview& preview, const std::vector<ColumnRole>& roles) {
    for (std::size_t i = 0; i < std::min(preview.names.size(), roles.size()); ++i) {
        if (roles[i] == ColumnRole::record(Column::U)) {
            const std::string& name = preview.names[i];
            return name.find("cm/s") != std::string::npos   ? VelocityUnit::CentimetresPerSecond
                   : name.find("mm/s") != std::string::npos ? VelocityUnit::MillimetresPerSecond
                   : name.find("m/s") != std::string::npos  ? VelocityUnit::MetresPerSecond
                                                            : VelocityUnit::CentimetresPerSecond;
        }
    }
    return VelocityUnit::CentimetresPerSecond;
}

TableOptions optionsOf(const std::vector<ColumnRole>& roles) {
    TableOptions options;
    std::string columns;
    for (std::size_t i = 0; i < roles.size(); ++i) {
        columns += i == 0 ? "" : ",";
        columns += roles[i].isTime() ? "-" : roles[i].name();
        if (roles[i].isTime()) {
            options.timeColumn = i;
        }
    }
    options.columns = std::move(columns);
    return options;
}

double TimeSteps::unevenness() const {
    return std::max(longest / mean - 1.0, 1.0 - shortest / mean);
}

std::optional<TimeSteps> timeStepsOf(const std::vector<double>& times) {
    if (times.size() < 2 || !(times.back() > times.front())) {
        return std::nullopt;
    }
    TimeSteps steps;
    steps.mean = (times.back() - times.front()) / static_cast<double>(times.size() - 1);
    steps.shortest = steps.longest = times[1] - times[0];
    for (std::size_t i = 1; i < times.size(); ++i) {
        const double step = times[i] - times[i - 1];
        steps.shortest = std::min(steps.shortest, step);
        steps.longest = std::max(steps.longest, step);
    }
    return steps;
}

std::vector<double> timesOf(std::string_view text, std::size_t column) {
    std::vector<double> times;
    TableLines lines(text);
    bool more = lines.next();
    lines.detectSeparator();
    if (more && isTableHeader(lines.fields())) {
        more = lines.next();
    }
    for (; more; more = lines.next()) {
        const auto& fields = lines.fields();
        double time = 0.0;
        if (column >= fields.size() || parseNumber(fields[column], time) != std::errc() || !std::isfinite(time)) {
            return {};
        }
        times.push_back(time);
    }
    return times;
}

double roundedInterval(const TimeSteps& steps) {
    // What the times are rounded to shows in the steps; over the whole record it counts for little.
    constexpr double kAllowed = 1e-4;
    for (int digits = 1; digits <= 9; ++digits) {
        double rounded = 0.0;
        parseNumber(formatted("%.*g", digits, steps.mean), rounded);
        if (std::abs(rounded - steps.mean) <= kAllowed * std::max(steps.longest - steps.shortest, 1e-3 * steps.mean)) {
            return rounded;
        }
    }
    return steps.mean;
}

}  // namespace vorlan
