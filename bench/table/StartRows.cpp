// From the start of the program to a window that can be used, and from a file to drawn panes.

#include <QFile>

#include "io/WorkspaceFile.h"
#include "table/Documents.h"
#include "table/Folder.h"
#include "table/Measure.h"
#include "table/Rows.h"
#include "table/Toolkit.h"
#include "ui/CVorl_ADVApp.h"

namespace bench {

using namespace vorlan;

const Toolkit& toolkit() {
    static const Toolkit started = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int argc = 1;
        static char name[] = "vorlan";
        static char* argv[] = {name, nullptr};
        const double start = threadSeconds();
        // Never destroyed: the toolkit must not outlive the end of the program in an unknown order.
        auto* app = new CVorl_ADVApp(argc, argv);
        return Toolkit{*app, threadSeconds() - start};
    }();
    return started;
}

CVorl_ADVApp& freshWindow() {
    CVorl_ADVApp& app = toolkit().app;
    app.start(std::nullopt);
    QCoreApplication::processEvents();
    return app;
}

void startRows(Table& table) {
    table.section("Start, on a screen in memory");
    const auto ready = [](benchmark::State& state) {
        for (auto _ : state) {
            state.SetIterationTime(toolkit().seconds);
        }
    };
    measure("start/toolkit", ready)->UseManualTime()->Iterations(1)->Repetitions(1);
    table.milliseconds("toolkit ready (once a process)", "start/toolkit");

    measure("start/window", [](benchmark::State& state) {
        freshWindow();
        for (auto _ : state) {
            freshWindow();
        }
    });
    table.milliseconds("window built, shown and painted", "start/window");

    const Lazy<MillionFile> file;
    measure("start/open", [=](benchmark::State& state) {
        const QString path = QFile::decodeName(file().path.c_str());
        CVorl_ADVApp& app = freshWindow();
        for (auto _ : state) {
            app.frame().files().openPath(path);
            QCoreApplication::processEvents();
        }
    });
    measure("start/open/read", file, [](const MillionFile& f) { benchmark::DoNotOptimize(openWorkspace(f.path)); });
    table.row("open 1,000,000 samples to drawn panes", {"start/open", "start/open/read"}, "ms", {},
              [](const Times& times) {
                  return Cell{1e3 * times.median("start/open"),
                              format("of which reading the file %.4g ms", 1e3 * times.median("start/open/read"))};
              });
}

}  // namespace bench
