#include "batch/WorkspaceAccess.h"

#include <chrono>
#include <thread>

#include "batch/Interrupt.h"
#include "io/WorkspaceFile.h"
#include "recipes/RunError.h"

namespace vorlan {

void openDocument(CVorl_ADVDoc& document, const std::filesystem::path& path) {
    try {
        document.OpenWorkspace(path);
    } catch (const FileError& error) {
        throw unreadable(textOf(error));
    }
}

void requireReplaceable(const std::filesystem::path& path) {
    if (path.extension() != ".avp" && kindOfFile(path) == FileKind::Other) {
        throw usageError(path.string() +
                         " is not a workspace and would be overwritten by one; only a name in .avp allows that");
    }
}

void saveDocument(CVorl_ADVDoc& document, const std::filesystem::path& path) {
    try {
        document.SaveWorkspace(path);
    } catch (const FileError& error) {
        throw unwritable(textOf(error));
    }
}

WorkspaceUpdate::WorkspaceUpdate(CVorl_ADVDoc& document, std::filesystem::path path, Console& console)
    : document_(document), path_(std::move(path)), lock_(path_) {
    constexpr std::chrono::milliseconds kPause{20};
    for (bool said = false; !lock_.take(); std::this_thread::sleep_for(kPause)) {
        if (interrupted()) {
            throw RunError(ExitStatus::Interrupted, path_.string() + ": interrupted");
        }
        if (!said) {
            console.complain(path_.string() + ": waiting for another run that changes it");
            said = true;
        }
    }
    openDocument(document_, path_);
}

void WorkspaceUpdate::requireUnchanged() const {
    if (document_.IsChangedOnDisk()) {
        throw unwritable(path_.string() + ": another program has changed it in the meantime; it was left as it is");
    }
}

void WorkspaceUpdate::save() {
    requireUnchanged();
    saveDocument(document_, path_);
}

}  // namespace vorlan
