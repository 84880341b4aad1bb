#include "analysis/Rotation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "analysis/ProbeMoments.h"
#include "analysis/Stresses.h"
#include "model/Angles.h"
#include "model/DefaultFrames.h"
#include "model/Index.h"

namespace vorlan {

namespace {

constexpr const char* kTitle = "New Coordinate System";
// Samples that are turned together; what they need stays near.
constexpr std::size_t kPart = 512;
constexpr std::size_t kPartsPerBreath = 64;

/// Turns samples by a sum of products, and by the formula with radius and angle where rounding could decide which
/// integer is stored: what is stored is always what the formula gives.
class PairTurn {
  public:
    PairTurn(double firstScale, double secondScale, double angle)
        : scales_{firstScale, secondScale},
          angle_(angle),
          cosine_(std::cos(radians(angle))),
          sine_(std::sin(radians(angle))),
          // Radius, angle, their functions and the products: each is wrong by a few units of the last place, the angle
          // by units of its own size. Several times that is allowed for.
          doubt_((64.0 + 8.0 * std::fabs(radians(angle))) * std::numeric_limits<double>::epsilon()) {}

    /// At most kPart samples.
    void turn(std::span<std::int32_t> first, std::span<std::int32_t> second) const {
        std::array<double, kPart> x;
        std::array<double, kPart> y;
        std::array<double, kPart> turnedX;
        std::array<double, kPart> turnedY;
        std::array<double, kPart> margin;
        for (std::size_t i = 0; i < first.size(); ++i) {
            x[i] = first[i] * scales_[0];
            y[i] = second[i] * scales_[1];
            turnedX[i] = x[i] * cosine_ - y[i] * sine_;
            turnedY[i] = x[i] * sine_ + y[i] * cosine_;
            margin[i] = (std::fabs(x[i]) + std::fabs(y[i])) * doubt_;
        }
        bool doubtful = store(turnedX, scales_[0], margin, first);
        doubtful |= store(turnedY, scales_[1], margin, second);
        for (std::size_t i = 0; doubtful && i < first.size(); ++i) {
            if (isDoubtful(turnedX[i], first[i], scales_[0], margin[i]) ||
                isDoubtful(turnedY[i], second[i], scales_[1], margin[i])) {
                RotatePair(x[i], y[i], angle_);
                first[i] = truncateToInt32(x[i] / scales_[0]);
                second[i] = truncateToInt32(y[i] / scales_[1]);
            }
        }
    }

  private:
    using Values = std::array<double, kPart>;

    static double radians(double degrees) { return degrees * kPi / 180.0; }

    // Within the margin of the next integer on either side. Not a number and what does not fit are, too.
    static bool isDoubtful(double value, std::int32_t stored, double scale, double margin) {
        const double rest = std::fabs(value - stored * scale);
        return !((rest > margin) & (rest < scale - margin));
    }

    // Whether any of what it stores is doubtful.
    static bool store(const Values& values, double scale, const Values& margin, std::span<std::int32_t> units) {
        truncateToUnits(std::span(values).first(units.size()), scale, units.data());
        unsigned doubtful = 0;
        for (std::size_t i = 0; i < units.size(); ++i) {
            doubtful |= static_cast<unsigned>(isDoubtful(values[i], units[i], scale, margin[i]));
        }
        return doubtful != 0;
    }

    std::array<double, 2> scales_;
    double angle_;
    double cosine_;
    double sine_;
    double doubt_;
};

/// Resolutions with which squares neither vanish nor overflow: the bounds of rounding hold.
bool isOrdinary(double scale) {
    return scale > 1e-100 && scale < 1e100;
}

void rotateColumns(SArray& first, SArray& second, int samples, double angle, Progress& progress) {
    if (angle == 0.0) {
        return;
    }
    const auto count = asSize(samples);
    if (asSize(second.GetSize()) < count) {
        throw InvalidArgument();
    }
    const std::span<std::int32_t> x = first.view().first(count);
    const std::span<std::int32_t> y = second.view().first(count);
    if (!isOrdinary(first.GetScale()) || !isOrdinary(second.GetScale())) {
        for (int i = 0; i < samples; ++i) {
            double a = first.GetValue(i);
            double b = second.GetValue(i);
            RotatePair(a, b, angle);
            first.SetValue(i, a);
            second.SetValue(i, b);
        }
        return;
    }
    const PairTurn turn(first.GetScale(), second.GetScale(), angle);
    for (std::size_t at = 0, parts = 0; at < count; at += kPart, ++parts) {
        if (parts % kPartsPerBreath == 0) {
            progress.pump();
        }
        const std::size_t part = std::min(kPart, count - at);
        turn.turn(x.subspan(at, part), y.subspan(at, part));
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
