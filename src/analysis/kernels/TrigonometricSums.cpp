#include "analysis/kernels/TrigonometricSums.h"

#include <algorithm>

#include "analysis/kernels/Pacer.h"
#include "analysis/kernels/PhaseTable.h"
#include "model/Errors.h"

namespace vorlan {

namespace {

using Series = std::vector<std::vector<double>>;
using BlockSums = decltype(KernelSet::cosineSums);

Series trigonometricSums(std::span<const std::vector<double>> terms, std::size_t length, std::size_t frequencies,
                         Progress& progress, BlockSums blockSums) {
    Series result(terms.size(), std::vector<double>(frequencies));
    if (terms.empty()) {
        return result;
    }
    const std::size_t count = terms.front().size();
    std::vector<const double*> series;
    for (const std::vector<double>& s : terms) {
        if (s.size() != count || length == 0) {
            throw InvalidArgument();
        }
        series.push_back(s.data());
    }

    const PhaseTable table(length);
    std::vector<PhaseRow> steps(std::min(count, kPhaseSteps));
    std::vector<PhaseRow> blocks((count + kPhaseSteps - 1) / kPhaseSteps);
    std::vector<double> sums(kSharedSeries * kFrequencyBlock);
    Pacer pacer(progress);
    for (std::size_t first = 0; first < frequencies; first += kFrequencyBlock) {
        table.fill(first, 1, steps.size(), steps.data());
        table.fill(first, kPhaseSteps, blocks.size(), blocks.data());
        const std::size_t held = std::min(kFrequencyBlock, frequencies - first);
        for (std::size_t s = 0; s < series.size(); s += kSharedSeries) {
            const std::size_t shared = std::min(kSharedSeries, series.size() - s);
            blockSums(series.data() + s, shared, count, {steps.data(), blocks.data()}, sums.data());
            for (std::size_t t = 0; t < shared; ++t) {
                std::copy_n(sums.begin() + static_cast<std::ptrdiff_t>(t * kFrequencyBlock), held,
                            result[s + t].begin() + static_cast<std::ptrdiff_t>(first));
            }
            pacer.worked(shared * count * kFrequencyBlock);
        }
    }
    progress.breathe();
    return result;
}

}  // namespace

Series cosineSums(std::span<const std::vector<double>> terms, std::size_t length, std::size_t frequencies,
                  Progress& progress, const KernelSet& kernels) {
    return trigonometricSums(terms, length, frequencies, progress, kernels.cosineSums);
}

Series sineSums(std::span<const std::vector<double>> terms, std::size_t length, std::size_t frequencies,
                Progress& progress, const KernelSet& kernels) {
    return trigonometricSums(terms, length, frequencies, progress, kernels.sineSums);
}

}  // namespace vorlan
