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

std::vector<const DoneCommand*> CVorl_ADVDoc::CommandsOfProbe() const {
    std::vector<const DoneCommand*> commands;
    if (!HasProbe()) {
        return commands;
    }
    int file = ActiveFile();
    const int probe = ActiveProbe();
    const std::span<const History::Step> steps = history_.Done();
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
        for (auto done = step->done.rbegin(); done != step->done.rend(); ++done) {
            if (done->file == DoneCommand::kWholeWorkspace || (done->file == file && done->probe == probe)) {
                commands.push_back(&*done);
            }
        }
        if (const auto& part = step->replaced.file) {
            const bool wasClosed = part->file.has_value();
            if (!wasClosed && part->index == file) {
                break;  // Here the probe came.
            }
            file += wasClosed && part->index <= file ? 1 : 0;
        }
    }
    std::reverse(commands.begin(), commands.end());
    return commands;
}

}  // namespace vorlan
