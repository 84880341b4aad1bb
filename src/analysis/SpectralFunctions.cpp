#include "analysis/SpectralFunctions.h"

#include "analysis/LagWindow.h"
#include "analysis/kernels/SlidingProducts.h"
#include "analysis/kernels/SquaredDifferences.h"
#include "analysis/kernels/TrigonometricSums.h"
#include "model/Angles.h"
#include "model/Errors.h"
#include "model/Index.h"

namespace vorlan {

namespace {

std::size_t checkedLags(std::size_t samples, int lags) {
    if (lags < 0 || asSize(lags) > samples) {
        throw InvalidArgument();
    }
    return asSize(lags);
}

/// Divides the sum of lag k by its number of terms, N - k.
void divideByTerms(std::vector<double>& sums, std::size_t samples) {
    for (std::size_t k = 0; k < sums.size(); ++k) {
        sums[k] /= static_cast<double>(samples - k);
    }
}

/// The covariances times their window for the lags that enter the sums, 0 for the first; the last one is left out.
std::vector<double> windowed(std::span<const double> covariance, int windowCode) {
    std::vector<double> terms(covariance.size() < 3 ? 0 : covariance.size() - 1);
    const auto length = static_cast<double>(covariance.size()) - 1.0;
    for (std::size_t k = 1; k < terms.size(); ++k) {
        terms[k] = lagWindowWeight(windowCode, static_cast<double>(k), length) * covariance[k];
    }
    return terms;
}

}  // namespace

std::vector<double> autocovariance(std::span<const double> deviations, int lags, Progress& progress) {
    const std::size_t count = checkedLags(deviations.size(), lags);
    progress.status("Cov. function calculations: ");
    std::vector<double> result = slidingProducts(deviations, deviations, count, progress);
    divideByTerms(result, deviations.size());
    return result;
}

std::vector<double> structureFunction(std::span<const double> deviations, int lags, Progress& progress) {
    const std::size_t count = checkedLags(deviations.size(), lags);
    progress.status("Str. function calculations: ");
    std::vector<double> result = squaredDifferences(deviations, count, progress);
    divideByTerms(result, deviations.size());
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
    std::vector<std::vector<double>> terms;
    for (const std::vector<double>& covariance : covariances) {
        if (covariance.size() != covariances.front().size()) {
            throw InvalidArgument();
        }
        terms.push_back(windowed(covariance, windowCode));
    }
    if (covariances.empty() || covariances.front().empty()) {
        return terms;
    }
    const std::size_t lags = covariances.front().size();
    // One lag has no length; its sums are empty like those of two.
    std::vector<std::vector<double>> spectra = cosineSums(terms, lags > 1 ? lags - 1 : 1, lags, progress);
    for (std::size_t s = 0; s < spectra.size(); ++s) {
        for (double& value : spectra[s]) {
            const double total = covariances[s][0] + 2.0 * value;
            value = unitSelector == 1 ? total * samplingInterval / kPi : 2.0 * total * samplingInterval;
        }
    }
    return spectra;
}

}  // namespace vorlan
