#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "io/FileLock.h"
#include "io/FileStamp.h"
#include "model/Workspace.h"

namespace vorlan {

/// The copy of a program's open workspace that outlives a crash. All copies lie in one folder; beside each a lock is
/// held as long as its program runs, which also names the workspace's own file.
class RecoveryCopy {
  public:
    explicit RecoveryCopy(std::filesystem::path folder) : folder_(std::move(folder)) {}

    /// Replaces the copy. original is the workspace's own file, without a path for one that was never saved. Throws
    /// FileError; an earlier copy is then what it was.
    void write(Workspace workspace, const StampedFile& original);
    /// Nothing is to be recovered.
    void remove();

    /// A copy whose program is gone. Nobody else is offered it while this value is held.
    struct LeftBehind {
        std::filesystem::path copy;
        StampedFile original;
        std::filesystem::file_time_type time;
        std::unique_ptr<FileLock> lock;

        /// Whether the workspace's own file was written by somebody else since its program knew it.
        bool isOriginalChanged() const;
        void discard() const;
    };
    /// The newest first. Never fails: what cannot be looked at is not there.
    static std::vector<LeftBehind> leftBehind(const std::filesystem::path& folder);

  private:
    void takeName();

    std::filesystem::path folder_;
    std::filesystem::path copy_;  ///< empty until the first one is written
    std::unique_ptr<FileLock> lock_;
};

}  // namespace vorlan
