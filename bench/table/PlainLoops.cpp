#include "table/PlainLoops.h"

#include <algorithm>
#include <cmath>

#include "model/Angles.h"

namespace bench::plain {

Values record(std::size_t size, std::uint32_t seed) {
    Values values(size);
    for (std::size_t i = 0; i < size; ++i) {
        seed = seed * 1664525U + 1013904223U;
        const double noise = static_cast<double>(seed >> 8) / 16777216.0 - 0.5;
        values[i] = std::trunc(1000.0 * std::sin(0.01 * static_cast<double>(i)) + 1600.0 * noise) * 0.01;
    }
    return values;
}

std::vector<Values> fadingFunctions(std::size_t count, std::size_t lags) {
    std::vector<Values> functions;
    for (std::size_t f = 0; f < count; ++f) {
        functions.push_back(record(lags, static_cast<std::uint32_t>(f + 1)));
        for (std::size_t k = 0; k < lags; ++k) {
            functions.back()[k] *= std::exp(-static_cast<double>(k) / 1000.0);
        }
    }
    return functions;
}

namespace {

// A function of its own: a sum that is handed on by its address would live in memory.
template <class Term>
[[gnu::noinline]] double sumOf(std::size_t terms, Term term) {
    double sum = 0.0;
    for (std::size_t j = 0; j < terms; ++j) {
        sum += term(j);
    }
    return sum;
}

template <class Wave>
Values waves(const Values& terms, std::size_t length, std::size_t frequencies, Wave wave) {
    Values sums;
    const auto l = static_cast<double>(length);
    for (std::size_t i = 0; i < frequencies; ++i) {
        sums.push_back(sumOf(terms.size() - 1, [&](std::size_t j) {
            const auto k = static_cast<double>(j + 1);
            return terms[j + 1] * wave(vorlan::kPi * static_cast<double>(i) * k / l);
        }));
    }
    return sums;
}

}  // namespace

Values products(std::span<const double> x, std::span<const double> y, std::size_t first, std::size_t lags,
                std::size_t stride) {
    Values sums;
    for (std::size_t k = first; k < lags; k += stride) {
        const std::size_t terms = k < x.size() ? std::min(y.size(), x.size() - k) : 0;
        sums.push_back(sumOf(terms, [&](std::size_t j) { return x[j + k] * y[j]; }));
    }
    return sums;
}

Values squaredDifferences(std::span<const double> d, std::size_t first, std::size_t lags, std::size_t stride) {
    Values sums;
    for (std::size_t k = first; k < lags; k += stride) {
        sums.push_back(sumOf(d.size() - k, [&](std::size_t j) { return (d[j] - d[j + k]) * (d[j] - d[j + k]); }));
    }
    return sums;
}

Values cosines(const Values& terms, std::size_t length, std::size_t frequencies) {
    return waves(terms, length, frequencies, [](double phase) { return std::cos(phase); });
}

Values sines(const Values& terms, std::size_t length, std::size_t frequencies) {
    return waves(terms, length, frequencies, [](double phase) { return std::sin(phase); });
}

double readOnce(const std::vector<std::span<const std::int32_t>>& columns, double scale) {
    double total = 0.0;
    for (const auto& column : columns) {
        double sum = 0.0;
        for (const std::int32_t n : column) {
            sum += n * scale;
        }
        total += sum;
    }
    return total;
}

}  // namespace bench::plain
