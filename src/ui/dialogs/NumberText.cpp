#include "ui/dialogs/NumberText.h"

#include <cmath>
#include <string>

#include "model/ParseNumber.h"
#include "model/Text.h"

namespace vorlan {

namespace {

template <typename Value>
std::optional<Value> parsed(const QString& text) {
    Value value{};
    return parseNumber(text.trimmed().toStdString(), value) == std::errc{} ? std::optional(value) : std::nullopt;
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
