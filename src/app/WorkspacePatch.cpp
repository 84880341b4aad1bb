#include "app/WorkspacePatch.h"

#include <algorithm>
#include <iterator>
#include <type_traits>
#include <utility>

#include "model/Index.h"

namespace vorlan {

namespace {

static_assert(std::is_nothrow_move_constructible_v<SAdvProbe> && std::is_nothrow_move_assignable_v<SAdvFile> &&
                  std::is_nothrow_move_constructible_v<SBndSet> && std::is_nothrow_move_constructible_v<SPageAtrArray>,
              "a patch is exchanged as a whole or not at all");

template <class T>
void exchange(std::optional<T>& part, T& held) {
    if (part.has_value()) {
        std::swap(*part, held);
    }
}

void exchangeFiles(WorkspacePatch::FilesPart& part, SAdvFilesArray& files) {
    if (part.files.empty()) {
        part.files.reserve(asSize(part.count));
        const auto first = files.begin() + part.index;
        std::move(first, first + part.count, std::back_inserter(part.files));
        std::move(first + part.count, files.end(), first);
        files.SetSize(files.GetSize() - part.count);
    } else {
        files.SetSize(files.GetSize() + part.count);
        const auto first = files.begin() + part.index;
        std::move_backward(first, files.end() - part.count, files.end());
        std::move(part.files.begin(), part.files.end(), first);
        part.files.clear();
    }
}

template <class T>
void keepOlder(std::optional<T>& older, std::optional<T>& later) {
    if (!older.has_value()) {
        older = std::move(later);
    }
}

template <class T>
void takeWhereDifferent(std::optional<T>& part, const T& from, const T& to) {
    if (!(from == to)) {
        part = to;
    }
}

}  // namespace

WorkspacePatch WorkspacePatch::Between(const Workspace& from, const Workspace& to) {
    WorkspacePatch patch;
    takeWhereDifferent(patch.settings, from.settings, to.settings);
    takeWhereDifferent(patch.planFrames, from.dataFiles.frameAttributes, to.dataFiles.frameAttributes);
    takeWhereDifferent(patch.boundaries, from.boundaries, to.boundaries);
    takeWhereDifferent(patch.pages, from.pages, to.pages);
    for (int file = 0; file < from.dataFiles.files.GetSize(); ++file) {
        const SAdvProbesArray& before = from.dataFiles.files.GetAt(file).probes;
        const SAdvProbesArray& after = to.dataFiles.files.GetAt(file).probes;
        for (int probe = 0; probe < before.GetSize(); ++probe) {
            if (!(before.GetAt(probe) == after.GetAt(probe))) {
                patch.probes.push_back({file, probe, after.GetAt(probe)});
            }
        }
    }
    return patch;
}

bool WorkspacePatch::IsEmpty() const {
    return !settings && probes.empty() && !files && !planFrames && !boundaries && !pages;
}

void WorkspacePatch::Exchange(Workspace& workspace) {
    // First what needs memory, then what needs none.
    if (files.has_value()) {
        exchangeFiles(*files, workspace.dataFiles.files);
    }
    exchange(settings, workspace.settings);
    for (ProbePart& part : probes) {
        std::swap(part.value, workspace.dataFiles.files.ElementAt(part.file).probes.ElementAt(part.probe));
    }
    exchange(planFrames, workspace.dataFiles.frameAttributes);
    exchange(boundaries, workspace.boundaries);
    exchange(pages, workspace.pages);
}

bool WorkspacePatch::IsIn(const Workspace& workspace) const {
    const auto same = [](const auto& part, const auto& held) { return !part.has_value() || *part == held; };
    return !files.has_value() && same(settings, workspace.settings) &&
           same(planFrames, workspace.dataFiles.frameAttributes) && same(boundaries, workspace.boundaries) &&
           same(pages, workspace.pages) && std::all_of(probes.begin(), probes.end(), [&](const ProbePart& part) {
               return workspace.dataFiles.files.GetAt(part.file).probes.GetAt(part.probe) == part.value;
           });
}

bool WorkspacePatch::OnlySelects(const Workspace& workspace) const {
    WorkspacePatch rest = *this;
    if (rest.settings.has_value()) {
        const WorkspaceSettings& held = workspace.settings;
        rest.settings->activeFile = held.activeFile;
        rest.settings->activeProbe = held.activeProbe;
        rest.settings->activeItem = held.activeItem;
        rest.settings->previousFile = held.previousFile;
        rest.settings->previousProbe = held.previousProbe;
        rest.settings->previousItem = held.previousItem;
        rest.settings->choiceA = held.choiceA;
        rest.settings->choiceB = held.choiceB;
        rest.settings->displaySwitch = held.displaySwitch;
    }
    for (ProbePart& part : rest.probes) {
        part.value.SetSelectedTab(workspace.dataFiles.files.GetAt(part.file).probes.GetAt(part.probe).selectedTab);
    }
    return rest.IsIn(workspace);
}

void WorkspacePatch::Precede(WorkspacePatch later) {
    keepOlder(settings, later.settings);
    keepOlder(planFrames, later.planFrames);
    keepOlder(boundaries, later.boundaries);
    keepOlder(pages, later.pages);
    for (ProbePart& part : later.probes) {
        const bool known = std::any_of(probes.begin(), probes.end(), [&](const ProbePart& older) {
            return older.file == part.file && older.probe == part.probe;
        });
        if (!known) {
            probes.push_back(std::move(part));
        }
    }
}

}  // namespace vorlan
