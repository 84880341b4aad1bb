#include "analysis/Rotation.h"

#include "analysis/ProbeMoments.h"
#include "analysis/Stresses.h"
#include "model/Angles.h"
#include "model/DefaultFrames.h"

namespace vorlan {

namespace {

constexpr const char* kTitle = "New Coordinate System";

void rotateColumns(SArray& first, SArray& second, int samples, double angle, Progress& progress) {
    if (angle == 0.0) {
        return;
    }
    // Less than a millisecond of angles and radii.
    constexpr int kPart = 1 << 14;
    for (int i = 0; i < samples; ++i) {
        if (i % kPart == 0) {
            progress.breathe();
        }
        double a = first.GetValue(i);
        double b = second.GetValue(i);
        RotatePair(a, b, angle);
        first.SetValue(i, a);
        second.SetValue(i, b);
    }
}

}  // namespace

void rotateProbe(SAdvProbe& probe, double heading, double pitch, double roll, Progress& progress) {
    const int samples = probe.WorkingSamples();
    if (samples == 0) {
        return;
    }
    SMultiArray& velocities = probe.Velocities();
    SArray& u = velocities.ElementAt(0);
    SArray& v = velocities.ElementAt(1);
    SArray& w = velocities.ElementAt(2);
    // A sample's turns do not touch other samples, so the pairs may be turned one column after the other.
    rotateColumns(u, v, samples, heading, progress);
    rotateColumns(v, w, samples, pitch, progress);
    rotateColumns(u, w, samples, roll, progress);
}

void changeCoordinateSystem(SAdvProbe& probe, const RotationSettings& settings, Progress& progress) {
    progress.status("Coordinate rotation calculations: ");
    const SAdvProbe before = probe;
    probe.SetPosition(settings.position);
    // A coordinate that is kept is not stored again: that could cost its last digit.
    const std::array<double, 3> shown = before.Position();
    probe.samplingVolumeX = settings.position[0] == shown[0] ? before.samplingVolumeX : probe.samplingVolumeX;
    probe.samplingVolumeY = settings.position[1] == shown[1] ? before.samplingVolumeY : probe.samplingVolumeY;
    probe.samplingVolumeZ = settings.position[2] == shown[2] ? before.samplingVolumeZ : probe.samplingVolumeZ;
    rotateProbe(probe, settings.heading, settings.pitch, settings.roll, progress);
    formStresses(probe, StressResolution::SamePosition, progress);
    setRecordTitle(probe, kTitle);
    probe.title = kTitle;
    computeProbeMoments(probe, progress);
}

}  // namespace vorlan
