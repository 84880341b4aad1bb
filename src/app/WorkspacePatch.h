#pragma once

#include <optional>
#include <vector>

#include "model/Workspace.h"

namespace vorlan {

/// What a command puts into the workspace, part by part; a part without a value stays as it is. Exchanged, it holds
/// what stood there before: exchanging it once more takes the command back. Columns that old and new value have in
/// common exist once.
struct WorkspacePatch {
    struct ProbePart {
        int file;
        int probe;
        SAdvProbe value;
    };
    /// With files: they go in at index. Without: the count files from index on are taken out.
    struct FilesPart {
        int index;
        int count;
        std::vector<SAdvFile> files = {};
    };

    std::optional<WorkspaceSettings> settings = std::nullopt;
    /// Probes beside a part of files belong to files in front of it, whose indexes it does not move.
    std::vector<ProbePart> probes = {};
    std::optional<FilesPart> files = std::nullopt;
    std::optional<SFrameAtrArray> planFrames = std::nullopt;
    std::optional<SBndSet> boundaries = std::nullopt;
    std::optional<SPageAtrArray> pages = std::nullopt;

    /// What makes one workspace of another that has the same data files with as many probes.
    static WorkspacePatch Between(const Workspace& from, const Workspace& to);
    bool IsEmpty() const;

    void Exchange(Workspace& workspace);
    /// True when the workspace holds all of it already.
    bool IsIn(const Workspace& workspace) const;
    /// True when it differs from the workspace in what is selected only.
    bool OnlySelects(const Workspace& workspace) const;
    /// Two exchanged patches as one: this one was exchanged first, so its parts are the older ones and stay. later has
    /// no part of files.
    void Precede(WorkspacePatch later);
};

}  // namespace vorlan
