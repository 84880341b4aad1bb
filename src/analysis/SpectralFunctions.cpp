#include "analysis/SpectralFunctions.h"

#include <cmath>

#include "analysis/LagWindow.h"
#include "model/Angles.h"
#include "model/Errors.h"

namespace vorlan {

namespace {

void checkLags(std::size_t samples, int lags) {
    if (lags < 0 || static_cast<std::size_t>(lags) > samples) {
        throw InvalidArgument();
    }
}

}  // namespace

std::vector<double> autocovariance(std::span<const double> deviations, int lags, Progress& progress) {
    checkLags(deviations.size(), lags);
    progress.status("Cov. function calculations: ");
    std::vector<double> result(static_cast<std::size_t>(lags));
    for (std::size_t k = 0; k < result.size(); ++k) {
        const std::size_t n = deviations.size() - k;
        double sum = 0.0;
        for (std::size_t j = 0; j < n; ++j) {
            sum += deviations[j + k] * deviations[j];
        }
        result[k] = sum / static_cast<double>(n);
        progress.breathe();
    }
    return result;
}

std::vector<double> structureFunction(std::span<const double> deviations, int lags, Progress& progress) {
    checkLags(deviations.size(), lags);
    progress.status("Str. function calculations: ");
    std::vector<double> result(static_cast<std::size_t>(lags));
    for (std::size_t k = 0; k < result.size(); ++k) {
        const std::size_t n = deviations.size() - k;
        double sum = 0.0;
        for (std::size_t j = 0; j < n; ++j) {
            const double difference = deviations[j] - deviations[j + k];
            sum += difference * difference;
        }
        result[k] = sum / static_cast<double>(n);
        progress.breathe();
    }
    return result;
}

std::vector<double> powerSpectrum(std::span<const double> covariance, int windowCode, int unitSelector,
                                  double samplingInterval, Progress& progress) {
    const std::vector<double> copy(covariance.begin(), covariance.end());
    return powerSpectra({&copy, 1}, windowCode, unitSelector, samplingInterval, progress).front();
}

std::vector<std::vector<double>> powerSpectra(std::span<const std::vector<double>> covariances, int windowCode,
                                              int unitSelector, double samplingInterval, Progress& progress) {
    progress.status("Spectrum calculations: ");
    std::vector<std::vector<double>> spectra;
    for (const std::vector<double>& covariance : covariances) {
        const std::size_t lags = covariance.size();
        const double length = static_cast<double>(lags) - 1.0;
        std::vector<double>& spectrum = spectra.emplace_back(lags);
        for (std::size_t i = 0; i < lags; ++i) {
            double sum = 0.0;
            for (std::size_t k = 1; k + 1 < lags; ++k) {
                const auto lag = static_cast<double>(k);
                sum += lagWindowWeight(windowCode, lag, length) * covariance[k] *
                       std::cos(kPi * static_cast<double>(i) * lag / length);
            }
            const double total = covariance[0] + 2.0 * sum;
            spectrum[i] = unitSelector == 1 ? total * samplingInterval / kPi : 2.0 * total * samplingInterval;
            progress.breathe();
        }
    }
    return spectra;
}

}  // namespace vorlan
