#include "export/RowWriter.h"

#include <ostream>

#include "model/Text.h"

namespace vorlan {

namespace {

constexpr std::size_t kPiece = 64 * 1024;

char characterOf(Separator separator) {
    switch (separator) {
        case Separator::Tab:
            return '\t';
        case Separator::Comma:
            return ',';
        case Separator::Space:
            break;
    }
    return ' ';
}

}  // namespace

RowWriter::RowWriter(std::ostream& stream, Separator separator) : stream_(stream), separator_(characterOf(separator)) {}

RowWriter& RowWriter::value(double v, int digits) {
    if (inRow_) {
        buffer_ += separator_;
    }
    inRow_ = true;
    appendFixed(buffer_, v, digits);
    return *this;
}

RowWriter& RowWriter::end(std::string_view lineEnd) {
    inRow_ = false;
    return text(lineEnd);
}

RowWriter& RowWriter::text(std::string_view text) {
    buffer_ += text;
    if (buffer_.size() >= kPiece) {
        finish();
    }
    return *this;
}

void RowWriter::finish() {
    stream_.write(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    buffer_.clear();
}

void writeHeader(RowWriter& rows, FileLabel label, const ExportSource& source, std::string_view titleLines) {
    rows.text(label == FileLabel::Capitals ? "FILE  : " : "File  : ").text(source.fileName).text("\n");
    rows.text(formatted("PROBE : %d\n", source.position)).text(titleLines);
}

std::string_view frequencyUnitLine(const SAdvProbe& probe) {
    return probe.spectralUnit == 1 ? "FREQUENCY UNITS:  RAD/SEC\n" : "FREQUENCY UNITS:  HZ\n";
}

}  // namespace vorlan
