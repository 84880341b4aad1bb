// From the start of the program to a window that can be used, and from a file to drawn panes.

#include <QFile>

#include "io/WorkspaceFile.h"
#include "table/Documents.h"
#include "table/Folder.h"
#include "table/Rows.h"
#include "table/Toolkit.h"
#include "ui/CVorl_ADVApp.h"

namespace bench {

using namespace vorlan;

CVorl_ADVApp& startToolkit() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "vorlan";
    static char* argv[] = {name, nullptr};
    // Never destroyed: the toolkit must not outlive the end of the program in an unknown order.
    static auto* app = new CVorl_ADVApp(argc, argv);
    return *app;
}

void startRows(Table& table) {
    table.section("Start, on a screen in memory");
    CVorl_ADVApp* app = nullptr;
    const auto toolkit = rounds(1, {[&] { app = &startToolkit(); }});
    table.row("toolkit ready (once a process)", 1e3 * toolkit[0][0], "ms");
    const auto started = rounds(5, {[&] {
                                    app->start(std::nullopt);
                                    QCoreApplication::processEvents();
                                }});
    table.row("window built, shown and painted", 1e3 * median(started[0]), "ms");

    const Folder folder;
    const QString path = QFile::decodeName((folder.path() / "million.avp").c_str());
    {
        GapPort port;
        CVorl_ADVDoc document(port);
        openRecord(document, 1'000'000);
        document.SaveWorkspace(QFile::encodeName(path).toStdString());
    }
    const auto opened = rounds(5, {[&] {
                                       app->frame().files().openPath(path);
                                       QCoreApplication::processEvents();
                                   },
                                   [&] { keep(openWorkspace(QFile::encodeName(path).toStdString())); }});
    char note[80];
    std::snprintf(note, sizeof note, "of which reading the file %.4g ms", 1e3 * median(opened[1]));
    table.row("open 1,000,000 samples to drawn panes", 1e3 * median(opened[0]), "ms", Goal::None, 0.0, note);
}

}  // namespace bench
