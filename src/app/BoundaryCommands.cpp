// The document's commands of the measuring grid: boundaries, their text files, the probes' positions, the plans.
#include <algorithm>

#include "app/CVorl_ADVDoc.h"
#include "app/CommandReports.h"
#include "io/WorkspaceFile.h"
#include "model/Index.h"
#include "model/Text.h"

namespace vorlan {

namespace {

namespace fs = std::filesystem;

// The path as a workspace keeps it. A folder above a linked one is not the folder in front of it in the text.
fs::path storedPath(const fs::path& path) {
    const fs::path whole = fs::absolute(path);
    const bool stepsUp = std::find(whole.begin(), whole.end(), fs::path("..")) != whole.end();
    std::error_code error;
    const fs::path followed = stepsUp ? fs::weakly_canonical(whole, error) : fs::path();
    return stepsUp && !error ? followed : whole.lexically_normal();
}

std::string fileText(const fs::path& path) {
    return utf8Text(path.filename().string());
}

SBndFile boundaryAt(const fs::path& path) {
    SBndFile boundary;
    boundary.path = storedPath(path).string();
    boundary.name = fs::path(boundary.path).filename().string();
    return boundary;
}

}  // namespace

int CVorl_ADVDoc::BoundaryOfPath(const std::filesystem::path& path) const {
    const std::string stored = storedPath(path).string();
    for (int i = 0; i < workspace_.boundaries.GetSize(); ++i) {
        if (workspace_.boundaries.GetAt(i).path == stored) {
            return i;
        }
    }
    return -1;
}

Outcome CVorl_ADVDoc::AccessBoundaryFile(const std::function<void()>& access) {
    for (;;) {
        try {
            access();
            return Outcome::Done;
        } catch (const BoundaryOpenError& error) {
            if (!port_->retry(utf8Text(error.what()))) {
                return Outcome::Cancelled;
            }
        } catch (const FileError& error) {
            port_->refuse(utf8Text(error.what()));
            return Outcome::Refused;
        }
    }
}

Outcome CVorl_ADVDoc::WriteBoundaryFile(const SBndFile& boundary) {
    if (kindOfFile(boundary.path) == FileKind::Workspace) {
        port_->refuse(utf8Text(boundary.path) + " is a workspace: nothing else takes its place.");
        return Outcome::Refused;
    }
    const Outcome outcome = AccessBoundaryFile([&] { boundaryStorage_->write(boundary); });
    if (outcome == Outcome::Done) {
        written_.remember(boundary);
    }
    return outcome;
}

Outcome CVorl_ADVDoc::ChangeGrid(const std::string& sentence, const std::function<Outcome()>& change) {
    if (running_) {
        return Outcome::Refused;
    }
    Outcome outcome = Outcome::Refused;
    try {
        outcome = change();
    } catch (const InvalidArgument& error) {
        port_->refuse(error.what());
    }
    return Report(outcome, [&] { return sentence; });
}

void CVorl_ADVDoc::WriteBoundaries(const char* command, SBndSet boundaries) {
    Write(command, {.boundaries = std::move(boundaries)});
    Tell(Change::Content);
}

Outcome CVorl_ADVDoc::NewBoundary(const std::filesystem::path& path) {
    return ChangeGrid(fileText(path) + " written", [&] {
        const SBndFile boundary = boundaryAt(path);
        const Outcome outcome = WriteBoundaryFile(boundary);
        if (outcome == Outcome::Done) {
            SBndSet boundaries = workspace_.boundaries;
            boundaries.Add(boundary);
            WriteBoundaries("New Boundary", std::move(boundaries));
        }
        return outcome;
    });
}

Outcome CVorl_ADVDoc::OpenBoundary(const std::filesystem::path& path) {
    return ChangeGrid(fileText(path) + " read", [&] {
        SBndSet boundaries = workspace_.boundaries;
        const int known = BoundaryOfPath(path);
        // What the file alone holds; a boundary read again keeps its nodes beyond them.
        SBndFile fresh = boundaryAt(path);
        SBndFile boundary = known < 0 ? fresh : boundaries.GetAt(known);
        const Outcome outcome = AccessBoundaryFile([&] {
            fresh = boundaryAt(path);
            boundaryStorage_->read(fresh);
        });
        for (int i = 0; i < fresh.NodeCount(); ++i) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                boundary.Axis(axis).SetAt(i, fresh.Axis(axis).GetAt(i));
            }
        }
        if (outcome == Outcome::Done) {
            written_.remember(fresh);
        }
        if (known >= 0) {
            // The nodes in front of a faulty line were read.
            if (!(boundary == boundaries.GetAt(known))) {
                boundaries.SetAt(known, boundary);
                WriteBoundaries("Open Boundary", std::move(boundaries));
            }
        } else if (outcome == Outcome::Done) {
            boundaries.Add(boundary);
            WriteBoundaries("Open Boundary", std::move(boundaries));
        }
        return outcome;
    });
}

Outcome CVorl_ADVDoc::SaveBoundary(int boundary, const std::filesystem::path& path) {
    return ChangeGrid(fileText(path) + " saved", [&] {
        SBndSet boundaries = workspace_.boundaries;
        SBndFile& saved = boundaries.ElementAt(boundary);
        const SBndFile before = saved;
        const SBndFile place = boundaryAt(path);
        saved.path = place.path;
        saved.name = place.name;
        const Outcome outcome = WriteBoundaryFile(saved);
        if (outcome == Outcome::Done && !(saved == before)) {
            WriteBoundaries("Save Boundary", std::move(boundaries));
        }
        return outcome;
    });
}

Outcome CVorl_ADVDoc::CloseBoundary(int boundary) {
    return ChangeGrid("Boundary closed", [&] {
        SBndSet boundaries = workspace_.boundaries;
        const SBndFile& closed = boundaries.GetAt(boundary);
        if (!written_.holds(closed) && !port_->confirm(Question::CloseBoundary)) {
            return Outcome::Cancelled;
        }
        boundaries.RemoveAt(boundary);
        WriteBoundaries("Close Boundary", std::move(boundaries));
        return Outcome::Done;
    });
}

Outcome CVorl_ADVDoc::InsertNode(int boundary, int node, const Position& position) {
    return ChangeGrid(formatted("Node %d added", node + 1), [&] {
        SBndSet boundaries = workspace_.boundaries;
        boundaries.ElementAt(boundary).InsertNode(node, position[0], position[1], position[2]);
        WriteBoundaries("Add Node", std::move(boundaries));
        return Outcome::Done;
    });
}

Outcome CVorl_ADVDoc::SetNode(int boundary, int node, const PositionChange& position) {
    return ChangeGrid(formatted("Node %d moved", node + 1), [&] {
        SBndSet boundaries = workspace_.boundaries;
        SBndFile& changed = boundaries.ElementAt(boundary);
        for (std::size_t axis = 0; axis < position.size(); ++axis) {
            // A coordinate that is kept is not stored again: that could cost its last digit.
            const std::int32_t before = changed.Axis(axis).GetAt(node);
            changed.Axis(axis).SetAt(node,
                                     position[axis] ? truncateToInt32(*position[axis] / kCoordinateScale) : before);
        }
        WriteBoundaries("Move Node", std::move(boundaries));
        return Outcome::Done;
    });
}

Outcome CVorl_ADVDoc::RemoveNode(int boundary, int node) {
    return ChangeGrid(formatted("Node %d removed", node + 1), [&] {
        SBndSet boundaries = workspace_.boundaries;
        boundaries.ElementAt(boundary).RemoveNode(node);
        WriteBoundaries("Remove Node", std::move(boundaries));
        return Outcome::Done;
    });
}

bool CVorl_ADVDoc::IsBoundaryWritten(int boundary) const {
    return written_.holds(workspace_.boundaries.GetAt(boundary));
}

Outcome CVorl_ADVDoc::PlaceProbe(int file, int probe, const PositionChange& position) {
    return ChangeGrid("Sampling volume moved", [&] {
        SAdvProbe placed = workspace_.dataFiles.files.GetAt(file).probes.GetAt(probe);
        double* const coordinates[] = {&placed.samplingVolumeX, &placed.samplingVolumeY, &placed.samplingVolumeZ};
        for (std::size_t axis = 0; axis < position.size(); ++axis) {
            *coordinates[axis] = position[axis] ? *position[axis] / kCoordinateScale : *coordinates[axis];
        }
        WorkspacePatch patch;
        patch.probes.push_back({file, probe, std::move(placed)});
        Write("Sampling Volume", std::move(patch), {DoneOn(file, probe, position)});
        Tell(Change::Content);
        return Outcome::Done;
    });
}

Outcome CVorl_ADVDoc::VectorsOfMeanVelocities(const VectorSettings& vectors) {
    if (!HasFile() || running_) {
        return Outcome::Refused;
    }
    WorkspaceSettings settings = Settings();
    settings.vectors = vectors;
    settings.planChosen = true;
    WorkspacePatch patch;
    if (HasProbe()) {
        SAdvProbe probe = Probe();
        probe.SetDone(DoneMark::MeanVelocity);
        EnterStage(Stage::MeanVelocityVectors, probe, settings);
        patch = PatchOf(std::move(probe));
    } else {
        // Without a probe there is no tab to choose: the plans span all files.
        settings.choiceA = asInt(Stage::MeanVelocityVectors) + 1;
    }
    patch.settings = settings;
    Write("Vectors of Mean Velocities", std::move(patch), {DoneOnActive(vectors)});
    Tell(Change::Content);
    return Report(Outcome::Done, [&] { return vectorsReport(vectors); });
}

}  // namespace vorlan
