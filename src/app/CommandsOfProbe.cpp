// What was done to a probe, out of the document's history.
#include <algorithm>

#include "app/CVorl_ADVDoc.h"

namespace vorlan {

DoneCommand CVorl_ADVDoc::DoneOn(int file, int probe, GivenCommand given) const {
    DoneCommand done{.file = file, .probe = probe, .given = std::move(given), .repeated = {}, .settings = Settings()};
    if (file >= 0 && probe >= 0) {
        done.stageDone = workspace_.dataFiles.files.GetAt(file).probes.GetAt(probe).stageDone;
    }
    return done;
}

ProbeCommands CVorl_ADVDoc::CommandsOfProbe() const {
    ProbeCommands found;
    if (!HasProbe()) {
        return found;
    }
    found.file = ActiveFile();
    found.probe = ActiveProbe();
    found.settings = Settings();
    const std::span<const History::Step> steps = history_.Done();
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
        for (auto done = step->done.rbegin(); done != step->done.rend(); ++done) {
            if (done->file == DoneCommand::kWholeWorkspace ||
                (done->file == found.file && done->probe == found.probe)) {
                found.commands.push_back(&*done);
            }
        }
        if (const auto& part = step->replaced.files) {
            const bool wasClosed = !part->files.empty();
            if (!wasClosed && part->index <= found.file) {
                break;  // Here the probe came.
            }
            found.file += wasClosed && part->index <= found.file ? part->count : 0;
        }
        found.settings = step->replaced.settings.value_or(found.settings);
    }
    std::reverse(found.commands.begin(), found.commands.end());
    return found;
}

}  // namespace vorlan
