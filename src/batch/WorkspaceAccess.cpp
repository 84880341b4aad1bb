#include "batch/WorkspaceAccess.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>

#include "io/AtomicFile.h"
#include "io/ReadFile.h"
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

void copyWorkspace(const std::filesystem::path& from, const std::filesystem::path& to) {
    constexpr std::size_t kPiece = std::size_t{1} << 18;
    const auto reading = [](auto read) {
        try {
            return read();
        } catch (const FileError& error) {
            throw unreadable(textOf(error));
        }
    };
    const auto writing = [](auto write) {
        try {
            return write();
        } catch (const FileError& error) {
            throw unwritable(textOf(error));
        }
    };
    InputFile source = reading([&] { return InputFile(from); });
    AtomicFile target = writing([&] { return AtomicFile(to, LaterFile::Kept); });
    std::vector<std::byte> buffer(std::min(source.size(), kPiece));
    for (std::size_t left = source.size(); left > 0;) {
        const std::span<std::byte> piece = std::span(buffer).first(std::min(left, buffer.size()));
        const std::size_t held = reading([&] { return source.read(piece); });
        writing([&] { target.write(piece.first(held)); });
        // Less than there should be: somebody has shortened the file.
        left = held < piece.size() ? 0 : left - held;
    }
    writing([&] { target.commit(); });
}

WorkspaceUpdate::WorkspaceUpdate(CVorl_ADVDoc& document, std::filesystem::path path, Console& console)
    : document_(document), path_(std::move(path)), lock_(path_) {
    constexpr std::chrono::milliseconds kPause{20};
    for (bool said = false; !lock_.take(); std::this_thread::sleep_for(kPause)) {
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
