#include "stages/TurbulenceReadOut.h"

#include <algorithm>
#include <vector>

#include "analysis/PowerLawFit.h"
#include "model/Text.h"

namespace vorlan {

namespace {

std::string shown(double value) {
    return numberText(value, 6);
}

/// Exponent of the series' points between two positions, whichever is the larger.
std::optional<double> fittedSlope(const PlotSeries& series, double from, double to) {
    const auto [lowest, highest] = std::minmax(from, to);
    std::vector<double> x;
    std::vector<double> y;
    for (std::size_t i = 0; i < series.y.size(); ++i) {
        const double at = series.x.at(i);
        if (at >= lowest && at <= highest) {
            x.push_back(at);
            y.push_back(series.y[i]);
        }
    }
    return powerLawExponent(x, y);
}

template <class Text>
std::string slopes(const Diagram& diagram, double from, double to, Text text) {
    std::string joined = "Slope ";
    for (const PlotSeries& series : diagram.plot.series) {
        joined += &series == &diagram.plot.series.front() ? "" : ", ";
        const std::optional<double> slope = fittedSlope(series, from, to);
        joined += series.attributes.legendText + " " + (slope ? text(*slope) : std::string("-"));
    }
    return joined;
}

}  // namespace

std::optional<DissipationSource> dissipationSourceOf(Stage stage, Pane pane) {
    if (stage != Stage::Spectral || (pane != Pane::LeftBottom && pane != Pane::RightTop)) {
        return std::nullopt;
    }
    return pane == Pane::LeftBottom ? DissipationSource::Spectrum : DissipationSource::Structure;
}

std::optional<ScalesSource> scalesSourceOf(Stage stage, Pane pane) {
    if (stage != Stage::Spectral || (pane != Pane::LeftTop && pane != Pane::LeftBottom)) {
        return std::nullopt;
    }
    return pane == Pane::LeftTop ? ScalesSource::Correlation : ScalesSource::Spectrum;
}

std::string dissipationReadOut(const DissipationReading& reading, double rate) {
    const bool spectrum = reading.source == DissipationSource::Spectrum;
    return (spectrum ? "Frequency = " : "Lag time = ") + shown(reading.x) +
           (spectrum ? "  Spectral dencity = " : "  Structure = ") + shown(reading.y) + "  Dissipation rate " +
           shown(rate);
}

std::string rangeReadOut(const ScalesReading& reading) {
    return (reading.source == ScalesSource::Spectrum ? "Frequency: left = " : "Lag time: left = ") +
           shown(reading.from) + "  right = " + shown(reading.to);
}

double inertialExponent(DissipationSource source) {
    return source == DissipationSource::Spectrum ? -5.0 / 3.0 : 2.0 / 3.0;
}

const char* inertialExponentText(DissipationSource source) {
    return source == DissipationSource::Spectrum ? "-5/3" : "2/3";
}

std::string slopesText(const Diagram& diagram, double from, double to) {
    return slopes(diagram, from, to, [](double slope) { return formatted("%.2f", slope); });
}

std::string slopeDistancesText(const Diagram& diagram, double from, double to, DissipationSource source) {
    return slopes(diagram, from, to, [source](double slope) {
        return formatted("%.2f (%+.2f from %s)", slope, slope - inertialExponent(source), inertialExponentText(source));
    });
}

std::string acceptedRateText(const SAdvProbe& probe) {
    return formatted("Dissipation rate %f cm^2/s^3 accepted.", probe.resultBlock[SAdvProbe::kDissipationRate]);
}

std::string acceptedScalesText(ScalesSource source, const SAdvProbe& probe) {
    if (source == ScalesSource::Correlation) {
        const double* t = &probe.resultBlock[SAdvProbe::kTimeScales];
        return formatted("Time scales %f, %f, %f s accepted.", t[0], t[1], t[2]);
    }
    const double* s = &probe.resultBlock[SAdvProbe::kSpectrumIntegrals];
    return formatted("Integrals of spectra %f, %f, %f (cm/s)^2 accepted.", s[0], s[1], s[2]);
}

std::string oldResultsText(const SAdvProbe& probe) {
    struct Part {
        std::size_t index;
        const char* name;
    };
    constexpr Part parts[] = {{SAdvProbe::kDissipationRate, "dissipation rate"},
                              {SAdvProbe::kTimeScales, "time scales"},
                              {SAdvProbe::kSpectrumIntegrals, "integrals of spectra"}};
    std::string text;
    for (const Part& part : parts) {
        if (probe.ResultsAreOld(part.index)) {
            text += (text.empty() ? "" : ", ") + std::string(part.name);
        }
    }
    if (text.empty()) {
        return text;
    }
    text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text + ": read before the last change of the record";
}

SlopeTriangle slopeTriangle(const DissipationReading& begin, double to) {
    return {begin.x, to, begin.y, inertialExponent(begin.source), inertialExponentText(begin.source)};
}

}  // namespace vorlan
