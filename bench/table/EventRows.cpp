// How long the window keeps its user waiting while it calculates and paints what has changed. Busy loops beside it
// change little: try them.

#include <QDeadlineTimer>
#include <QFile>
#include <QTimerEvent>
#include <algorithm>
#include <stdexcept>

#include "table/Documents.h"
#include "table/Measure.h"
#include "table/Rows.h"
#include "table/Toolkit.h"
#include "ui/CVorl_ADVApp.h"

namespace bench {

namespace {

using namespace vorlan;

constexpr int kAfterwards = 300;  // milliseconds

/// Notes the longest time between two events of a timer that rings every millisecond.
class Ticks : public QObject {
  public:
    Ticks() : last_(wallSeconds()) { startTimer(1, Qt::PreciseTimer); }

    double longest() const { return longest_; }

  protected:
    void timerEvent(QTimerEvent*) override {
        const double now = wallSeconds();
        longest_ = std::max(longest_, now - last_);
        last_ = now;
    }

  private:
    double last_;
    double longest_ = 0.0;
};

/// Results that grow old are not calculated again.
class NoBoxes : public UserBoxes {
  public:
    bool confirm(QWidget*, const QString&) override { return false; }
};

class EventRows {
  public:
    explicit EventRows(Table& table) : table_(table) {}

    template <class Command>
    void row(const std::string& what, Command command) {
        const std::string name = "events/" + what;
        const Lazy<double> longest;
        measure(name, [=, file = file_](benchmark::State& state) {
            CMainFrame& frame = freshWindow().frame();
            static NoBoxes boxes;
            frame.setBoxes(boxes);
            frame.files().openPath(QFile::decodeName(file().path.c_str()));
            QCoreApplication::processEvents();
            for (auto _ : state) {
                const Ticks ticks;
                if (command(frame.document()) != Outcome::Done) {
                    throw std::runtime_error(name + ": the command was refused");
                }
                // The panes are painted afterwards.
                for (const QDeadlineTimer end(kAfterwards); !end.hasExpired();) {
                    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
                }
                longest() = std::max(longest(), ticks.longest());
            }
        })->Iterations(1);
        table_.row(what, {name}, "ms", atMost(20.0), [=](const Times&) { return Cell{1e3 * longest(), {}}; });
    }

  private:
    Table& table_;
    Lazy<MillionFile> file_;
};

}  // namespace

void eventRows(Table& table) {
    table.section("Longest time between two events of the window, 1,000,000 samples");
    EventRows rows(table);
    rows.row("editing, four criteria", [](CVorl_ADVDoc& d) { return d.EditTimeSeries(allCriteria()); });
    rows.row("filter of 2000 taps", [](CVorl_ADVDoc& d) { return d.FilterTimeSeries({}); });
    rows.row("rotation by three angles", [](CVorl_ADVDoc& d) { return d.ChangeCoordinateSystem(threeAngles()); });
    rows.row("quadrants", [](CVorl_ADVDoc& d) { return d.QuadrantsAnalysis({}); });
    rows.row("spectral analysis, 10,000 lags", [](CVorl_ADVDoc& d) { return d.SpectralAnalysis(tenThousandLags()); });
}

}  // namespace bench
