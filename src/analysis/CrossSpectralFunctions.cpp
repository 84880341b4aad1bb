#include "analysis/CrossSpectralFunctions.h"

#include <cmath>

#include "analysis/CrossLagWindow.h"
#include "model/Angles.h"
#include "model/Errors.h"

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

/// The functions times their window, for the lags that enter the sums.
Functions windowed(std::span<const std::vector<double>> functions, int windowCode, std::size_t length) {
    Functions result(functions.begin(), functions.end());
    for (std::size_t k = 0; k < length; ++k) {
        const double weight = crossLagWindowWeight(windowCode, static_cast<double>(k), static_cast<double>(length));
        for (std::vector<double>& function : result) {
            function[k] = weight * function[k];
        }
    }
    return result;
}

double scaled(double atZero, double sum, const CrossSpectrumRun& run) {
    const double total = atZero + 2.0 * sum;
    return run.unitSelector == 1 ? total * run.samplingInterval / kPi : 2.0 * total * run.samplingInterval;
}

}  // namespace

std::vector<double> crossCovariance(std::span<const double> x, std::span<const double> y, int lags,
                                    Progress& progress) {
    if (x.size() != y.size() || lags < 0 || static_cast<std::size_t>(lags) > x.size()) {
        throw InvalidArgument();
    }
    std::vector<double> result(static_cast<std::size_t>(lags));
    for (std::size_t k = 0; k < result.size(); ++k) {
        const std::size_t n = x.size() - k;
        double sum = 0.0;
        for (std::size_t j = 0; j + 1 < n; ++j) {
            sum += x[j + k] * y[j];
        }
        result[k] = sum / static_cast<double>(n);
        progress.breathe();
    }
    return result;
}

Functions coSpectra(std::span<const std::vector<double>> even, const CrossSpectrumRun& run, Progress& progress) {
    const std::size_t length = commonLength(even);
    const Functions terms = windowed(even, run.windowCode, length);
    Functions result(even.size(), std::vector<double>(length));
    for (std::size_t i = 0; i < length; ++i) {
        for (std::size_t f = 0; f < even.size(); ++f) {
            double sum = 0.0;
            for (std::size_t k = 1; k + 1 < length; ++k) {
                sum += terms[f][k] *
                       std::cos(static_cast<double>(i) * kPi * static_cast<double>(k) / static_cast<double>(length));
            }
            result[f][i] = scaled(even[f][0], sum, run);
        }
        progress.breathe();
    }
    return result;
}

Functions quadratureSpectra(std::span<const std::vector<double>> odd, const CrossSpectrumRun& run, Progress& progress) {
    const std::size_t length = commonLength(odd);
    const Functions terms = windowed(odd, run.windowCode, length);
    const std::size_t size = length < 2 ? length : length - 1;
    Functions result(odd.size(), std::vector<double>(size));
    for (std::size_t i = 1; i < size; ++i) {
        for (std::size_t f = 0; f < odd.size(); ++f) {
            double sum = 0.0;
            for (std::size_t k = 1; k < length; ++k) {
                sum += terms[f][k] *
                       std::sin(static_cast<double>(i) * kPi * static_cast<double>(k) / static_cast<double>(length));
            }
            result[f][i] = scaled(odd[f][0], sum, run);
        }
        progress.breathe();
    }
    return result;
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
