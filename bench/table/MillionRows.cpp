// Commands on a record of a million samples, through the document.

#include <stdexcept>

#include "table/Documents.h"
#include "table/Measure.h"
#include "table/PlainLoops.h"
#include "table/Rows.h"

namespace bench {

namespace {

using namespace vorlan;

constexpr std::size_t kSamples = 1'000'000;

using Columns = std::vector<std::span<const std::int32_t>>;

void append(Columns& columns, const SMultiArray& table) {
    for (const SArray& column : table) {
        columns.push_back(column.view());
    }
}

struct Million {
    BreathPort port;
    CVorl_ADVDoc document{port};
    // Copies keep what is read while the commands replace their own.
    SMultiArray tables[3];
    Columns velocities;
    Columns all;

    Million() {
        openRecord(document, kSamples);
        // The cross-spectra of a record need its spectra.
        document.SpectralAnalysis(tenThousandLags());
        const std::size_t which[] = {SAdvProbe::kVelocities, SAdvProbe::kCorrelation, SAdvProbe::kSignalToNoise};
        for (std::size_t t = 0; t < 3; ++t) {
            tables[t] = document.Probe().workTables[which[t]];
            append(all, tables[t]);
        }
        append(velocities, tables[0]);
    }
};

class MillionRows {
  public:
    static constexpr const char* kThree = "million/reading/3";
    static constexpr const char* kNine = "million/reading/9";

    explicit MillionRows(Table& table) : table_(table) {
        measure(kThree, million_,
                [](const Million& m) { benchmark::DoNotOptimize(plain::readOnce(m.velocities, 0.01)); });
        measure(kNine, million_, [](const Million& m) { benchmark::DoNotOptimize(plain::readOnce(m.all, 0.01)); });
    }

    /// Runs the command on the record as it was. Returns the benchmark, to say how often.
    template <class Command>
    Registered row(const std::string& shortName, const std::string& what, Goal goal, Command command,
                   const char* reading = kThree) {
        const std::string name = "million/" + shortName;
        table_.ratio(what, name, reading, "x a reading", goal);
        return measureAfter(
            name, million_, [](Million& m) { m.document.ResetTimeSeries(); },
            [=](Million& m) {
                if (command(m.document) != Outcome::Done) {
                    throw std::runtime_error(name + ": the command was refused");
                }
            });
    }

  private:
    Table& table_;
    Lazy<Million> million_;
};

}  // namespace

void millionRows(Table& table) {
    table.section("Commands of the document on 1,000,000 samples");
    MillionRows rows(table);
    rows.row("reset", "reset: stresses and moments", atMost(3.0), [](CVorl_ADVDoc& d) { return d.ResetTimeSeries(); });
    rows.row(
        "editing", "editing, four criteria, stresses and moments", atMost(3.0),
        [](CVorl_ADVDoc& d) { return d.EditTimeSeries(allCriteria()); }, MillionRows::kNine);
    rows.row("stationarity/10", "stationarity, 10 fixed bands", atMost(3.0), [](CVorl_ADVDoc& d) {
        return d.StationarityAnalysis({BandMode::Fixed, 10});
    });
    rows.row("stationarity/1000", "stationarity, 1000 cumulative bands", {}, [](CVorl_ADVDoc& d) {
        return d.StationarityAnalysis({BandMode::Cumulative, 1000});
    });
    rows.row("distributions/20", "distributions, 20 grades", atMost(3.0), [](CVorl_ADVDoc& d) {
        return d.Distributions({20, 90, true});
    });
    rows.row("distributions/1000", "distributions, 1000 grades", atMost(3.0), [](CVorl_ADVDoc& d) {
        return d.Distributions({1000, 90, true});
    });
    rows.row("rotation", "rotation by three angles", {},
             [](CVorl_ADVDoc& d) { return d.ChangeCoordinateSystem(threeAngles()); });
    rows.row("filter", "filter of 2000 taps", {}, [](CVorl_ADVDoc& d) { return d.FilterTimeSeries({}); });
    rows.row("quadrants", "quadrants", {}, [](CVorl_ADVDoc& d) { return d.QuadrantsAnalysis({}); });
    rows.row("spectral", "spectral analysis, 10,000 lags", {},
             [](CVorl_ADVDoc& d) { return d.SpectralAnalysis(tenThousandLags()); })
        ->Repetitions(2);
    rows.row("cross", "cross-spectral analysis, 10,000 lags", {},
             [](CVorl_ADVDoc& d) { return d.CrossSpectralAnalysis(); })
        ->Repetitions(2);
}

}  // namespace bench
