#include "ui/dialogs/NumberText.h"

#include <charconv>
#include <cmath>
#include <string>

#include "model/Text.h"

namespace vorlan {

namespace {

template <typename Value>
std::optional<Value> parsed(const QString& text) {
    std::string digits = text.trimmed().toStdString();
    const bool plus = digits.starts_with('+') && !digits.starts_with("+-");
    if (plus) {
        digits.erase(0, 1);
    }
    Value value{};
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value);
    if (error != std::errc{} || stop != end) {
        return std::nullopt;
    }
    return value;
}

}  // namespace

std::optional<double> parsedNumber(const QString& text) {
    const std::optional<double> value = parsed<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<int> parsedInteger(const QString& text) {
    return parsed<int>(text);
}

QString numberText(double value) {
    return QString::fromStdString(formatted("%.15g", value));
}

QString twoDecimals(double value) {
    return QString::fromStdString(formatted("%.2f", value));
}

}  // namespace vorlan
