#include "io/DelimitedTable.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "io/ReadFile.h"
#include "io/TableText.h"
#include "model/Index.h"
#include "model/ParseNumber.h"
#include "model/StoreValue.h"
#include "model/Text.h"

namespace vorlan {

namespace {

constexpr std::size_t kSkipped = RecordColumns::kColumns;
constexpr double kMissing = std::numeric_limits<double>::quiet_NaN();

/// A reason with the number of the field it belongs to, from 1. No reason when nothing is wrong.
struct Fault {
    std::size_t field = 0;
    std::string reason;
    bool isNone() const { return reason.empty(); }
};

/// Which column of the record each field goes to.
struct Layout {
    std::vector<std::size_t> targets;
    std::vector<std::string> unused;
};

std::size_t columnNamed(std::string_view name) {
    std::string lower(name);
    for (char& c : lower) {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    const auto found = std::find(RecordColumns::kNames.begin(), RecordColumns::kNames.end(), lower);
    return asSize(found - RecordColumns::kNames.begin());
}

// A header may name columns that no probe takes; a list that somebody wrote for this purpose may not.
Fault lay(const std::vector<std::string_view>& names, bool unknownAllowed, Layout& layout) {
    if (names.size() > TableLines::kMostFields) {
        return {TableLines::kMostFields + 1, formatted("more than %zu columns", TableLines::kMostFields)};
    }
    std::array<bool, RecordColumns::kColumns> present{};
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::size_t target = columnNamed(names[i]);
        layout.targets.push_back(target);
        if (target != kSkipped) {
            if (present[target]) {
                return {i + 1, "column " + shownField(names[i]) + " is named twice"};
            }
            present[target] = true;
        } else if (!names[i].empty() && names[i] != "-") {
            if (!unknownAllowed) {
                return {i + 1, "unknown column " + shownField(names[i])};
            }
            layout.unused.emplace_back(names[i]);
        }
    }
    for (const std::size_t required : {RecordColumns::U, RecordColumns::V, RecordColumns::W}) {
        if (!present[required]) {
            return {names.size() + 1, "there is no column " + shownField(RecordColumns::kNames[required])};
        }
    }
    if (present[RecordColumns::Heading] != present[RecordColumns::Pitch] ||
        present[RecordColumns::Pitch] != present[RecordColumns::Roll]) {
        return {names.size() + 1, "the columns heading, pitch and roll come together or not at all"};
    }
    return {};
}

Fault layList(const std::string& list, Layout& layout) {
    TableLines lines(list);
    lines.next();
    lines.detectSeparator();
    return lay(lines.fields(), false, layout);
}

enum class Reading { Number, Missing, NotFinite, OutOfRange, NoNumber };

Reading readNumber(std::string_view field, double& value) {
    if (field.empty() || isSpreadsheetError(field)) {
        return Reading::Missing;
    }
    const std::errc error = parseNumber(field, value);
    if (error == std::errc::invalid_argument) {
        return Reading::NoNumber;
    }
    if (error != std::errc()) {
        return Reading::OutOfRange;
    }
    return std::isnan(value) ? Reading::Missing : std::isinf(value) ? Reading::NotFinite : Reading::Number;
}

bool holdsNumber(std::string_view field) {
    double value = 0.0;
    const Reading reading = readNumber(field, value);
    return reading != Reading::NoNumber && reading != Reading::Missing;
}

/// The number with its decimal point moved to the right by places.
Reading readMoved(std::string_view field, int places, double& value) {
    const Reading plain = readNumber(field, value);
    if (places == 0 || plain != Reading::Number) {
        return plain;
    }
    const std::size_t mark = std::min(field.find_first_of("eE"), field.size());
    double exponent = 0.0;
    if (mark < field.size()) {
        parseNumber(field.substr(mark + 1), exponent);
    }
    return readNumber(std::string(field.substr(0, mark)) + formatted("e%.0f", exponent + places), value);
}

int placesOf(VelocityUnit unit) {
    return unit == VelocityUnit::MetresPerSecond ? 2 : unit == VelocityUnit::MillimetresPerSecond ? -1 : 0;
}

/// Puts the rows of a table into columns.
class Rows {
  public:
    Rows(const Layout& layout, const TableOptions& options, DelimitedTable& table)
        : layout_(layout),
          options_(options),
          record_(table.record),
          times_(table.times),
          places_(placesOf(options.velocityUnit)) {}

    Fault add(const std::vector<std::string_view>& fields) {
        const std::size_t wanted = layout_.targets.size();
        if (fields.size() != wanted) {
            return {std::min(fields.size(), wanted) + 1, formatted("%zu fields instead of %zu", fields.size(), wanted)};
        }
        std::size_t firstGap = 0;  // the first other column without a value
        bool valid = true;
        for (std::size_t i = 0; i < wanted; ++i) {
            const std::size_t target = layout_.targets[i];
            if (i == options_.timeColumn) {
                if (const std::string reason = takeTime(fields[i]); !reason.empty()) {
                    return {i + 1, reason};
                }
            }
            if (target == kSkipped) {
                continue;
            }
            const bool isVelocity = target <= RecordColumns::W;
            double value = 0.0;
            const Reading reading = readMoved(fields[i], isVelocity ? places_ : 0, value);
            if (reading == Reading::Missing && options_.missing == TableOptions::Missing::Mark) {
                value = kMissing;
                valid = valid && !isVelocity;
                firstGap = isVelocity || firstGap != 0 ? firstGap : i + 1;
            } else if (const std::string reason = refusal(reading, fields[i], value, isVelocity); !reason.empty()) {
                return {i + 1, reason};
            }
            record_.values[target].push_back(value);
        }
        if (valid && firstGap != 0) {
            return {firstGap, "the value is missing beside a velocity that is there"};
        }
        record_.valid.push_back(valid ? 1 : 0);
        return {};
    }

  private:
    std::string takeTime(std::string_view field) {
        double time = 0.0;
        const Reading reading = readNumber(field, time);
        times_.push_back(time);
        return reading == Reading::Number    ? std::string()
               : reading == Reading::Missing ? "the time is missing"
                                             : shownField(field) + " is not a time in seconds";
    }

    std::string refusal(Reading reading, std::string_view field, double value, bool isVelocity) const {
        switch (reading) {
            case Reading::Missing:
                return isVelocity ? "the velocity is missing" : "the value is missing";
            case Reading::NoNumber:
                return shownField(field) + " is not a number";
            case Reading::NotFinite:
            case Reading::OutOfRange:
                return shownField(field) + " is not a finite number";
            case Reading::Number:
                break;
        }
        const double resolution = isVelocity ? options_.velocityResolution : options_.otherResolution;
        return fitsInt32(value / resolution)
                   ? std::string()
                   : shownField(field) + formatted(" is too large for the resolution %g", resolution);
    }

    const Layout& layout_;
    const TableOptions& options_;
    RecordColumns& record_;
    std::vector<double>& times_;
    int places_;
};

}  // namespace

TableError::TableError(const std::filesystem::path& path, std::size_t line, std::size_t column,
                       const std::string& reason)
    : FileError(Kind::Format, path, path.string() + formatted(":%zu:%zu: ", line, column) + reason, reason),
      line_(line),
      column_(column) {}

bool isTableHeader(const std::vector<std::string_view>& fields) {
    double value = 0.0;
    return std::all_of(fields.begin(), fields.end(),
                       [&](std::string_view field) { return readNumber(field, value) == Reading::NoNumber; });
}

std::string refusalOfColumnList(const std::string& columns) {
    Layout layout;
    return layList(columns, layout).reason;
}

DelimitedTable parseDelimitedTable(std::string_view text, const std::filesystem::path& path,
                                   const TableOptions& options) {
    TableLines lines(text);
    const auto refuse = [&](const Fault& fault) {
        if (!fault.isNone()) {
            throw TableError(path, std::max<std::size_t>(lines.number(), 1), fault.field, fault.reason);
        }
    };
    if (text.substr(0, 2) == "\xFF\xFE" || text.substr(0, 2) == "\xFE\xFF") {
        refuse({1, "the text is UTF-16; save it as UTF-8"});
    }
    bool more = lines.next();
    if (!more) {
        refuse({1, "the table is empty"});
    }
    lines.detectSeparator();

    DelimitedTable table;
    Layout layout;
    if (options.columns.has_value()) {
        refuse(layList(*options.columns, layout));
        if (isTableHeader(lines.fields())) {
            more = lines.next();
        }
    } else {
        const auto& names = lines.fields();
        if (const auto number = std::find_if(names.begin(), names.end(), holdsNumber); number != names.end()) {
            refuse({asSize(number - names.begin()) + 1,
                    shownField(*number) + " stands where a column name should; the columns need names"});
        }
        refuse(lay(names, true, layout));
        more = lines.next();
    }

    Rows rows(layout, options, table);
    for (; more; more = lines.next()) {
        refuse(rows.add(lines.fields()));
    }
    if (table.record.sampleCount() == 0) {
        refuse({1, "there are no samples"});
    }
    for (std::size_t i = 0; i < layout.targets.size(); ++i) {
        if (layout.targets[i] == kSkipped) {
            continue;
        }
        const std::vector<double>& values = table.record.values[layout.targets[i]];
        if (std::all_of(values.begin(), values.end(), [](double v) { return std::isnan(v); })) {
            refuse({i + 1, "the column holds no value at all"});
        }
    }
    table.unused = std::move(layout.unused);
    return table;
}

DelimitedTable readDelimitedTable(const std::filesystem::path& path, const TableOptions& options) {
    return parseDelimitedTable(readFile(path).text(), path, options);
}

}  // namespace vorlan
