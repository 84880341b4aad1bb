// Commands on a record of a million samples, through the document.

#include "table/Documents.h"
#include "table/PlainLoops.h"
#include "table/Rows.h"

namespace bench {

namespace {

using namespace vorlan;

constexpr std::size_t kSamples = 1'000'000;
// The window takes its events when at least 12 ms have passed at a breath: what lies between two breaths comes on top.
constexpr double kWindowInterval = 12.0;

using Columns = std::vector<std::span<const std::int32_t>>;

class MillionTable {
  public:
    explicit MillionTable(Table& table) : table_(table), document_(port_) { openRecord(document_, kSamples); }

    const SAdvProbe& probe() const { return document_.Probe(); }

    /// Runs the command on the record as it was; limit is in readings of the columns, 0 without one.
    void row(const std::string& what, const Columns& read, double limit,
             const std::function<void(CVorl_ADVDoc&)>& command, int count = 5) {
        port_.forget();
        const auto times = rounds(count, {[&] { keep(plain::readOnce(read, 0.01)); }, [&] { command(document_); }},
                                  threadSeconds, [this] { document_.ResetTimeSeries(); });
        char note[120];
        std::snprintf(note, sizeof note, "%.4g ms, one reading in order %.3g ms", 1e3 * median(times[1]),
                      1e3 * median(times[0]));
        table_.row(what, medianRatio(times[1], times[0]), "x a reading", limit > 0.0 ? Goal::AtMost : Goal::None, limit,
                   note);
        table_.row("    longest time to the next events", kWindowInterval + 1e3 * port_.longestGap(), "ms",
                   Goal::AtMost, 20.0);
    }

  private:
    Table& table_;
    GapPort port_;
    CVorl_ADVDoc document_;
};

Columns columnsOf(const SMultiArray& table) {
    Columns columns;
    for (const SArray& column : table) {
        columns.push_back(column.view());
    }
    return columns;
}

}  // namespace

void millionRows(Table& table) {
    table.section("Commands of the document on 1,000,000 samples");
    MillionTable rows(table);
    // Copies keep what is read while the commands replace their own.
    const SMultiArray velocities = rows.probe().workTables[SAdvProbe::kVelocities];
    Columns edited = columnsOf(velocities);
    const SMultiArray correlation = rows.probe().workTables[SAdvProbe::kCorrelation];
    const SMultiArray signal = rows.probe().workTables[SAdvProbe::kSignalToNoise];
    for (const SMultiArray* scores : {&correlation, &signal}) {
        const Columns more = columnsOf(*scores);
        edited.insert(edited.end(), more.begin(), more.end());
    }
    const Columns three = columnsOf(velocities);

    rows.row("reset: stresses and moments", three, 0.0, [](CVorl_ADVDoc& d) { d.ResetTimeSeries(); });
    rows.row("editing, four criteria, stresses and moments", edited, 0.0, [](CVorl_ADVDoc& d) {
        EditingSettings settings;
        settings.correlation = {true, ScoreStatistic::Average, 76.0, 70.0};
        settings.signalToNoise = {true, ScoreStatistic::Minimum, 10.0, 12.5};
        settings.spikeFilter = settings.velocityTest = true;
        settings.accelerationThreshold = 3.5;
        d.EditTimeSeries(settings);
    });
    rows.row("stationarity, 10 fixed bands", three, 3.0, [](CVorl_ADVDoc& d) {
        d.StationarityAnalysis({BandMode::Fixed, 10});
    });
    rows.row("stationarity, 1000 cumulative bands", three, 0.0, [](CVorl_ADVDoc& d) {
        d.StationarityAnalysis({BandMode::Cumulative, 1000});
    });
    rows.row("distributions, 20 grades", three, 3.0, [](CVorl_ADVDoc& d) { d.Distributions({20, 90, true}); });
    rows.row("distributions, 1000 grades", three, 3.0, [](CVorl_ADVDoc& d) { d.Distributions({1000, 90, true}); });
    rows.row(
        "rotation by three angles", three, 0.0,
        [](CVorl_ADVDoc& d) {
            RotationSettings settings;
            settings.heading = settings.pitch = settings.roll = 3.0;
            d.ChangeCoordinateSystem(settings);
        },
        3);
    rows.row(
        "filter of 2000 taps", three, 0.0, [](CVorl_ADVDoc& d) { d.FilterTimeSeries({}); }, 3);
    rows.row(
        "quadrants", three, 0.0, [](CVorl_ADVDoc& d) { d.QuadrantsAnalysis({}); }, 3);
    rows.row(
        "spectral analysis, 10,000 lags", three, 0.0,
        [](CVorl_ADVDoc& d) {
            SpectralSettings settings;
            settings.percent = 1;
            d.SpectralAnalysis(settings);
        },
        1);
    rows.row(
        "cross-spectral analysis, 10,000 lags", three, 0.0, [](CVorl_ADVDoc& d) { d.CrossSpectralAnalysis(); }, 1);
}

}  // namespace bench
