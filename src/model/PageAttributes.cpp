#include "model/PageAttributes.h"

#include "model/Archive.h"
#include "model/StageTable.h"

namespace vorlan {

namespace {
constexpr std::size_t kSmallestPage = 5 * sizeof(std::int32_t) + 2 + 14 * sizeof(double);

void serializeSize(Archive& archive, PagePaneSize& size) {
    archive.value(size.height);
    archive.value(size.width);
}
}  // namespace

void PageAtrType::Serialize(Archive& archive) {
    for (std::int32_t* v : {&printLeftBottom, &printLeftTop, &printRightBottom, &printRightTop}) {
        archive.value(*v);
    }
    archive.value(footer);
    archive.value(header);
    archive.value(innerMargin);
    serializeSize(archive, leftBottom);
    archive.value(leftMargin);
    serializeSize(archive, leftTop);
    serializeSize(archive, rightBottom);
    archive.value(rightMargin);
    serializeSize(archive, rightTop);
    archive.value(fontScale);
    archive.value(topMargin);
    archive.value(bottomMargin);
    archive.value(layout);
}

void SPageAtrArray::Serialize(Archive& archive) {
    serializeItems(archive, archive.shortCount(items().size(), kSmallestPage));
}

int pageRecordOfStageCode(int choiceA) {
    const StageRow* row = stageNumbered(std::int64_t{choiceA} - 1);
    return row != nullptr ? row->pageRecord : 0;
}

}  // namespace vorlan
