// Any bytes as a workspace: what loads is saved as it was, shown, exported and given commands. The end of the input,
// which a workspace keeps without looking at it, decides which.
#include <cstdlib>

#include "DocumentUse.h"
#include "io/FileDescriptor.h"
#include "io/FileError.h"
#include "io/WorkspaceFile.h"

#include <sys/mman.h>

namespace {

constexpr int kMostCommands = 6;

/// The bytes under the name of a file.
class MemoryFile {
  public:
    MemoryFile(const std::uint8_t* bytes, std::size_t size) : file_(::memfd_create("fuzz", MFD_CLOEXEC)) {
        if (!file_.isOpen() || ::write(file_.get(), bytes, size) != static_cast<ssize_t>(size)) {
            std::abort();
        }
    }
    std::string path() const { return "/proc/self/fd/" + std::to_string(file_.get()); }

  private:
    vorlan::FileDescriptor file_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace vorlan;
    const MemoryFile file(bytes, size);
    FuzzDocument fuzzed;
    CVorl_ADVDoc& document = fuzzed.document;
    kindOfFile(file.path());
    try {
        document.OpenWorkspace(file.path());
    } catch (const FileError&) {
        return 0;
    }
    const std::vector<std::byte> opened = storedBytes(document.GetWorkspace());
    requireSameAfterReading(opened);
    Choices choices(bytes, size);
    show(document, choices);
    document.SelectFile(choices.below(3));
    document.SelectProbe(choices.below(3));
    for (int i = 0; i < kMostCommands; ++i) {
        show(document, choices);
        exportOne(document, choices);
        giveCommand(document, fuzzed.port, choices);
    }
    show(document, choices);
    requireSameAfterReading(storedBytes(document.GetWorkspace()));
    while (document.Undo() == Outcome::Done) {
    }
    if (document.IsModified()) {
        std::abort();
    }
    return 0;
}
