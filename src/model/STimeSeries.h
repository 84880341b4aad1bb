#pragma once

#include <cstdint>

#include "model/SArray.h"

namespace vorlan {

/// Mean, variance (N - 1), skewness and excess kurtosis (both N) of a series.
struct Moments {
    double mean = 0.0;
    double variance = 0.0;
    double skewness = 0.0;
    double kurtosis = 0.0;

    friend bool operator==(const Moments&, const Moments&) = default;
};

/// One analysed scalar series of a probe with the results of every stage that works on one component.
///
/// The members that decide a result's meaning stand beside it: number of lags, window and unit of the spectral
/// functions, number of bands, number of grades.
class STimeSeries : public SObject {
  public:
    /// What a series is of; the order of the probe's six series.
    enum Kind : std::uint32_t { U = 0, V = 1, W = 2, UV = 3, UW = 4, VW = 5 };

    explicit STimeSeries(std::uint32_t kindOfSeries = U) : kind(kindOfSeries) {}

    const char* ClassName() const override { return "STimeSeries"; }
    void Serialize(Archive& archive) override;

    void ClearStationarityResults();

    std::uint32_t kind;
    SArray values;             ///< the samples that count, in the resolution of their velocity column
    SArray correlation;        ///< autocovariance by lag, (cm/s)^2
    SArray spectrum;           ///< spectral density by frequency index
    SArray structureFunction;  ///< by lag, (cm/s)^2
    SArray histogram;          ///< probability density by grade
    SArray bandMeans;
    SArray bandVariances;
    SArray bandSkewness;
    SArray bandKurtosis;
    Moments moments;
    std::uint32_t lags = 0;  ///< truncation point of the spectral functions
    std::uint32_t bands = 0;
    std::uint32_t grades = 0;
    std::uint32_t windowCode = 0;    ///< 0 rectangle, 1 Tukey, 2 Bartlett, 3 Parzen
    std::uint32_t unitSelector = 0;  ///< 0 Hz, 1 rad/s
    /// Seconds per sample. Not stored: copied from the probe after loading and before every use.
    double samplingInterval = 0.0;

    friend bool operator==(const STimeSeries&, const STimeSeries&) = default;
};

}  // namespace vorlan
