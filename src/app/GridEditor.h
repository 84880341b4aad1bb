#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "app/CVorl_ADVDoc.h"

namespace vorlan {

/// The state of the grid and boundaries editor: what is current, and what is said about it. Boundaries and positions
/// are the document's and change by its commands only; files, questions and refusals are theirs too.
///
/// Indexes count from 0; -1 means that there is none. An index outside its list raises InvalidArgument.
class GridEditor {
  public:
    /// Opens at the first boundary and its first node, and at the document's active probe.
    explicit GridEditor(CVorl_ADVDoc& document);

    // Boundaries.

    /// Names of the boundaries; one that was changed and not written to its file is marked with an asterisk.
    std::vector<std::string> boundaryTexts() const;
    int boundary() const { return boundary_; }
    int node() const { return node_; }
    int nodeCount() const;
    /// Of the current node, metres; zeros without one.
    Position nodePosition() const;
    const std::string& status() const { return status_; }
    /// Path of the current boundary's file, empty without one.
    std::string boundaryPath() const;

    void chooseBoundary(int index);
    void chooseNode(int index);
    Outcome newBoundary(const std::filesystem::path& path);
    Outcome openBoundary(const std::filesystem::path& path);
    Outcome saveBoundary(const std::filesystem::path& path);
    Outcome closeBoundary();
    /// Inserts a node at the current one, at 0 in an empty boundary; the last node is current then.
    Outcome addNode(const Position& position);
    Outcome insertNode(int index, const Position& position);
    Outcome moveNode(const PositionChange& position);
    Outcome removeNode();

    // Sampling volumes.

    int file() const { return file_; }
    int probe() const { return probe_; }
    void chooseFile(int index);
    void chooseProbe(int index);
    /// Of the current probe, metres; zeros without one.
    Position probePosition() const;
    Outcome moveProbe(const PositionChange& position);

    // Preview.

    int plane() const { return plane_; }
    /// Chooses the plane; axis titles that are still those of the plane before follow it.
    void choosePlane(int code);
    const FrameAttributesType& frame() const { return frame_; }
    void setFrame(const FrameAttributesType& frame) { frame_ = frame; }

  private:
    const SBndSet& boundaries() const { return document_.GetWorkspace().boundaries; }
    void showNode(int index);
    void showBoundary(int index);

    CVorl_ADVDoc& document_;
    int boundary_ = -1;
    int node_ = -1;
    int file_ = -1;
    int probe_ = -1;
    int plane_ = 2;
    FrameAttributesType frame_;
    std::string status_;
};

}  // namespace vorlan
