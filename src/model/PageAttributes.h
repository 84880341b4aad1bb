#pragma once

#include <cstdint>
#include <string>

#include "model/GrowArray.h"

namespace vorlan {

/// Height and width of a pane on paper, cm ("X" and "Y" in the page setup).
struct PagePaneSize {
    double height = 5.0;
    double width = 16.0;

    friend bool operator==(const PagePaneSize&, const PagePaneSize&) = default;
};

/// The printed page of one stage. Lengths in cm.
struct PageAtrType {
    std::int32_t printLeftBottom = 1;
    std::int32_t printLeftTop = 1;
    std::int32_t printRightBottom = 1;
    std::int32_t printRightTop = 1;
    std::string footer = "-1-";
    std::string header;
    double innerMargin = 1.0;
    PagePaneSize leftBottom;
    double leftMargin = 2.5;
    PagePaneSize leftTop;
    PagePaneSize rightBottom;
    double rightMargin = 1.5;
    PagePaneSize rightTop;
    double fontScale = 5.0;
    double topMargin = 2.5;
    double bottomMargin = 2.5;
    std::int32_t layout = 1;  ///< 0 two by two as on screen, 1 one column

    void Serialize(Archive& archive);
    friend bool operator==(const PageAtrType&, const PageAtrType&) = default;
};

/// One page per stage.
class SPageAtrArray : public GrowArray<PageAtrType> {
  public:
    const char* ClassName() const override { return "SPageAtrArray"; }
    void Serialize(Archive& archive) override;
};

/// Index of the page record for a stage code (choiceA); code 0 uses the first.
int pageRecordOfStageCode(int choiceA);

}  // namespace vorlan
