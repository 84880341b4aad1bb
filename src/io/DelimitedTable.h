#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "io/FileError.h"
#include "model/RecordColumns.h"

namespace vorlan {

/// A table that cannot be taken, with the place of the fault; what() is "<path>:<line>:<column>: <reason>". Line and
/// column count from 1; the column is that of the field in its line, not of the character.
class TableError : public FileError {
  public:
    TableError(const std::filesystem::path& path, std::size_t line, std::size_t column, const std::string& reason);
    std::size_t line() const { return line_; }
    std::size_t column() const { return column_; }

  private:
    std::size_t line_;
    std::size_t column_;
};

/// In which the velocities of a table are given.
enum class VelocityUnit { CentimetresPerSecond, MetresPerSecond, MillimetresPerSecond };

/// How a table is read.
struct TableOptions {
    enum class Missing {
        Error,  ///< an empty field or NaN is refused
        Mark,   ///< a sample without a velocity is kept as not valid
    };
    /// Names of the columns, separated by commas, "-" for one that is skipped. Without it the first line names them.
    std::optional<std::string> columns;
    Missing missing = Missing::Error;
    /// The decimal point of the velocities is moved before they become numbers: a table in m/s gives the same record as
    /// one in cm/s.
    VelocityUnit velocityUnit = VelocityUnit::CentimetresPerSecond;
    /// Field that holds the time of a sample, from 0; columns skips it.
    std::optional<std::size_t> timeColumn = std::nullopt;
    /// Resolutions in which the values will be stored: what would not fit is refused.
    double velocityResolution = 0.001;
    double otherResolution = 0.001;
};

/// The columns of a table.
struct DelimitedTable {
    RecordColumns record;
    /// Named columns that no probe takes, in their order.
    std::vector<std::string> unused;
    /// One time per sample when the options name the column, s. Every one is a finite number.
    std::vector<double> times;
};

/// Names of an option's list of columns; empty when every one is known, else the reason of the refusal.
std::string refusalOfColumnList(const std::string& columns);

/// Whether the first line of a table names its columns: none of its fields is a number or missing.
bool isTableHeader(const std::vector<std::string_view>& fields);

/// Takes apart delimited text. The first line with content decides the separator: semicolon, comma, tab or blanks.
/// "#" begins a comment; empty lines do not count; names may be in either case and in quotes. Numbers use a point.
/// Columns u, v and w are required; heading, pitch and roll come together or not at all. In the Mark mode the other
/// columns may be empty where the velocity is. Everything else is a TableError; path serves the messages.
DelimitedTable parseDelimitedTable(std::string_view text, const std::filesystem::path& path,
                                   const TableOptions& options);

/// Reads and takes apart a file. FileError as readFile, TableError as parseDelimitedTable.
DelimitedTable readDelimitedTable(const std::filesystem::path& path, const TableOptions& options);

}  // namespace vorlan
