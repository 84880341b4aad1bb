#pragma once

#include <array>
#include <cstdint>

namespace vorlan {

/// The seven stages, numbered as in the tabs of a probe.
enum class Stage : int {
    PreProcessing = 0,
    Stationarity = 1,
    Histograms = 2,
    Spectral = 3,
    MeanVelocityVectors = 4,
    Quadrants = 5,
    CrossSpectral = 6,
};

inline constexpr int kStageCount = 7;

/// Entries of SAdvProbe::stageDone.
enum class DoneMark : int {
    Stationarity = 0,
    Histograms = 1,
    Spectral = 2,
    MeanVelocity = 3,
    CrossSpectral = 4,
    Quadrants = 5,
};

inline constexpr int kDoneMarkCount = 6;

/// The physical value that stages with two sides show.
enum class PhysicalValue : int { Velocities = 0, Stresses = 1 };

/// The four panes of the window, in the order of the frame attribute records.
enum class Pane : int { LeftTop = 0, LeftBottom = 1, RightTop = 2, RightBottom = 3 };

inline constexpr int kPaneCount = 4;
inline constexpr std::array<const char*, kPaneCount> kPaneTexts = {"Left top", "Left bottom", "Right top",
                                                                   "Right bottom"};

}  // namespace vorlan
