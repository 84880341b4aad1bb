#include "batch/WorkspaceSummary.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <span>

#include "analysis/DissipationRate.h"
#include "analysis/EditingAssessment.h"
#include "analysis/Quadrants.h"
#include "analysis/RotationSettings.h"
#include "analysis/TurbulenceScales.h"
#include "model/Index.h"
#include "model/Printable.h"
#include "model/ProbeInformation.h"
#include "model/SSvmSet.h"
#include "model/StageTable.h"
#include "model/Text.h"

namespace vorlan {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kVelocityNames[] = {"u", "v", "w"};
constexpr const char* kStressNames[] = {"u'v'", "u'w'", "v'w'"};
constexpr const char* kWindowNames[] = {"rectangle", "Tukey", "Bartlett", "Parzen"};

// The library writes what is not finite as null.
Json momentsAsJson(const Moments& m) {
    return {{"mean", m.mean}, {"variance", m.variance}, {"skewness", m.skewness}, {"kurtosis", m.kurtosis}};
}

Json vectorsAsJson(const SAdvProbe& probe) {
    const std::array<double, 3> mean = meanFlow(probe);
    const VelocityExtremes extremes = velocityExtremes(probe);
    const FlowDirections directions = meanFlowDirections(mean);
    return {{"mean", mean},
            {"minimum", extremes.lowest},
            {"maximum", extremes.highest},
            {"heading", directions.heading},
            {"roll", directions.roll},
            {"pitch", directions.pitch}};
}

template <class Points>
Json pointsAsJson(const Points& points) {
    Json list = Json::array();
    // The columns of a damaged workspace need not be of one length.
    for (int i = 0; i < std::min({points.x.GetSize(), points.y.GetSize(), points.z.GetSize()}); ++i) {
        list.push_back({points.x.GetValue(i), points.y.GetValue(i), points.z.GetValue(i)});
    }
    return list;
}

Json boundariesAsJson(const SBndSet& boundaries) {
    Json list = Json::array();
    for (const SBndFile& boundary : boundaries) {
        list.push_back(
            {{"name", utf8Text(boundary.name)}, {"path", utf8Text(boundary.path)}, {"nodes", pointsAsJson(boundary)}});
    }
    return list;
}

Json samplingVolumesAsJson(const SAdvSet& set) {
    SSvmSet volumes;
    volumes.Build(set);
    Json list = Json::array();
    for (const SSvmFile& file : volumes.files()) {
        list.push_back({{"name", utf8Text(file.name)}, {"positions", pointsAsJson(file)}});
    }
    return list;
}

Json resultsAsJson(const SAdvProbe& probe, const WorkspaceSettings& settings) {
    const std::span<const double> block = probe.resultBlock;
    const double rate = block[SAdvProbe::kDissipationRate];
    Json json = {{"dissipation", rate},
                 {"timeScales", block.subspan(SAdvProbe::kTimeScales, 3)},
                 {"spectrumIntegrals", block.subspan(SAdvProbe::kSpectrumIntegrals, 3)},
                 {"convectiveVelocity", convectiveVelocity(probe, settings)},
                 {"kolmogorov", nullptr},
                 {"acceleration", nullptr}};
    if (rate > 0.0) {
        json["kolmogorov"] = kolmogorovMicroScale(rate);
        json["acceleration"] = turbulentAcceleration(rate);
    }
    return json;
}

Json probeAsJson(const SAdvProbe& probe, const WorkspaceSettings& settings) {
    Json json;
    json["number"] = probe.probeNumber;
    json["samples"] = SAdvProbe::ColumnLength(probe.SampledVelocities());
    json["workingSamples"] = probe.WorkingSamples();
    json["interval"] = probe.samplingInterval;
    json["title"] = utf8Text(probe.title);
    json["zoomMode"] = probe.zoomMode;
    json["useAllSamples"] = probe.useAllSamples;
    json["validSamples"] = validSamples(probe);
    json["stageDone"] = probe.stageDone;
    json["position"] = rotationSettingsOf(probe).position;
    json["moments"] = Json::array();
    json["stressMoments"] = Json::array();
    for (int i = 0; i < SAdvProbe::kComponents; ++i) {
        json["moments"].push_back(momentsAsJson(probe.VelocityMoments(i)));
        json["stressMoments"].push_back(momentsAsJson(probe.StressMoments(i)));
    }
    json["spectral"] = {{"lags", probe.spectralLags}, {"window", probe.spectralWindow}, {"unit", probe.spectralUnit}};
    json["vectors"] = vectorsAsJson(probe);
    json["results"] = resultsAsJson(probe, settings);
    if (contributionSumsExceed(probe)) {
        json["notes"] = Json::array({kContributionsExceed});
    }
    return json;
}

/// A name from a file can hold anything, codes that a terminal obeys included.
std::string shownName(const std::string& bytes) {
    return printable(utf8Text(bytes));
}

/// The library leaves U+007F to U+009F as they are; escaped they say the same and no terminal obeys them.
std::string escaped(const std::string& json) {
    std::string text;
    for (std::size_t i = 0; i < json.size(); ++i) {
        const auto code = static_cast<unsigned char>(json[i]);
        const auto next = static_cast<unsigned char>(i + 1 < json.size() ? json[i + 1] : 0);
        const bool high = code == 0xC2 && next >= 0x80 && next < 0xA0;
        text += code == 0x7F ? "\\u007f" : high ? formatted("\\u%04x", next) : std::string(1, json[i]);
        i += high ? 1 : 0;
    }
    return text;
}

std::string plural(int count, const std::string& thing) {
    return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

std::string spectralText(const SAdvProbe& probe) {
    const char* window =
        probe.spectralWindow < std::size(kWindowNames) ? kWindowNames[probe.spectralWindow] : "unknown";
    return " (" + plural(asInt(probe.spectralLags), "lag") + ", " + window + " window, " +
           (probe.spectralUnit == 0 ? "Hz" : "rad/s") + ")";
}

std::string stagesText(const SAdvProbe& probe) {
    std::string text;
    for (int mark = 0; mark < kDoneMarkCount; ++mark) {
        if (!probe.IsDone(static_cast<DoneMark>(mark))) {
            continue;
        }
        text += text.empty() ? "" : ", ";
        text += stageOfMark(static_cast<DoneMark>(mark)).text;
        if (static_cast<DoneMark>(mark) == DoneMark::Spectral) {
            text += spectralText(probe);
        }
    }
    return text.empty() ? "none" : text;
}

std::string momentsRow(const char* name, const Moments& m) {
    constexpr int digits = 3;
    return formatted("      %-4s %12s %12s %10s %10s\n", name, numberText(m.mean, digits).c_str(),
                     numberText(m.variance, digits).c_str(), numberText(m.skewness, digits).c_str(),
                     numberText(m.kurtosis, digits).c_str());
}

std::string shown(double value) {
    return withoutEmptySign(formatted("%g", value));
}

std::string resultsText(const SAdvProbe& probe) {
    const double* block = probe.resultBlock.data();
    const double rate = block[SAdvProbe::kDissipationRate];
    std::string text;
    if (probe.HasResults(SAdvProbe::kDissipationRate)) {
        text += "    Dissipation rate " + shown(rate) + " cm^2/s^3\n";
    }
    if (rate > 0.0) {
        text += formatted("    Kolmogorov's micro-scale %g cm, mean turbulent acceleration %g g\n",
                          kolmogorovMicroScale(rate), turbulentAcceleration(rate));
    }
    const double* scales = block + SAdvProbe::kTimeScales;
    if (probe.HasResults(SAdvProbe::kTimeScales)) {
        text += "    Time scales " + shown(scales[0]) + ", " + shown(scales[1]) + ", " + shown(scales[2]) + " s\n";
    }
    const double* integrals = block + SAdvProbe::kSpectrumIntegrals;
    if (probe.HasResults(SAdvProbe::kSpectrumIntegrals)) {
        text += "    Integrals of spectra " + shown(integrals[0]) + ", " + shown(integrals[1]) + ", " +
                shown(integrals[2]) + " (cm/s)^2\n";
    }
    return text;
}

// What the workspace's editing criteria say of the record as it is now; nothing when none is on.
std::string editingText(const SAdvProbe& probe, const WorkspaceSettings& settings) {
    try {
        const std::string shares = keptSharesText(assessEditing(probe, usable(settings.editing)));
        return shares.empty() ? shares : "    Editing criteria: " + shares + "\n";
    } catch (const InvalidArgument&) {
        return "    Editing criteria: the record has no scores for all of its samples\n";
    }
}

std::string probeAsText(const SAdvProbe& probe, const WorkspaceSettings& settings) {
    const int samples = SAdvProbe::ColumnLength(probe.SampledVelocities());
    const int working = probe.WorkingSamples();
    const std::array<double, 3> position = rotationSettingsOf(probe).position;
    std::string text = "  " + probeListText(probe) + ": " + plural(samples, "sample") +
                       formatted(" at %g s (%g s)", probe.samplingInterval, samples * probe.samplingInterval) + "\n";
    if (!probe.title.empty()) {
        text += "    " + shownName(probe.title) + "\n";
    }
    text += "    Working record: " + plural(working, "sample") + ", " + std::to_string(validSamples(probe)) + " valid" +
            (probe.UsesAllSamples() ? "" : "; only those are used") + "\n";
    text += editingText(probe, settings);
    text += formatted("    Sampling volume at %g, %g, %g m\n", position[0], position[1], position[2]);
    text += "    Stages done: " + stagesText(probe) + "\n";
    text += formatted("      %-4s %12s %12s %10s %10s\n", "", "mean", "variance", "skewness", "kurtosis");
    for (int i = 0; i < SAdvProbe::kComponents; ++i) {
        text += momentsRow(kVelocityNames[i], probe.VelocityMoments(i));
    }
    for (int i = 0; i < SAdvProbe::kComponents; ++i) {
        text += momentsRow(kStressNames[i], probe.StressMoments(i));
    }
    if (contributionSumsExceed(probe)) {
        text += std::string("    ") + kContributionsExceed + "\n";
    }
    return text + resultsText(probe);
}

}  // namespace

int validSamples(const SAdvProbe& probe) {
    const int samples = std::min(probe.WorkingSamples(), probe.sampleFlags.GetSize());
    const std::span<const std::int32_t> marks = probe.sampleFlags.view().first(asSize(samples));
    return asInt(std::count_if(marks.begin(), marks.end(), [](std::int32_t mark) { return mark >= 1; }));
}

std::string summaryAsJson(const Workspace& workspace, const std::string& version) {
    Json json;
    json["version"] = utf8Text(version);
    json["activeFile"] = workspace.settings.activeFile;
    json["activeProbe"] = workspace.settings.activeProbe;
    json["files"] = Json::array();
    for (const SAdvFile& file : workspace.dataFiles.files) {
        Json probes = Json::array();
        for (const SAdvProbe& probe : file.probes) {
            probes.push_back(probeAsJson(probe, workspace.settings));
        }
        json["files"].push_back({{"name", utf8Text(file.fileName)}, {"probes", std::move(probes)}});
    }
    const WorkspaceSettings& settings = workspace.settings;
    json["boundaries"] = boundariesAsJson(workspace.boundaries);
    json["samplingVolumes"] = samplingVolumesAsJson(workspace.dataFiles);
    json["meanVelocity"] = {{"mode", asInt(settings.meanVelocity.mode)}, {"value", settings.meanVelocity.value}};
    json["vectors"] = {{"plane", settings.vectors.plane},
                       {"pixels", settings.vectors.pixels},
                       {"speed", settings.vectors.speed},
                       {"smaller", settings.vectors.smaller}};
    return escaped(json.dump(2)) + "\n";
}

std::string summaryAsText(const Workspace& workspace, const std::string& version, const std::string& name) {
    std::string text =
        printable(name) + ": " + shownName(version) + ", " + plural(workspace.dataFiles.files.GetSize(), "data file");
    if (!workspace.boundaries.IsEmpty()) {
        text += ", " + plural(workspace.boundaries.GetSize(), "boundary file");
    }
    text += "\n";
    int number = 0;
    for (const SAdvFile& file : workspace.dataFiles.files) {
        text += "\nData file " + std::to_string(++number) + ": " + shownName(file.fileName) + "\n";
        for (const SAdvProbe& probe : file.probes) {
            text += probeAsText(probe, workspace.settings);
        }
    }
    text += workspace.boundaries.IsEmpty() ? "" : "\n";
    number = 0;
    for (const SBndFile& boundary : workspace.boundaries) {
        text += "Boundary " + std::to_string(++number) + ": " + shownName(boundary.name) + ", " +
                plural(boundary.NodeCount(), "node") + ", " + shownName(boundary.path) + "\n";
    }
    return text;
}

}  // namespace vorlan
