#include "batch/WorkspaceAccess.h"

#include <chrono>
#include <thread>

#include "batch/BatchError.h"
#include "batch/Interrupt.h"
#include "io/WorkspaceFile.h"

namespace vorlan {

std::string textOf(const FileError& error) {
    const std::string text = error.what();
    const std::string path = error.path().string();
    return text.find(path) == std::string::npos ? path + ": " + text : text;
}

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
            throw BatchError(ExitStatus::Interrupted, path_.string() + ": interrupted");
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

std::string describe(const ProbePlace& place) {
    return "data file " + std::to_string(place.file + 1) + ", probe " + std::to_string(place.probe + 1);
}

void requireProbe(const Workspace& workspace, const ProbePlace& place) {
    const SAdvFilesArray& files = workspace.dataFiles.files;
    if (place.file < 0 || place.file >= files.GetSize()) {
        throw refusal("there is no data file " + std::to_string(place.file + 1) + ", the workspace has " +
                      std::to_string(files.GetSize()));
    }
    const int probes = files.GetAt(place.file).probes.GetSize();
    if (place.probe < 0 || place.probe >= probes) {
        throw refusal("there is no probe " + std::to_string(place.probe + 1) + ", data file " +
                      std::to_string(place.file + 1) + " has " + std::to_string(probes));
    }
}

void selectPlace(CVorl_ADVDoc& document, const ProbePlace& place) {
    requireProbe(document.GetWorkspace(), place);
    if (document.ActiveFile() != place.file) {
        document.SelectFile(place.file);
    }
    if (document.ActiveProbe() != place.probe) {
        document.SelectProbe(place.probe);
    }
}

bool selectStage(CVorl_ADVDoc& document, Stage stage) {
    const int tab = document.Probe().tabItems.IndexOfStage(static_cast<int>(stage));
    if (tab < 0) {
        return false;
    }
    document.SelectStage(tab);
    return true;
}

}  // namespace vorlan
