// Spectra against loops of cosines with the window hoisted out; the whole spectral analysis of a probe.

#include <algorithm>
#include <cstdlib>

#include "analysis/kernels/TrigonometricSums.h"
#include "model/StoreValue.h"
#include "table/Documents.h"
#include "table/Measure.h"
#include "table/PeakRate.h"
#include "table/PlainLoops.h"
#include "table/Rows.h"

namespace bench {

namespace {

using namespace vorlan;
using plain::Values;

constexpr std::size_t kLags = 10'000;

/// Stored integers of kernels and loops side by side.
class Comparison {
  public:
    void add(const Values& sums, const Values& expected, const Values& function) {
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const auto stored = [&](double sum) {
                constexpr double kInterval = 0.04;
                constexpr double kResolution = 1e-7;
                return static_cast<long>(truncateToInt32(2.0 * (function[0] + 2.0 * sum) * kInterval / kResolution));
            };
            const long units = std::abs(stored(sums[i]) - stored(expected[i]));
            differing_ += units != 0 ? 1 : 0;
            largest_ = std::max(largest_, units);
            ++values_;
        }
    }

    double perTenThousand() const { return 1e4 * static_cast<double>(differing_) / static_cast<double>(values_); }
    /// At most one in ten thousand, by one unit.
    Finding finding() const {
        const bool right = perTenThousand() <= 1.0 && largest_ <= 1;
        return {right, format("%ld of %ld stored integers differ, by %ld at most%s", differing_, values_, largest_,
                              right ? "" : ": TOO MUCH")};
    }

  private:
    long values_ = 0;
    long differing_ = 0;
    long largest_ = 0;
};

/// Terms that the transform takes: the first lag and, of a covariance, the last one are left out.
Values termsOf(const Values& function, bool last) {
    Values terms(function);
    terms.front() = 0.0;
    if (!last) {
        terms.pop_back();
    }
    return terms;
}

struct Spectra {
    static constexpr std::size_t kSeries = 12;

    std::vector<Values> functions = plain::fadingFunctions(kSeries, kLags);
    std::vector<Values> terms;
    std::vector<Values> expected = std::vector<Values>(kSeries);
    std::size_t turn = 0;

    Spectra() {
        for (const Values& function : functions) {
            terms.push_back(termsOf(function, false));
        }
    }
    std::vector<Values> sums(std::size_t series, InstructionSet set) const {
        return cosineSums(std::span(terms).first(series), kLags - 1, kLags, noProgress(), kernelsOf(set));
    }
};

void spectra(Table& table) {
    const Lazy<Spectra> data;
    const std::string loop = "spectral/loop";
    // Every repetition takes the next series.
    measure(loop, data,
            [](Spectra& s) {
                s.expected[s.turn] = plain::cosines(s.terms[s.turn], kLags - 1, kLags);
                s.turn = (s.turn + 1) % Spectra::kSeries;
            })
        ->Iterations(1)
        ->Repetitions(Spectra::kSeries);
    for (const InstructionSet set : availableInstructionSets()) {
        const bool best = set == availableInstructionSets().back();
        for (const std::size_t series : {1U, 3U}) {
            const std::string name = format("spectral/spectra/%zu/%s", series, nameOf(set));
            measure(name, data, [=](const Spectra& s) { benchmark::DoNotOptimize(s.sums(series, set)); });
            table.row(format("spectra of %zu series, %s", series, nameOf(set)), {loop, name}, "x the loop",
                      best ? atLeast(200.0) : Goal{}, [=](const Times& times) {
                          return Cell{static_cast<double>(series) * times.median(loop) / times.median(name),
                                      format("%.4g ms", 1e3 * times.median(name))};
                      });
        }
    }
    table.row("stored spectra that differ", {loop}, "of 10,000", atMost(1.0), [=](const Times&) {
        const Spectra& s = data();
        const std::vector<Values> sums = s.sums(Spectra::kSeries, InstructionSet::Plain);
        const std::vector<InstructionSet> sets = availableInstructionSets();
        const Finding bytes = equality(
            std::all_of(sets.begin(), sets.end(), [&](auto set) { return s.sums(Spectra::kSeries, set) == sums; }),
            "bytes of instruction sets");
        Comparison comparison;
        for (std::size_t f = 0; f < sums.size(); ++f) {
            comparison.add(sums[f], s.expected[f], s.functions[f]);
        }
        const Finding units = comparison.finding();
        return Cell{comparison.perTenThousand(), units.text + ", " + bytes.text, units.right && bytes.right};
    });
}

struct CrossSpectra {
    static constexpr std::size_t kPairs = 3;

    struct Sums {
        std::vector<Values> co = std::vector<Values>(kPairs);
        std::vector<Values> quadrature = std::vector<Values>(kPairs);
    };
    std::vector<Values> functions = plain::fadingFunctions(kPairs, kLags);
    std::vector<Values> even;
    std::vector<Values> odd;
    Sums expected;
    Sums sums;
    std::size_t turn = 0;

    CrossSpectra() {
        for (const Values& function : functions) {
            even.push_back(termsOf(function, false));
            odd.push_back(termsOf(function, true));
        }
    }
};

void crossSpectra(Table& table) {
    const Lazy<CrossSpectra> data;
    const std::string loop = "spectral/cross/loop";
    const std::string name = "spectral/cross/kernels";
    // Every repetition takes the next pair.
    measure(loop, data,
            [](CrossSpectra& s) {
                s.expected.co[s.turn] = plain::cosines(s.even[s.turn], kLags, kLags);
                s.expected.quadrature[s.turn] = plain::sines(s.odd[s.turn], kLags, kLags - 1);
                s.turn = (s.turn + 1) % CrossSpectra::kPairs;
            })
        ->Iterations(1)
        ->Repetitions(CrossSpectra::kPairs);
    measure(name, data, [](CrossSpectra& s) {
        s.sums.co = cosineSums(s.even, kLags, kLags, noProgress());
        s.sums.quadrature = sineSums(s.odd, kLags, kLags - 1, noProgress());
    });
    table.row("co- and quadrature spectra of 3 pairs", {loop, name}, "x the loop", atLeast(180.0),
              [=](const Times& times) {
                  const CrossSpectra& s = data();
                  Comparison comparison;
                  for (std::size_t f = 0; f < CrossSpectra::kPairs; ++f) {
                      comparison.add(s.sums.co[f], s.expected.co[f], s.functions[f]);
                      comparison.add(s.sums.quadrature[f], s.expected.quadrature[f], s.functions[f]);
                  }
                  const Finding units = comparison.finding();
                  return Cell{CrossSpectra::kPairs * times.median(loop) / times.median(name), units.text, units.right};
              });
}

constexpr std::size_t kSamples = 100'000;

struct Probe {
    BreathPort port;
    CVorl_ADVDoc document{port};
    std::vector<Values> samples;

    Probe() {
        openRecord(document, kSamples);
        for (int c = 0; c < SAdvProbe::kComponents; ++c) {
            samples.push_back(document.Probe().workTables[SAdvProbe::kVelocities].GetAt(c).Values());
        }
    }
};

void wholeAnalysis(Table& table) {
    const Lazy<Probe> probe;
    const std::string name = "spectral/analysis";
    measure(name, probe, [](Probe& p) {
        p.port.forget();
        SpectralSettings settings;
        settings.percent = static_cast<int>(100 * kLags / kSamples);
        p.document.SpectralAnalysis(settings);
    });
    // Every tenth lag and frequency stands for its neighbours; the frequencies are evenly dear.
    constexpr std::size_t kShare = 10;
    const std::string loops = "spectral/analysis/loops";
    measure(loops, probe, [](const Probe& p) {
        const Values terms(kLags - 1, 1.0);
        for (const Values& samples : p.samples) {
            benchmark::DoNotOptimize(plain::products(samples, samples, 5, kLags, kShare));
            benchmark::DoNotOptimize(plain::squaredDifferences(samples, 5, kLags, kShare));
            benchmark::DoNotOptimize(plain::cosines(terms, kLags - 1, kLags / kShare));
        }
    })->Repetitions(3);
    table.row("spectral analysis of a probe, 100,000 samples", {loops, name}, "x the loops", atLeast(40.0),
              [=](const Times& times) {
                  const double plainTime = kShare * times.median(loops);
                  return Cell{plainTime / times.median(name),
                              format("%.4g ms against %.4g ms, %d breaths", 1e3 * times.median(name), 1e3 * plainTime,
                                     probe().port.breaths())};
              });

    const InstructionSet set = kernelsInUse().set;
    const std::string peak = registerPeak("spectral", set);
    table.row("    of what the registers allow", {name, peak}, "% of peak", {}, [=](const Times& times) {
        // Two operations a product of the autocovariance, three a difference of the structure function.
        constexpr double kTerms = 0.5 * kLags * (2.0 * kSamples - kLags + 1.0);
        const double rate = peakRate(times, peak, set);
        const double least = SAdvProbe::kComponents * (2.0 + 3.0) * kTerms / rate;
        return Cell{100.0 * least / times.best(name),
                    format("%.4g ms for products and differences alone, peak %.3g Gflop/s", 1e3 * least, rate / 1e9)};
    });
}

}  // namespace

void spectralRows(Table& table) {
    table.section("Spectra, 10,000 lags");
    spectra(table);
    crossSpectra(table);
    wholeAnalysis(table);
}

}  // namespace bench
