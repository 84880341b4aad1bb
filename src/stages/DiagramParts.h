#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "stages/PaneDescription.h"

namespace vorlan {

/// Labels of the series by component and by stress pair.
inline constexpr std::array<const char*, 3> kVelocityLabels = {"Ux", "Uy", "Uz"};
inline constexpr std::array<const char*, 3> kStressLabels = {"u'v'", "u'w'", "v'w'"};

/// A diagram without series: the attributes stored for the request's pane, or their defaults.
Diagram newDiagram(const PaneRequest& request, const SAdvProbe* probe);

/// The diagram, or the message that there is nothing to draw when no series holds a number.
PaneContent diagramOrMessage(Diagram diagram);

/// The column's values times factor. A value that could not be stored (the most negative integer) is not a number.
std::vector<double> plotValues(const SArray& column, double factor = 1.0);
/// Column index of a table as plotValues, empty when the table has no such column.
std::vector<double> plotColumn(const SMultiArray& table, int column, double factor = 1.0);

/// A thin continuous line, for records of many samples; index chooses the colour.
PlotSeries recordLine(std::vector<double> y, SeriesX x, int index, const std::string& legend);
/// A line that differs from its neighbours by colour, dashes and width, for smooth curves.
PlotSeries curve(std::vector<double> y, SeriesX x, int index, const std::string& legend);

/// Lets an axis of a quantity that is never negative begin at zero where its lower end would come from the data, which
/// would round it to below zero.
void beginXAtZero(FrameAttributesType& frame);
void beginYAtZero(FrameAttributesType& frame);

/// Sets the title of a frequency axis to its unit (0 Hz, 1 rad/s), unless the user has given it another text.
void nameFrequencyUnit(FrameAttributesType& frame, std::uint32_t unit);

}  // namespace vorlan
