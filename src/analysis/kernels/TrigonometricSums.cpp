#include "analysis/kernels/TrigonometricSums.h"

#include <algorithm>

#include "analysis/kernels/Pacer.h"
#include "analysis/kernels/PhaseTable.h"
#include "model/Errors.h"

namespace vorlan {

namespace {

using Series = std::vector<std::vector<double>>;
using BlockSums = decltype(KernelSet::cosineSums);

std::vector<FoldedTerms> folded(std::span<const double> terms) {
    std::vector<FoldedTerms> blocks((terms.size() + kPhaseSteps - 1) / kPhaseSteps);
    const auto at = [terms](std::size_t k) { return k < terms.size() ? terms[k] : 0.0; };
    for (std::size_t b = 0; b < blocks.size(); ++b) {
        const std::size_t middle = b * kPhaseSteps + kPhaseSteps / 2;
        blocks[b].even[0] = at(middle);
        blocks[b].odd[0] = 0.0;
        for (std::size_t t = 1; t < kFoldedSteps; ++t) {
            // The lag as far behind the middle as the first before it belongs to the next block.
            const double behind = t < kPhaseSteps / 2 ? at(middle + t) : 0.0;
            blocks[b].even[t] = behind + at(middle - t);
            blocks[b].odd[t] = behind - at(middle - t);
        }
    }
    return blocks;
}

Series trigonometricSums(std::span<const std::vector<double>> terms, const PhaseTable& table, std::size_t frequencies,
                         Progress& progress, const KernelSet& kernels, BlockSums blockSums) {
    const PhaseCircle circle = table.circle();
    Series result(terms.size(), std::vector<double>(frequencies));
    if (terms.empty()) {
        return result;
    }
    const std::size_t count = terms.front().size();
    std::vector<std::vector<FoldedTerms>> series;
    std::vector<const FoldedTerms*> starts;
    for (const std::vector<double>& s : terms) {
        if (s.size() != count) {
            throw InvalidArgument();
        }
        starts.push_back(series.emplace_back(folded(s)).data());
    }

    std::vector<PhaseRow> steps(kFoldedSteps);
    std::vector<PhaseRow> middles(series.front().size());
    std::vector<double> sums(kSharedSeries * kFrequencyBlock);
    Pacer pacer(progress, static_cast<double>(frequencies) * static_cast<double>(count * series.size()));
    for (std::size_t first = 0; first < frequencies; first += kFrequencyBlock) {
        kernels.phaseRows(circle, first, 0, 1, steps.size(), steps.data());
        kernels.phaseRows(circle, first, kPhaseSteps / 2, kPhaseSteps, middles.size(), middles.data());
        const std::size_t held = std::min(kFrequencyBlock, frequencies - first);
        for (std::size_t s = 0; s < series.size(); s += kSharedSeries) {
            const std::size_t shared = std::min(kSharedSeries, series.size() - s);
            blockSums(starts.data() + s, shared, middles.size(), {steps.data(), middles.data()}, sums.data());
            for (std::size_t t = 0; t < shared; ++t) {
                std::copy_n(sums.begin() + static_cast<std::ptrdiff_t>(t * kFrequencyBlock), held,
                            result[s + t].begin() + static_cast<std::ptrdiff_t>(first));
            }
            pacer.worked(shared * count * kFrequencyBlock);
        }
    }
    progress.pump();
    return result;
}

}  // namespace

Series cosineSums(std::span<const std::vector<double>> terms, std::size_t length, std::size_t frequencies,
                  Progress& progress, const KernelSet& kernels) {
    const PhaseTable table(length);
    Series result = trigonometricSums(terms, table, frequencies, progress, kernels, kernels.cosineSums);
    for (const std::size_t i : {std::size_t{0}, length}) {
        for (std::size_t s = 0; s < terms.size() && i < frequencies; ++s) {
            result[s][i] = table.cosineSum(terms[s], i);
        }
    }
    return result;
}

Series sineSums(std::span<const std::vector<double>> terms, std::size_t length, std::size_t frequencies,
                Progress& progress, const KernelSet& kernels) {
    return trigonometricSums(terms, PhaseTable(length), frequencies, progress, kernels, kernels.sineSums);
}

}  // namespace vorlan
