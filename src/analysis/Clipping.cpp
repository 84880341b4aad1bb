#include "analysis/Clipping.h"

#include <algorithm>
#include <cmath>

#include "analysis/ProbeMoments.h"
#include "analysis/Stresses.h"
#include "model/DefaultFrames.h"

namespace vorlan {

namespace {

// The diagrams of one stage.
constexpr int kTimeDiagrams = kPaneCount;

template <class Action>
void forEachTimeDiagram(SAdvProbe& probe, Action action) {
    SFrameAtrArray& frames = probe.frameAttributes[0];
    for (int i = 0; i < std::min(frames.GetSize(), kTimeDiagrams); ++i) {
        action(frames.ElementAt(i));
    }
}

/// Replaces elements by those of first..end-1, as far as there are any.
template <class Column>
void cut(Column& column, int first, int end) {
    end = std::min(end, column.GetSize());
    first = std::min(first, end);
    const auto elements = column.view();
    std::copy(elements.begin() + first, elements.begin() + end, elements.begin());
    column.SetSize(end - first);
}

bool coversRecord(const SMultiArray& table, int samples) {
    return std::all_of(table.begin(), table.end(),
                       [samples](const SArray& column) { return column.GetSize() >= samples; });
}

}  // namespace

double clippingTime(int sample, double samplingInterval) {
    const double time = sample * samplingInterval;
    return std::trunc(time / samplingInterval) < sample ? std::nextafter(time, 2.0 * time) : time;
}

bool clip(SAdvProbe& probe, double tStart, double tEnd, Progress& progress) {
    const double first = std::trunc(tStart / probe.samplingInterval);
    const double end = std::trunc(tEnd / probe.samplingInterval);
    if (!(first >= 0.0 && end >= 0.0)) {
        return false;
    }
    const int samples = probe.WorkingSamples();
    // Limited before they become integers: a limit may lie far behind the record.
    const int i1 = static_cast<int>(std::min(end, static_cast<double>(samples)));
    const int i0 = static_cast<int>(std::min(first, static_cast<double>(i1)));
    for (std::size_t t = SAdvProbe::kVelocities; t <= SAdvProbe::kWorkPressure; ++t) {
        SMultiArray& table = probe.workTables[t];
        if (coversRecord(table, samples)) {
            for (SArray& column : table) {
                cut(column, i0, i1);
            }
        }
    }
    probe.marksMoved = probe.marksMoved || samples < probe.sampleFlags.GetSize();
    cut(probe.sampleFlags, i0, i1);
    formStresses(probe, StressResolution::SamePosition, progress);
    setRecordTitle(probe, "Sampled Velocities (Zoom)");
    computeProbeMoments(probe, progress);
    return true;
}

void enterZoomMode(SAdvProbe& probe) {
    probe.zoomMode = 1;
    forEachTimeDiagram(probe, [](FrameAttributesType& frame) { frame.xMinMode = 0; });
}

void resetProbe(SAdvProbe& probe, Progress& progress) {
    probe.Reset();
    progress.pump();
    formStresses(probe, StressResolution::SamePosition, progress);
    probe.zoomMode = 0;
    setRecordTitle(probe, "Sampled Velocities");
    forEachTimeDiagram(probe, [](FrameAttributesType& frame) {
        frame.xMinMode = 1;
        frame.xMin = 0.0;
    });
    computeProbeMoments(probe, progress);
}

}  // namespace vorlan
