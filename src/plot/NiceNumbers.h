#pragma once

namespace vorlan {

/// v = mantissa * 10^exponent with 1 <= mantissa < 10. For v <= 0 both are v itself.
struct DecimalSplit {
    double mantissa;
    double exponent;
};
DecimalSplit splitDecimal(double v);

/// Step that is easy to read next to the mantissa m, 1 <= m <= 10:
/// [1, 1.5) 1, [1.5, 2.5) 2, [2.5, 3.5) 2.5, [3.5, 4.5) 4, [4.5, 7.5) 5, [7.5, 8) 7.5, [8, 10] 10.
/// A mantissa below 1 is returned as it is.
double niceMantissa(double m);

/// The nice step s * 10^e next to raw = m * 10^e, raw > 0.
double niceStep(double raw);

/// Largest multiple of step strictly below x, counted from zero by repeated addition (0 gives -step).
double lowerLimit(double x, double step);

/// Smallest multiple of step strictly above x > 0; 0 for x = 0; for x < 0 the largest multiple that is not above x.
double upperLimit(double x, double step);

}  // namespace vorlan
