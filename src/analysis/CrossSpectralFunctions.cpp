#include "analysis/CrossSpectralFunctions.h"

#include <cmath>

#include "analysis/LagWindow.h"
#include "analysis/kernels/SlidingProducts.h"
#include "analysis/kernels/TrigonometricSums.h"
#include "model/Angles.h"
#include "model/Errors.h"
#include "model/Index.h"

namespace vorlan {

namespace {

using Functions = std::vector<std::vector<double>>;

std::size_t commonLength(std::span<const std::vector<double>> functions) {
    const std::size_t length = functions.empty() ? 0 : functions.front().size();
    for (const std::vector<double>& function : functions) {
        if (function.size() != length) {
            throw InvalidArgument();
        }
    }
    return length;
}

/// The functions times their window for lags 1..last, 0 for the lags that do not take part.
Functions windowed(std::span<const std::vector<double>> functions, int windowCode, std::size_t last) {
    Functions terms;
    for (const std::vector<double>& function : functions) {
        const auto length = static_cast<double>(function.size());
        std::vector<double>& term = terms.emplace_back(function.size());
        for (std::size_t k = 1; k <= last; ++k) {
            term[k] = crossLagWindowWeight(windowCode, static_cast<double>(k), length) * function[k];
        }
    }
    return terms;
}

double scaled(double atZero, double sum, const CrossSpectrumRun& run) {
    const double total = atZero + 2.0 * sum;
    return run.unitSelector == 1 ? total * run.samplingInterval / kPi : 2.0 * total * run.samplingInterval;
}

}  // namespace

std::vector<double> crossCovariance(std::span<const double> x, std::span<const double> y, int lags,
                                    Progress& progress) {
    if (x.size() != y.size() || lags < 0 || asSize(lags) > x.size()) {
        throw InvalidArgument();
    }
    // Without the last sample of the moved series every lag loses its last product.
    const std::span<const double> moved = x.first(x.empty() ? 0 : x.size() - 1);
    std::vector<double> result = slidingProducts(moved, y, asSize(lags), progress);
    for (std::size_t k = 0; k < result.size(); ++k) {
        result[k] /= static_cast<double>(x.size() - k);
    }
    return result;
}

Functions coSpectra(std::span<const std::vector<double>> even, const CrossSpectrumRun& run, Progress& progress) {
    const std::size_t length = commonLength(even);
    if (length == 0) {
        return Functions(even.size());
    }
    const Functions terms = windowed(even, run.windowCode, length < 2 ? 0 : length - 2);
    Functions spectra = cosineSums(terms, length, length, progress);
    for (std::size_t f = 0; f < spectra.size(); ++f) {
        for (double& value : spectra[f]) {
            value = scaled(even[f][0], value, run);
        }
    }
    return spectra;
}

Functions quadratureSpectra(std::span<const std::vector<double>> odd, const CrossSpectrumRun& run, Progress& progress) {
    const std::size_t length = commonLength(odd);
    if (length == 0) {
        return Functions(odd.size());
    }
    const std::size_t size = length < 2 ? 1 : length - 1;
    Functions spectra = sineSums(windowed(odd, run.windowCode, length - 1), length, size, progress);
    for (std::size_t f = 0; f < spectra.size(); ++f) {
        spectra[f][0] = 0.0;
        for (std::size_t i = 1; i < size; ++i) {
            spectra[f][i] = scaled(odd[f][0], spectra[f][i], run);
        }
    }
    return spectra;
}

double crossPhase(double co, double quadrature) {
    double degrees = std::atan(quadrature / co) * 180.0 / kPi;
    if (co < 0.0) {
        degrees += 180.0;
    } else if (quadrature >= 0.0) {
        degrees += 360.0;
    }
    return degrees > 180.0 ? degrees - 360.0 : degrees;
}

double squaredCoherence(double co, double quadrature, double spectrumX, double spectrumY) {
    const double coherence = (co * co + quadrature * quadrature) / (spectrumX * spectrumY);
    return coherence <= 1.0 ? coherence : 1.0;
}

}  // namespace vorlan
