#pragma once

#include <string>

#include "analysis/Editing.h"
#include "analysis/RotationSettings.h"
#include "model/SAdvFile.h"
#include "model/WorkspaceSettings.h"

// What the commands say in the status line when they are done. Probes are as the command left them.

namespace vorlan {

inline constexpr const char* kCancelledReport = "Cancelled: the record is as it was";
inline constexpr const char* kUnchangedReport = "Nothing to do: the record is as it was";
inline constexpr const char* kRefusedReport = "Not done: the record is as it was";
/// After a change of the record whose done stages were not repeated.
inline constexpr const char* kEarlierResultsReport = "Earlier results are of the record before";

/// "Kept 189.13 s to 197.83 s, 278 samples", limited to a record of so many seconds.
std::string clippingReport(const SAdvProbe& probe, double tStart, double tEnd, double length);
/// "The whole record: 12000 samples, 480.00 s".
std::string resetReport(const SAdvProbe& probe);
std::string rotationReport(const RotationSettings& settings);
/// "Bad samples replaced. Correlation: 99.62 % kept".
std::string editingReport(const EditingSettings& settings, const EditingResult& result);
std::string filtrationReport(const FilterSettings& settings);
std::string stationarityReport(const StationaritySettings& settings);
std::string histogramsReport(const HistogramSettings& settings);
/// "Spectra: 640 lags (20 s), Tukey, Hz".
std::string spectraReport(const SAdvProbe& probe);
std::string crossSpectraReport(const SAdvProbe& probe);
std::string quadrantsReport(const QuadrantSettings& settings, const SAdvProbe& probe);
std::string vectorsReport(const VectorSettings& settings);
/// "Left top: plot options set".
std::string frameReport(Pane pane);
/// "test simulated: 1000 samples, 40 s. Choose a probe".
std::string simulationReport(const SAdvFile& file);

}  // namespace vorlan
