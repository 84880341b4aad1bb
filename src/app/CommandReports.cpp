#include "app/CommandReports.h"

#include <algorithm>
#include <array>

#include "analysis/EditingAssessment.h"
#include "analysis/Quadrants.h"
#include "analysis/SpectralSettings.h"
#include "analysis/StorageOverflows.h"
#include "model/Index.h"
#include "model/Text.h"

namespace vorlan {

namespace {

/// Name of a member's value as recipes give it.
template <class Settings, class Member>
const char* nameIn(const Settings& settings, const Member& member) {
    for (const Choice& choice : fieldOf(settings, member).choices) {
        if (choice.code == static_cast<std::int32_t>(member)) {
            return choice.name;
        }
    }
    return "";
}

/// The last run of the spectral analysis: "640 lags (20 s), Tukey, Hz".
std::string spectralRunText(const SAdvProbe& probe) {
    constexpr std::array<const char*, 4> windows = {"rectangle", "Tukey", "Bartlett", "Parzen"};
    return formatted("%u lags (%g s), %s, %s", probe.spectralLags, probe.spectralLags * probe.samplingInterval,
                     windows.at(std::min<std::size_t>(probe.spectralWindow, windows.size() - 1)),
                     probe.spectralUnit == 1 ? "rad/s" : "Hz");
}

std::string joined(std::string text, const std::vector<std::string>& more) {
    for (const std::string& sentence : more) {
        text += ". " + sentence;
    }
    return text;
}

}  // namespace

std::string clippingReport(const SAdvProbe& probe, double tStart, double tEnd, double length) {
    return formatted("Kept %.2f s to %.2f s, %d samples", std::max(tStart, 0.0), std::min(tEnd, length),
                     probe.WorkingSamples());
}

std::string resetReport(const SAdvProbe& probe) {
    return formatted("The whole record: %d samples, %.2f s", probe.WorkingSamples(),
                     probe.WorkingSamples() * probe.samplingInterval);
}

std::string rotationReport(const RotationSettings& settings) {
    return formatted("Rotated: heading %g, pitch %g, roll %g deg; sampling volume at %g, %g, %g m", settings.heading,
                     settings.pitch, settings.roll, settings.position[0], settings.position[1], settings.position[2]);
}

std::string editingReport(const EditingSettings& settings, const EditingResult& result) {
    const std::string shares = keptSharesText(result);
    if (shares.empty()) {
        return "No test was on: no sample was found bad";
    }
    return shares + (settings.treatment == BadSampleTreatment::Remove ? "   Bad samples removed"
                                                                      : "   Bad samples interpolated");
}

std::string filtrationReport(const FilterSettings& settings) {
    const bool gaussian = settings.shape == FilterShape::Gaussian;
    return formatted("Filtered: %s, %s, %s %g %s", nameIn(settings, settings.type), nameIn(settings, settings.shape),
                     gaussian ? "cutoff" : "half width", gaussian ? settings.cutoff : settings.halfWidth,
                     gaussian ? "Hz" : "s");
}

std::string stationarityReport(const StationaritySettings& settings) {
    return formatted("Stationarity: %d bands, %s", settings.bands, nameIn(settings, settings.mode));
}

std::string histogramsReport(const HistogramSettings& settings) {
    return formatted("Histograms: %d grades", settings.grades);
}

std::string spectraReport(const SAdvProbe& probe) {
    return joined("Spectra: " + spectralRunText(probe), spectrumOverflows(probe));
}

std::string crossSpectraReport(const SAdvProbe& probe) {
    return joined("Cross-spectra: " + spectralRunText(probe), crossSpectrumOverflows(probe));
}

std::string quadrantsReport(const QuadrantSettings& settings, const SAdvProbe& probe) {
    constexpr std::array<const char*, 3> pairs = {"u'v'", "u'w'", "v'w'"};
    const auto pair = asSize(std::clamp(settings.stressType, 0, 2));
    const std::string text = formatted("Quadrants: %s, hole sizes to %g by %g, patterns to %g s", pairs.at(pair),
                                       settings.maximum, settings.increment, settings.maximumLag);
    return contributionSumsExceed(probe) ? text + ". " + kContributionsExceed : text;
}

std::string vectorsReport(const VectorSettings& settings) {
    constexpr std::array<const char*, 3> planes = {"XY", "XZ", "YZ"};
    const auto plane = asSize(std::clamp(settings.plane, 0, 2));
    return formatted("Mean velocities in the plane %s: %g cm/s is %d pixels long", planes.at(plane), settings.speed,
                     settings.pixels);
}

std::string frameReport(Pane pane) {
    return std::string(kPaneTexts.at(asSize(pane))) + ": plot options set";
}

std::string simulationReport(const SAdvFile& file) {
    const int samples = file.probes.IsEmpty() ? 0 : file.probes.GetAt(0).WorkingSamples();
    return utf8Text(file.fileName) +
           formatted(" simulated: %d samples, %g s. Choose a probe", samples, file.headerDoubleB);
}

}  // namespace vorlan
