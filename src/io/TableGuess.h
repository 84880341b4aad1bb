#pragma once

#include <optional>
#include <string>
#include <vector>

#include "io/DelimitedTable.h"
#include "io/TablePreview.h"
#include "model/Index.h"

namespace vorlan {

/// What a column of a table is: a column of the record, the time of the sample, or nothing that a probe takes.
class ColumnRole {
  public:
    static ColumnRole skipped() { return ColumnRole(-1); }
    static ColumnRole time() { return ColumnRole(-2); }
    static ColumnRole record(RecordColumns::Column column) { return ColumnRole(asInt(column)); }

    /// Name of a column of the record; "time"; "-".
    std::string name() const;
    bool isTime() const { return code_ == -2; }
    bool isSkipped() const { return code_ == -1; }

    friend bool operator==(const ColumnRole&, const ColumnRole&) = default;

  private:
    explicit ColumnRole(int code) : code_(code) {}
    int code_;
};

/// Every role, in the order in which they are offered.
std::vector<ColumnRole> columnRoles();

/// The roles of a table's columns by the names in its header ("u", "Vx [m/s]", "velocity_x", "East", "SNR 1", "t (s)"),
/// each role once; without a header by how many columns there are, and the first one as time when it rises steadily.
std::vector<ColumnRole> guessRoles(const TablePreview& preview);

/// The unit that the names of the velocities tell in brackets or behind a blank; cm/s when they tell none.
VelocityUnit guessVelocityUnit(const TablePreview& preview, const std::vector<ColumnRole>& roles);

/// The options that read a table with these roles.
TableOptions optionsOf(const std::vector<ColumnRole>& roles);

/// The sampling interval that a column of times tells.
struct TimeSteps {
    double mean = 0.0;  ///< from first to last over the number of steps, s
    double shortest = 0.0;
    double longest = 0.0;

    /// The longest and the shortest step over the mean one, less 1: 0 for even steps.
    double unevenness() const;
};

/// Nothing for fewer than two times, or for times that do not rise over all.
std::optional<TimeSteps> timeStepsOf(const std::vector<double>& times);

/// The numbers of a column of a table, from 0; empty when one of its fields is no number.
std::vector<double> timesOf(std::string_view text, std::size_t column);

/// The mean step to as many digits as the single steps agree in, so that times with few digits give a round interval.
double roundedInterval(const TimeSteps& steps);

}  // namespace vorlan
