// Several workspaces at once: the command line with as many jobs as there are processors, against one.

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <thread>

#include "table/Documents.h"
#include "table/Folder.h"
#include "table/Rows.h"

namespace bench {

void jobRows(Table& table) {
    table.section("Several workspaces at once");
    const unsigned cores = std::max(1U, std::thread::hardware_concurrency());
    const Folder folder;
    std::string inputs;
    {
        GapPort port;
        vorlan::CVorl_ADVDoc document(port);
        openRecord(document, 200'000);
        for (unsigned i = 0; i < 4 * cores; ++i) {
            const std::filesystem::path input = folder.path() / ("record" + std::to_string(i) + ".avp");
            document.SaveWorkspace(input);
            inputs += " " + input.string();
        }
    }
    const std::filesystem::path recipe = folder.path() / "spectra.toml";
    std::ofstream(recipe) << "[[step]]\ndo = \"spectral\"\nlags = 5000\n";
    const std::filesystem::path out = folder.path() / "out";
    std::filesystem::create_directory(out);
    const auto run = [&](unsigned jobs) {
        const std::string command = std::string(VORLAN_BATCH_PROGRAM) + " run --jobs " + std::to_string(jobs) +
                                    " --recipe " + recipe.string() + " --out-dir " + out.string() + inputs;
        if (std::system(command.c_str()) != 0) {
            std::abort();
        }
    };
    const auto times = rounds(5, {[&] { run(1); }, [&] { run(cores); }}, wallSeconds);
    char note[80];
    std::snprintf(note, sizeof note, "%.4g s with one job, %.4g s with %u", best(times[0]), best(times[1]), cores);
    table.row("run --jobs, " + std::to_string(4 * cores) + " workspaces", best(times[0]) / best(times[1]) / cores,
              "per core", Goal::None, 0.0, note);
}

}  // namespace bench
