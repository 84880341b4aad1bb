#pragma once

namespace vorlan {

/// Limits of an axis, distance between its marks and number of intervals between marks (decades on a logarithmic
/// axis). upper < lower and a negative step for an axis that runs backward.
struct AxisLimits {
    double lower = 0.0;
    double upper = 1.0;
    double step = 1.0;
    int marks = 1;
    /// False for a logarithmic axis with an end between two powers of ten; its marks lie inside, and marks counts
    /// them.
    bool wholeDecades = true;

    /// Pixels per decade of a logarithmic axis that is length pixels long; negative when it runs backward.
    double decadesPer(int length) const;
};

/// What is known about an axis: which ends follow the data, and the values of the others.
struct AxisRule {
    bool lowerFromData = true;
    bool upperFromData = true;
    double lower = 0.0;
    double upper = 1.0;
    bool stepGiven = false;
    double step = 0.0;
};

/// Into how many steps a range is divided, and by how much equal ends are moved apart.
struct AxisManner {
    double divisorBothFromData;
    double divisorOtherwise;
    double widening;
};
inline constexpr AxisManner kXManner{8.0, 8.0, 5.0};
inline constexpr AxisManner kYManner{5.0, 6.0, 1.0};

struct DataInterval {
    double lowest;
    double highest;
};

struct LinearLimits {
    AxisLimits limits;
    bool automaticStep;  ///< the step may be thinned until the labels fit
};

/// Ends from the data are rounded with the step away from the data, ends that are given stay. The step is the given
/// one, or the nice step next to range / divisor. A given step that is not positive and finite or exceeds the range
/// is ignored.
LinearLimits linearLimits(const AxisRule& rule, const DataInterval& data, const AxisManner& manner);

/// Ends from the data lie on the powers of ten that enclose them, at least one decade and no more than mostDecades
/// apart (the lower ones are dropped). Positive ends that are given stay as they are, also when they run backward or
/// lie between powers of ten. data must be positive.
AxisLimits logarithmicLimits(const AxisRule& rule, const DataInterval& data, int mostDecades);

/// Number of intervals that leaves each label its size: n is halved while room < n, never to 0.
/// room is how many labels fit beside each other. On a vertical axis 3 becomes 2.
int fittedMarks(int n, int room, bool vertical);

/// Fewest digits, from least to 9, with which no label of the axis is off by more than 2 % of a step.
int labelDigits(const AxisLimits& limits, int least);

/// limits with n intervals: step = (upper - lower) / n.
AxisLimits withMarks(const AxisLimits& limits, int n);

}  // namespace vorlan
