#include "recipes/TextValues.h"

#include <cmath>

#include "model/Index.h"
#include "model/ParseNumber.h"

namespace vorlan {

namespace {

template <class T>
std::optional<T> parsed(std::string_view text) {
    T value{};
    return parseNumber(text, value) == std::errc() ? std::optional(value) : std::nullopt;
}

}  // namespace

std::optional<double> parseReal(std::string_view text) {
    const std::optional<double> value = parsed<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<long long> parseInteger(std::string_view text) {
    return parsed<long long>(text);
}

std::vector<std::string> splitText(std::string_view text, char separator) {
    std::vector<std::string> parts;
    for (std::size_t from = 0;;) {
        const std::size_t to = text.find(separator, from);
        parts.emplace_back(text.substr(from, to == std::string_view::npos ? to : to - from));
        if (to == std::string_view::npos) {
            return parts;
        }
        from = to + 1;
    }
}

std::optional<std::vector<double>> parseReals(std::string_view text, std::size_t count) {
    std::vector<double> values;
    for (const std::string& part : splitText(text, ',')) {
        const std::optional<double> value = parseReal(part);
        if (!value) {
            return std::nullopt;
        }
        values.push_back(*value);
    }
    return values.size() == count ? std::optional(std::move(values)) : std::nullopt;
}

int componentOfLetter(std::string_view letter) {
    const std::size_t at = letter.size() == 1 ? std::string_view("uvwUVW").find(letter) : std::string_view::npos;
    return at == std::string_view::npos ? -1 : asInt(at % 3);
}

const std::vector<std::string>& paperNames() {
    static const std::vector<std::string> names = {"a3", "a4", "a5", "letter", "legal"};
    return names;
}

PaperSize paperOf(int index, bool landscape) {
    constexpr std::array<PaperSize, 5> papers = {
        {{29.7, 42.0}, {21.0, 29.7}, {14.8, 21.0}, {21.59, 27.94}, {21.59, 35.56}}};
    const PaperSize paper = papers.at(asSize(index));
    return landscape ? PaperSize{paper.height, paper.width} : paper;
}

std::optional<PictureSize> parsePictureSize(std::string_view text) {
    const std::vector<std::string> sides = splitText(text, 'x');
    if (sides.size() != 2) {
        return std::nullopt;
    }
    const std::optional<long long> width = parseInteger(sides[0]);
    const std::optional<long long> height = parseInteger(sides[1]);
    const auto fits = [](std::optional<long long> side) {
        return side && *side >= 1 && *side <= PictureSize::kLargest;
    };
    if (!fits(width) || !fits(height)) {
        return std::nullopt;
    }
    return PictureSize{asInt(*width), asInt(*height)};
}

}  // namespace vorlan
