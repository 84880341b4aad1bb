#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "model/Archive.h"
#include "model/PageAttributes.h"
#include "model/SAdvSet.h"
#include "model/SBndSet.h"
#include "model/SObject.h"
#include "model/Stages.h"
#include "model/WorkspaceSettings.h"

namespace vorlan {

/// The program's version text, written at the head of every workspace.
inline constexpr const char* kVersionText = "Version 1.59";

/// The version text of the file holds neither a digit nor a point.
class InvalidVersionError : public FormatError {
  public:
    InvalidVersionError() : FormatError("Invalid Workspace format.", 0) {}
};

/// Everything that a workspace file holds.
class Workspace : public SObject {
  public:
    Workspace();

    const char* ClassName() const override { return "Workspace"; }
    /// Version text, document block, data files, boundaries, then the page records when there are any to keep.
    /// Bytes behind what this program knows are kept and stored again. Load into a new object only.
    void Serialize(Archive& archive) override;

    WorkspaceSettings settings;
    SAdvSet dataFiles;
    SBndSet boundaries;
    SPageAtrArray pages;  ///< one per stage, indexed by pageRecordOfStageCode()

  private:
    void SerializePages(Archive& archive);

    bool pagesLoaded_ = false;
    std::vector<std::byte> tail_;
};

}  // namespace vorlan
