// Several workspaces at once: the command line with as many jobs as there are processors, against one.

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <thread>

#include "table/Documents.h"
#include "table/Folder.h"
#include "table/Measure.h"
#include "table/Rows.h"

namespace bench {

namespace {

struct Batch {
    unsigned cores = std::max(1U, std::thread::hardware_concurrency());
    unsigned workspaces = 4 * cores;
    Folder folder;
    std::string arguments;

    Batch() {
        const std::filesystem::path recipe = folder.path() / "spectra.toml";
        std::ofstream(recipe) << "[[step]]\ndo = \"spectral\"\nlags = 5000\n";
        const std::filesystem::path out = folder.path() / "out";
        std::filesystem::create_directory(out);
        arguments = " --recipe " + recipe.string() + " --out-dir " + out.string();
        BreathPort port;
        vorlan::CVorl_ADVDoc document(port);
        openRecord(document, 200'000);
        for (unsigned i = 0; i < workspaces; ++i) {
            const std::filesystem::path input = folder.path() / format("record%u.avp", i);
            document.SaveWorkspace(input);
            arguments += ' ' + input.string();
        }
    }
    void run(unsigned jobs) const {
        const std::string command = VORLAN_BATCH_PROGRAM " run --jobs " + std::to_string(jobs) + arguments;
        if (std::system(command.c_str()) != 0) {
            throw std::runtime_error("This command failed: " + command);
        }
    }
};

}  // namespace

void jobRows(Table& table) {
    table.section("Several workspaces at once");
    const Lazy<Batch> batch;
    measure("jobs/one", batch, [](const Batch& b) { b.run(1); })->UseRealTime()->Repetitions(5);
    measure("jobs/every_core", batch, [](const Batch& b) { b.run(b.cores); })->UseRealTime()->Repetitions(5);
    table.row("run --jobs, four workspaces a core", {"jobs/one", "jobs/every_core"}, "per core", {},
              [=](const Times& times) {
                  const double one = times.best("jobs/one");
                  const double all = times.best("jobs/every_core");
                  return Cell{one / all / batch().cores,
                              format("%.4g s with one job, %.4g s with %u", one, all, batch().cores)};
              });
}

}  // namespace bench
