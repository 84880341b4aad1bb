#include "app/GridEditor.h"

#include <algorithm>

#include "model/DefaultFrames.h"
#include "model/Text.h"
#include "model/VectorPlan.h"

namespace vorlan {

namespace {

void requireIndex(int index, int size) {
    if (index < 0 || index >= size) {
        throw InvalidArgument();
    }
}

}  // namespace

GridEditor::GridEditor(CVorl_ADVDoc& document)
    : document_(document),
      file_(document.ActiveFile()),
      probe_(document.ActiveProbe()),
      frame_(defaultPreviewFrame(plane_)) {
    showBoundary(boundaries().IsEmpty() ? -1 : 0);
    if (file_ < 0 && !document_.GetWorkspace().dataFiles.files.IsEmpty()) {
        chooseFile(0);
    } else if (file_ >= 0 && probe_ < 0) {
        chooseFile(file_);
    }
}

void GridEditor::showNode(int index) {
    const int count = nodeCount();
    node_ = std::clamp(index, -1, count - 1);
    status_ = node_ >= 0 ? formatted("Current boundary node %d", node_) : "Total nodes number is 0";
}

void GridEditor::showBoundary(int index) {
    boundary_ = index;
    showNode(0);
    if (boundary_ < 0) {
        status_.clear();
    }
}

std::vector<std::string> GridEditor::boundaryTexts() const {
    std::vector<std::string> texts;
    for (int i = 0; i < boundaries().GetSize(); ++i) {
        texts.push_back(utf8Text(boundaries().GetAt(i).name) + (document_.IsBoundaryWritten(i) ? "" : " *"));
    }
    return texts;
}

int GridEditor::nodeCount() const {
    return boundary_ < 0 ? 0 : boundaries().GetAt(boundary_).NodeCount();
}

Position GridEditor::nodePosition() const {
    Position position{};
    for (std::size_t axis = 0; node_ >= 0 && axis < position.size(); ++axis) {
        position[axis] = boundaries().GetAt(boundary_).Axis(axis).GetValue(node_);
    }
    return position;
}

std::string GridEditor::boundaryPath() const {
    return boundary_ < 0 ? std::string() : boundaries().GetAt(boundary_).path;
}

void GridEditor::chooseBoundary(int index) {
    requireIndex(index, boundaries().GetSize());
    showBoundary(index);
}

void GridEditor::chooseNode(int index) {
    requireIndex(index, nodeCount());
    showNode(index);
}

Outcome GridEditor::newBoundary(const std::filesystem::path& path) {
    const Outcome outcome = document_.NewBoundary(path);
    if (outcome == Outcome::Done) {
        showBoundary(boundaries().GetSize() - 1);
    }
    return outcome;
}

Outcome GridEditor::openBoundary(const std::filesystem::path& path) {
    const Outcome outcome = document_.OpenBoundary(path);
    if (outcome == Outcome::Done) {
        showBoundary(document_.BoundaryOfPath(path));
    } else if (boundary_ >= 0) {
        showNode(std::max(node_, 0));
    }
    return outcome;
}

Outcome GridEditor::saveBoundary(const std::filesystem::path& path) {
    const Outcome outcome = document_.SaveBoundary(boundary_, path);
    if (outcome == Outcome::Done) {
        status_ = utf8Text(boundaries().GetAt(boundary_).name) + " saved";
    }
    return outcome;
}

Outcome GridEditor::closeBoundary() {
    const Outcome outcome = document_.CloseBoundary(boundary_);
    if (outcome == Outcome::Done) {
        showBoundary(std::min(boundary_, boundaries().GetSize() - 1));
    }
    return outcome;
}

Outcome GridEditor::addNode(const Position& position) {
    return insertNode(std::max(node_, 0), position);
}

Outcome GridEditor::insertNode(int index, const Position& position) {
    const Outcome outcome = document_.InsertNode(boundary_, index, position);
    if (outcome == Outcome::Done) {
        showNode(nodeCount() - 1);
    }
    return outcome;
}

Outcome GridEditor::moveNode(const PositionChange& position) {
    return document_.SetNode(boundary_, node_, position);
}

Outcome GridEditor::removeNode() {
    const Outcome outcome = document_.RemoveNode(boundary_, node_);
    if (outcome == Outcome::Done) {
        showNode(node_);
    }
    return outcome;
}

void GridEditor::chooseFile(int index) {
    const SAdvFilesArray& files = document_.GetWorkspace().dataFiles.files;
    requireIndex(index, files.GetSize());
    file_ = index;
    probe_ = files.GetAt(index).probes.IsEmpty() ? -1 : 0;
}

void GridEditor::chooseProbe(int index) {
    requireIndex(index, file_ < 0 ? 0 : document_.GetWorkspace().dataFiles.files.GetAt(file_).probes.GetSize());
    probe_ = index;
}

Position GridEditor::probePosition() const {
    if (probe_ < 0) {
        return {};
    }
    const SAdvProbe& probe = document_.GetWorkspace().dataFiles.files.GetAt(file_).probes.GetAt(probe_);
    return {probe.samplingVolumeX * kCoordinateScale, probe.samplingVolumeY * kCoordinateScale,
            probe.samplingVolumeZ * kCoordinateScale};
}

Outcome GridEditor::moveProbe(const PositionChange& position) {
    return document_.PlaceProbe(file_, probe_, position);
}

void GridEditor::choosePlane(int code) {
    requireIndex(code, kPlaneCount);
    const FrameAttributesType before = defaultPreviewFrame(plane_);
    const FrameAttributesType now = defaultPreviewFrame(code);
    plane_ = code;
    frame_.xTitle = frame_.xTitle == before.xTitle ? now.xTitle : frame_.xTitle;
    frame_.yTitle = frame_.yTitle == before.yTitle ? now.yTitle : frame_.yTitle;
}

}  // namespace vorlan
