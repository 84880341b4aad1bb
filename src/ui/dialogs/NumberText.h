#pragma once

#include <QString>
#include <optional>

namespace vorlan {

/// The number that a field shows, in C notation whatever the desktop's language: blanks around it are skipped, a
/// decimal point and an exponent are allowed, a comma, "nan" and "inf" are not.
std::optional<double> parsedNumber(const QString& text);

/// A decimal integer of 32 bits.
std::optional<int> parsedInteger(const QString& text);

/// A number with at most 15 significant digits and no trailing zeros.
QString numberText(double value);

/// A number with two decimals.
QString twoDecimals(double value);

}  // namespace vorlan
