#include "analysis/Rotation.h"

#include "analysis/ProbeMoments.h"
#include "analysis/Stresses.h"
#include "model/Angles.h"
#include "model/DefaultFrames.h"

namespace vorlan {

namespace {

constexpr const char* kTitle = "New Coordinate System";
constexpr double kMetresPerMillimetre = 0.001;

void rotateColumns(SArray& first, SArray& second, int samples, double angle) {
    if (angle == 0.0) {
        return;
    }
    for (int i = 0; i < samples; ++i) {
        double a = first.GetValue(i);
        double b = second.GetValue(i);
        RotatePair(a, b, angle);
        first.SetValue(i, a);
        second.SetValue(i, b);
    }
}

}  // namespace

void rotateProbe(SAdvProbe& probe, double heading, double pitch, double roll) {
    const int samples = probe.WorkingSamples();
    if (samples == 0) {
        return;
    }
    SMultiArray& velocities = probe.workTables[SAdvProbe::kVelocities];
    SArray& u = velocities.ElementAt(0);
    SArray& v = velocities.ElementAt(1);
    SArray& w = velocities.ElementAt(2);
    // A sample's turns do not touch other samples, so the pairs may be turned one column after the other.
    rotateColumns(u, v, samples, heading);
    rotateColumns(v, w, samples, pitch);
    rotateColumns(u, w, samples, roll);
}

void changeCoordinateSystem(SAdvProbe& probe, const RotationSettings& settings) {
    probe.samplingVolumeX = settings.position[0] / kMetresPerMillimetre;
    probe.samplingVolumeY = settings.position[1] / kMetresPerMillimetre;
    probe.samplingVolumeZ = settings.position[2] / kMetresPerMillimetre;
    rotateProbe(probe, settings.heading, settings.pitch, settings.roll);
    formStresses(probe);
    setRecordTitle(probe, kTitle);
    probe.title = kTitle;
    computeProbeMoments(probe);
}

}  // namespace vorlan
