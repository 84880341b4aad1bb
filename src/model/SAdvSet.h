#pragma once

#include "model/FrameAttributes.h"
#include "model/PlainArrays.h"
#include "model/SAdvFile.h"

namespace vorlan {

/// The data files of a workspace.
class SAdvSet : public SObject {
  public:
    /// One default frame: that of the plan of mean velocity vectors.
    SAdvSet();

    const char* ClassName() const override { return "SAdvSet"; }
    /// Files first, then the frames. Loading replaces both.
    void Serialize(Archive& archive) override;

    /// Stores the tab in the probe, growing files and probes as needed. InvalidArgument for a negative index.
    void SetSelectedTab(int file, int probe, int tab);

    SFrameAtrArray frameAttributes;  ///< diagrams that span all files
    StrArray namesA;                 ///< working lists, not stored
    StrArray namesB;
    SAdvFilesArray files;

    friend bool operator==(const SAdvSet&, const SAdvSet&) = default;
};

}  // namespace vorlan
