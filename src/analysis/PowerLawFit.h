#pragma once

#include <optional>
#include <span>

namespace vorlan {

/// Exponent p of the power law y = c x^p that fits points best: the least-squares slope of log10 y on log10 x,
///   p = sum (lx - mean lx)(ly - mean ly) / sum (lx - mean lx)^2.
/// Points without a logarithm do not count; nothing without two different x. The spans are of one length.
std::optional<double> powerLawExponent(std::span<const double> x, std::span<const double> y);

}  // namespace vorlan
