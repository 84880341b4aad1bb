// Spectra against loops of cosines with the window hoisted out; the whole spectral analysis of a probe.

#include <algorithm>
#include <cmath>
#include <cstring>

#include "analysis/kernels/TrigonometricSums.h"
#include "app/CVorl_ADVDoc.h"
#include "model/StoreValue.h"
#include "table/Documents.h"
#include "table/PlainLoops.h"
#include "table/Rows.h"

namespace bench {

namespace {

using namespace vorlan;
using plain::Values;

constexpr std::size_t kLags = 10'000;
constexpr double kInterval = 0.04;
constexpr double kResolution = 1e-7;

std::string differing(const Values& sums, const Values& expected, const Values& functions, long& values, long& units) {
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const auto stored = [&](double sum) {
            return truncateToInt32(2.0 * (functions[0] + 2.0 * sum) * kInterval / kResolution);
        };
        units += std::abs(static_cast<long>(stored(sums[i])) - stored(expected[i]));
        ++values;
    }
    return std::to_string(units) + " of " + std::to_string(values) + " stored integers differ, by one unit";
}

/// Terms that the transform takes: the first lag and, of a covariance, the last one are left out.
Values termsOf(const Values& function, bool last) {
    Values terms(function);
    terms.front() = 0.0;
    if (!last) {
        terms.pop_back();
    }
    return terms;
}

void spectra(Table& table) {
    table.section("Spectra, 10,000 lags");
    const std::vector<Values> functions = plain::fadingFunctions(12, kLags);
    std::vector<Values> terms;
    for (const Values& function : functions) {
        terms.push_back(termsOf(function, false));
    }
    std::vector<Values> expected;
    std::vector<double> plainTimes;
    for (const Values& term : terms) {
        const double start = threadSeconds();
        expected.push_back(plain::cosines(term, kLags - 1, kLags));
        plainTimes.push_back(threadSeconds() - start);
    }
    const double plainTime = median(plainTimes);
    NoProgress progress;
    std::vector<Values> sums;
    for (const InstructionSet set : availableInstructionSets()) {
        const KernelSet& kernels = kernelsOf(set);
        const bool best = set == availableInstructionSets().back();
        for (const std::size_t series : {1U, 3U}) {
            const std::span<const Values> some = std::span(terms).first(series);
            const auto times = rounds(15, {[&] { keep(cosineSums(some, kLags - 1, kLags, progress, kernels)); }});
            table.row("spectra of " + std::to_string(series) + " series, " + nameOf(set),
                      static_cast<double>(series) * plainTime / median(times[0]), "x the loop",
                      best ? Goal::AtLeast : Goal::None, 200.0);
        }
        const std::vector<Values> all = cosineSums(terms, kLags - 1, kLags, progress, kernels);
        if (!sums.empty() && all != sums) {
            table.row("BYTES DIFFER BETWEEN INSTRUCTION SETS", 1, "", Goal::AtMost, 0.0);
        }
        sums = all;
    }
    long values = 0;
    long units = 0;
    std::string note;
    for (std::size_t f = 0; f < sums.size(); ++f) {
        note = differing(sums[f], expected[f], functions[f], values, units);
    }
    table.row("stored spectra that differ", 1e4 * static_cast<double>(units) / static_cast<double>(values), "of 10,000",
              Goal::AtMost, 1.0, note);
}

void crossSpectra(Table& table) {
    const std::vector<Values> functions = plain::fadingFunctions(3, kLags);
    std::vector<Values> even;
    std::vector<Values> odd;
    for (const Values& function : functions) {
        even.push_back(termsOf(function, false));
        odd.push_back(termsOf(function, true));
    }
    std::vector<Values> expectedCo;
    std::vector<Values> expectedQuadrature;
    const auto plainTimes = rounds(1, {[&] {
                                       for (std::size_t f = 0; f < functions.size(); ++f) {
                                           expectedCo.push_back(plain::cosines(even[f], kLags, kLags));
                                           expectedQuadrature.push_back(plain::sines(odd[f], kLags, kLags - 1));
                                       }
                                   }});
    NoProgress progress;
    std::vector<Values> co;
    std::vector<Values> quadrature;
    const auto times = rounds(9, {[&] {
                                  co = cosineSums(even, kLags, kLags, progress);
                                  quadrature = sineSums(odd, kLags, kLags - 1, progress);
                              }});
    long values = 0;
    long units = 0;
    std::string note;
    for (std::size_t f = 0; f < functions.size(); ++f) {
        differing(co[f], expectedCo[f], functions[f], values, units);
        note = differing(quadrature[f], expectedQuadrature[f], functions[f], values, units);
    }
    table.row("co- and quadrature spectra of 3 pairs", plainTimes[0][0] / median(times[0]), "x the loop", Goal::AtLeast,
              180.0, note);
}

/// Everything that the stage computes of three components, as plain loops over doubles.
double plainAnalysisSeconds(const SAdvProbe& probe, std::size_t lags) {
    double seconds = 0.0;
    for (int c = 0; c < SAdvProbe::kComponents; ++c) {
        const Values samples = probe.workTables[SAdvProbe::kVelocities].GetAt(c).Values();
        // Every tenth lag and frequency stands for its neighbours; the frequencies are evenly dear.
        constexpr std::size_t kShare = 10;
        const double start = threadSeconds();
        Values covariance = plain::products(samples, samples, 5, lags, kShare);
        keep(plain::squaredDifferences(samples, 5, lags, kShare));
        Values terms(lags - 1, 1.0);
        keep(plain::cosines(terms, lags - 1, lags / kShare));
        seconds += kShare * (threadSeconds() - start);
        keep(covariance);
    }
    return seconds;
}

void wholeAnalysis(Table& table) {
    constexpr std::size_t kSamples = 100'000;
    GapPort port;
    CVorl_ADVDoc document(port);
    openRecord(document, kSamples);
    SpectralSettings settings;
    settings.percent = 10;
    const auto times = rounds(7, {[&] { document.SpectralAnalysis(settings); }});
    const double plainTime = plainAnalysisSeconds(document.Probe(), kLags);
    char note[80];
    std::snprintf(note, sizeof note, "%.4g ms against %.4g ms, %d breaths", 1e3 * median(times[0]), 1e3 * plainTime,
                  port.breaths());
    table.row("spectral analysis of a probe, 100,000 samples", plainTime / median(times[0]), "x the loops",
              Goal::AtLeast, 40.0, note);
}

}  // namespace

void spectralRows(Table& table) {
    spectra(table);
    crossSpectra(table);
    wholeAnalysis(table);
}

}  // namespace bench
