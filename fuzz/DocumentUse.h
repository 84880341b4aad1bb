#pragma once

#include <map>
#include <string>

#include "Choices.h"
#include "app/CVorl_ADVDoc.h"

namespace vorlan {

/// Answers as it is told, and cancels a run that takes long.
class FuzzPort : public SilentPort {
  public:
    bool confirm(Question) override { return answer; }
    bool accept(const std::string&) override { return answer; }
    void beginRun(Calculation) override { breaths_ = 0; }
    void pump() override;

    bool answer = true;

  private:
    int breaths_ = 0;
};

/// Boundary files without a disk.
class MemoryBoundaries : public BoundaryStorage {
  public:
    void read(SBndFile& boundary) override;
    void write(const SBndFile& boundary) override { files_[boundary.path] = boundaryText(boundary); }

  private:
    std::map<std::string, std::string> files_;
};

/// An empty document for one input.
struct FuzzDocument {
    FuzzDocument() { document.SetBoundaryStorage(boundaries); }

    FuzzPort port;
    MemoryBoundaries boundaries;
    CVorl_ADVDoc document{port};
};

/// The bytes that a workspace is saved as.
std::vector<std::byte> storedBytes(const Workspace& workspace);
/// Aborts unless the bytes load again as what was stored.
void requireSameAfterReading(const std::vector<std::byte>& bytes);

/// Gives one command with parameters of any kind.
void giveCommand(CVorl_ADVDoc& document, FuzzPort& port, Choices& choices);

/// Describes the panes of a stage, and paints and reads one of them and the page.
void show(const CVorl_ADVDoc& document, Choices& choices);
/// Writes an export.
void exportOne(const CVorl_ADVDoc& document, Choices& choices);

}  // namespace vorlan
