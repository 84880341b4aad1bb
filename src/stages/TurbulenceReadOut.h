#pragma once

#include <optional>
#include <string>

#include "analysis/DissipationRate.h"
#include "analysis/TurbulenceScales.h"
#include "model/Stages.h"
#include "plot/Diagram.h"

namespace vorlan {

/// What a dissipation rate is read off in a pane of a stage; nothing where none is read.
std::optional<DissipationSource> dissipationSourceOf(Stage stage, Pane pane);
/// What scales are integrated from in a pane of a stage.
std::optional<ScalesSource> scalesSourceOf(Stage stage, Pane pane);

/// Status bar text of a point and its rate: "Frequency = %f  Spectral dencity = %f  Dissipation rate %f" or
/// "Lag time = %f  Structure = %f  Dissipation rate %f".
std::string dissipationReadOut(const DissipationReading& reading, double rate);

/// Status bar text of a range: "Frequency: left = %f  right = %f" or "Lag time: left = %f  right = %f".
std::string rangeReadOut(const ScalesReading& reading);

/// The exponent of the inertial range, -5/3 or 2/3, and how it is written.
double inertialExponent(DissipationSource source);
const char* inertialExponentText(DissipationSource source);

/// The slopes that the drawn series have between two positions, fitted by least squares to their points on
/// logarithmic axes: "Slope Ux -1.62, Uy -1.70, Uz -1.31"; "-" for a series with too few points.
std::string slopesText(const Diagram& diagram, double from, double to);

/// The same as distances from the exponent of the inertial range: "Slope Ux -1.62 (+0.05 from -5/3), ...".
std::string slopeDistancesText(const Diagram& diagram, double from, double to, DissipationSource source);

/// Status bar texts when the rate or scales have been accepted.
std::string acceptedRateText(const SAdvProbe& probe);
std::string acceptedScalesText(ScalesSource source, const SAdvProbe& probe);

/// Which results were "read before the last change of the record"; empty when none is known to be.
std::string oldResultsText(const SAdvProbe& probe);

/// The triangle of the inertial range's slope that begins at a point and reaches to the position to.
SlopeTriangle slopeTriangle(const DissipationReading& begin, double to);

}  // namespace vorlan
