#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "export/ExportOptions.h"

namespace vorlan {

/// Writes rows of separated numbers and the lines around them. Collects text and hands it to the stream in large
/// pieces, the last with finish(), without which nothing but whole pieces arrives.
class RowWriter {
  public:
    RowWriter(std::ostream& stream, Separator separator);

    /// The next value of the row as printf's "%.<digits>f" writes it.
    RowWriter& value(double v, int digits);
    /// Ends the row.
    RowWriter& end(std::string_view lineEnd = "\n");
    /// A text as it stands, outside of rows.
    RowWriter& text(std::string_view text);
    /// Hands what is collected to the stream.
    void finish();

  private:
    std::ostream& stream_;
    char separator_;
    bool inRow_ = false;
    std::string buffer_;
};

/// How the first header line of an export spells its label.
enum class FileLabel { Capitals, Capitalised };

/// The common header: "FILE  : <name>" or "File  : <name>", "PROBE : <position>", then the title lines as given.
void writeHeader(RowWriter& rows, FileLabel label, const ExportSource& source, std::string_view titleLines);

/// "FREQUENCY UNITS:  HZ" or "FREQUENCY UNITS:  RAD/SEC" by the probe's spectral analysis.
std::string_view frequencyUnitLine(const SAdvProbe& probe);

}  // namespace vorlan
