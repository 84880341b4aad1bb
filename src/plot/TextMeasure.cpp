#include "plot/TextMeasure.h"

#include <algorithm>
#include <vector>

#include "model/Index.h"

namespace vorlan {

namespace {

constexpr int kKernedLetters = 3;

bool continuesCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

}  // namespace

std::string shortened(const std::string& text, const FontDescription& font, int width, const TextMeasure& measure,
                      double share) {
    if (measure.width(text, font, share) <= width) {
        return text;
    }
    // A character takes a pixel at least: what lies further behind is not worth a look.
    const std::size_t most = asSize(std::max(width, 0)) + 1;
    std::vector<std::size_t> lengths;
    for (std::size_t length = 0; length < text.size() && lengths.size() < most; ++length) {
        if (!continuesCharacter(text[length])) {
            lengths.push_back(length);
        }
    }
    const auto cut = [&](std::size_t length) { return text.substr(0, length) + "\u2026"; };
    const auto fits = [&](std::size_t length) { return measure.width(cut(length), font, share) <= width; };
    auto end = std::partition_point(lengths.begin(), lengths.end(), fits);
    // Two letters can be narrower together than their first one.
    for (auto next = end; next != lengths.end() && next - end < kKernedLetters; ++next) {
        if (fits(*next)) {
            end = next + 1;
        }
    }
    return end == lengths.begin() ? std::string() : cut(*std::prev(end));
}

std::vector<std::string> wrapped(const std::string& text, const FontDescription& font, int width,
                                 const TextMeasure& measure, std::size_t mostLines) {
    std::vector<std::string> lines;
    if (text.find_first_not_of(' ') == std::string::npos) {
        return lines;
    }
    std::string rest = text;
    while (lines.size() + 1 < mostLines && measure.width(rest, font) > width) {
        // The last blank before which the line fits.
        std::size_t at = std::string::npos;
        for (std::size_t blank = rest.find(' '); blank != std::string::npos; blank = rest.find(' ', blank + 1)) {
            if (measure.width(rest.substr(0, blank), font) > width) {
                break;
            }
            at = rest.find_first_not_of(' ') < blank ? blank : at;
        }
        const std::size_t next = at == std::string::npos ? at : rest.find_first_not_of(' ', at);
        if (next == std::string::npos) {
            break;
        }
        lines.push_back(rest.substr(0, at));
        rest.erase(0, next);
    }
    const std::string last = shortened(rest, font, width, measure);
    if (!last.empty()) {
        lines.push_back(last);
    }
    return lines;
}

}  // namespace vorlan
