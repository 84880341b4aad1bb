#include "model/DefaultFrames.h"

#include <array>
#include <vector>

#include "model/Index.h"

namespace vorlan {

namespace {

struct FrameDefaults {
    const char* plotTitle;
    const char* xTitle;
    const char* yTitle;
    int xDigits;
    int yDigits;
    bool fromZero;  // the lower end of the X axis is fixed at 0
};

const std::vector<FrameDefaults>& groupDefaults(int group) {
    static const std::array<std::vector<FrameDefaults>, 7> defaults = {{
        {{"Sampled Velocities", "Time, s", "Velocity,cm/s", 1, 1, true},
         {"Correlation and SNR Scores", "Time, s", "Scores", 1, 0, true},
         {"Heading, Pitch and Roll", "Time, s", "Aux., degree", 1, 1, true},
         {"Pressure Data", "Time, s", "Pressure", 1, 1, true}},
        {{"Mean Velocity", "Time, s", "Velocity,cm/s", 1, 2, true},
         {"Velocity Variance", "Time, s", "Var.,(cm/s)^2", 1, 2, true},
         {"Velocity Skewness", "Time, s", "Sk", 1, 2, true},
         {"Velocity Kurtosis", "Time, s", "Kr", 1, 2, true}},
        {{"Streamwise Velocity", "Velocity, cm/s", "n/(N*du)", 1, 3, false},
         {"Transverse Velocity", "Velocity, cm/s", "n/(N*dv)", 1, 3, false},
         {"Vertical Velocity", "Velocity, cm/s", "n/(N*dw)", 1, 3, false},
         {"All Velocity Vector Components", "Velocity, cm/s", "n/(N*du)", 1, 3, false}},
        {{"Correlation Functions", "Lag Time, s", "Correlation", 2, 2, true},
         {"Power spectra", "Frequency", "S(f), cm^2/s", 2, 2, false},
         {"Structure Functions", "Lag Time, s", "Structure, (cm/s)^2", 2, 2, false}},
        {{"Sampled Stresses", "Time, s", "Stresses,(cm/s)^2", 1, 1, true}},
        {{"Contribution Rates", "Hole Size", "RS", 1, 2, true},
         {"Ejection (dimensionless velocities)", "Time, s", "Velocity", 1, 1, false},
         {"Fractional Times", "Hole Size", "TS", 1, 2, true},
         {"Sweep (dimensionless velocities)", "Time, s", "Velocity", 1, 1, false}},
        {{"Cross-correlation functions", "Lag Time, s", "", 2, 2, false},
         {"Cross spectra", "Frequency", "S(f), cm^2/s", 2, 2, false},
         {"Coherence spectra", "Frequency", "", 2, 1, false},
         {"Phase spectra", "Frequency", "Phase,deg", 2, 0, false}},
    }};
    static const std::vector<FrameDefaults> none;
    return group >= 0 && group < 7 ? defaults[asSize(group)] : none;
}

void fixY(FrameAttributesType& frame, double lower, double upper) {
    frame.yMinMode = 1;
    frame.yMaxMode = 1;
    frame.yMin = lower;
    frame.yMax = upper;
}

}  // namespace

int defaultFrameCount(int group) {
    return asInt(groupDefaults(group).size());
}

FrameAttributesType defaultFrame(int group, int record) {
    FrameAttributesType frame;
    if (record < 0 || record >= defaultFrameCount(group)) {
        return frame;
    }
    const FrameDefaults& defaults = groupDefaults(group)[asSize(record)];
    frame.plotTitle = defaults.plotTitle;
    frame.xTitle = defaults.xTitle;
    frame.yTitle = defaults.yTitle;
    frame.xDigits = defaults.xDigits;
    frame.yDigits = defaults.yDigits;
    if (defaults.fromZero) {
        frame.xMinMode = 1;
        frame.xMin = 0.0;
    }
    if (group == asInt(Stage::Spectral) && record > 0) {
        frame.scaleType = static_cast<std::int32_t>(ScaleType::Logarithmic);
    }
    if (group == asInt(Stage::Quadrants)) {
        frame.legendTitle = "Quadrants:";
    }
    if (group == asInt(Stage::CrossSpectral) && record == 2) {
        fixY(frame, 0.0, 1.0);
    }
    if (group == asInt(Stage::CrossSpectral) && record == 3) {
        fixY(frame, -180.0, 180.0);
    }
    return frame;
}

FrameAttributesType defaultPlanFrame(int record) {
    FrameAttributesType frame;
    frame.plotTitle = record == 0 ? "Mean Velocity Vectors" : "Minimum, Maximum Velocity Vectors";
    // The legend's texts are long, and boundaries often reach the corners.
    frame.legendPosition = static_cast<std::int32_t>(LegendPosition::Bottom);
    return frame;
}

FrameAttributesType defaultPreviewFrame(int plane) {
    FrameAttributesType frame;
    frame.plotTitle = "Flow Bounds and Sampling Grid";
    frame.xTitle = plane == 2 ? "Y" : "X";
    frame.yTitle = plane == 0 ? "Y" : "Z";
    frame.xMinMode = frame.xMaxMode = frame.yMinMode = frame.yMaxMode = 1;
    frame.xMin = 0.0;
    frame.xMax = 16.0;
    frame.yMin = 0.0;
    frame.yMax = 1.0;
    frame.xStepMode = frame.yStepMode = 1;
    frame.xStep = 2.0;
    frame.yStep = 0.2;
    frame.plotTitleFont = FontDescription("ARIAL", 12, 400);
    frame.axisTitleFont = FontDescription("ARIAL", 14, 600, true);
    frame.labelFont = FontDescription("ARIAL", 14, 600);
    frame.legendFont = FontDescription("ARIAL", 14, 400);
    frame.legendTitle = " ";
    return frame;
}

void createDefaultFrames(SAdvProbe& probe) {
    for (int group = 0; group < asInt(probe.frameAttributes.size()); ++group) {
        SFrameAtrArray& frames = probe.frameAttributes[asSize(group)];
        frames.RemoveAll();
        for (int record = 0; record < defaultFrameCount(group); ++record) {
            frames.Add(defaultFrame(group, record));
        }
    }
}

FrameAttributesType frameOrDefault(const SAdvProbe& probe, int group, int record) {
    const SFrameAtrArray& frames = probe.frameAttributes.at(asSize(group));
    return record < frames.GetSize() ? frames.GetAt(record) : defaultFrame(group, record);
}

void setRecordTitle(SAdvProbe& probe, const std::string& title) {
    SFrameAtrArray& frames = probe.frameAttributes[0];
    if (frames.IsEmpty()) {
        frames.Add(defaultFrame(0, 0));
    }
    frames.ElementAt(0).plotTitle = title;
}

}  // namespace vorlan
