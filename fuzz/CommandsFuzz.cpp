// Any bytes as the commands of a user: whatever was done is saved and read again, taken back, and done again.
#include <cstdlib>

#include "DocumentUse.h"

namespace {

constexpr int kMostCommands = 30;

const vorlan::SAdvFile& record() {
    static const vorlan::SAdvFile file = [] {
        vorlan::SimulationParameters parameters;
        parameters.length = 2.4;
        parameters.whiteNoise = true;
        return vorlan::simulate(parameters, 1);
    }();
    return file;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace vorlan;
    FuzzDocument fuzzed;
    CVorl_ADVDoc& document = fuzzed.document;
    const std::vector<std::byte> opened = storedBytes(document.GetWorkspace());
    document.AppendFiles({record()});
    document.SelectProbe(0);
    Choices choices(bytes, size);
    for (int i = 0; i < kMostCommands && !choices.empty(); ++i) {
        giveCommand(document, fuzzed.port, choices);
    }
    show(document, choices);
    exportOne(document, choices);
    const std::vector<std::byte> done = storedBytes(document.GetWorkspace());
    requireSameAfterReading(done);
    int steps = 0;
    for (; document.Undo() == Outcome::Done; ++steps) {
    }
    // What was selected since everything was taken back stays.
    if (document.IsModified() || (steps > 0 && storedBytes(document.GetWorkspace()) != opened)) {
        std::abort();
    }
    while (steps-- > 0 && document.Redo() == Outcome::Done) {
    }
    if (storedBytes(document.GetWorkspace()) != done) {
        std::abort();
    }
    return 0;
}
