#pragma once

#include <cstdint>
#include <string>

#include "model/GrowArray.h"

namespace vorlan {

/// One item of a probe's stage tabs. The image index is the stage number; the text is looked up from it.
struct TabItem {
    std::uint32_t mask = 3;  ///< text and image
    std::uint32_t imageIndex = 0;
    std::uint32_t parameter = 0;
    std::string text;

    friend bool operator==(const TabItem&, const TabItem&) = default;
};

/// The stage tabs of a probe, in the order in which the stages were first run.
class STabsArray : public GrowArray<TabItem> {
  public:
    const char* ClassName() const override { return "STabsArray"; }
    /// Stored per item: mask, image index, parameter. A stage number above 6 takes the text of the item before.
    void Serialize(Archive& archive) override;

    /// Index of the first item of a stage, -1 when there is none.
    int IndexOfStage(int stage) const;
    /// Index of the last item of a stage, -1 when there is none.
    int LastIndexOfStage(int stage) const;
    /// Appends the stage's tab unless there is one; returns its index. InvalidArgument for
    /// a number that is no stage.
    int AppendStage(int stage);
};

}  // namespace vorlan
