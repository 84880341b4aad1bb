#include "model/STabsArray.h"

#include "model/Archive.h"
#include "model/StageTable.h"

namespace vorlan {

void STabsArray::Serialize(Archive& archive) {
    const std::size_t count = archive.count(items().size(), 3 * sizeof(std::uint32_t));
    if (archive.isLoading()) {
        items().reserve(items().size() + count);
        for (std::size_t i = 0; i < count; ++i) {
            items().emplace_back();
        }
    }
    for (std::size_t i = items().size() - count; i < items().size(); ++i) {
        TabItem& item = items()[i];
        archive.value(item.mask);
        archive.value(item.imageIndex);
        archive.value(item.parameter);
        if (archive.isLoading()) {
            if (const StageRow* row = stageNumbered(item.imageIndex)) {
                item.text = row->text;
            } else if (i > 0) {
                item.text = items()[i - 1].text;
            }
        }
    }
}

int STabsArray::IndexOfStage(int stage) const {
    for (int i = 0; i < GetSize(); ++i) {
        if (GetAt(i).imageIndex == static_cast<std::uint32_t>(stage)) {
            return i;
        }
    }
    return -1;
}

int STabsArray::LastIndexOfStage(int stage) const {
    for (int i = GetSize() - 1; i >= 0; --i) {
        if (GetAt(i).imageIndex == static_cast<std::uint32_t>(stage)) {
            return i;
        }
    }
    return -1;
}

int STabsArray::AppendStage(int stage) {
    const StageRow* row = stageNumbered(stage);
    if (row == nullptr) {
        throw InvalidArgument();
    }
    const int present = IndexOfStage(stage);
    if (present >= 0) {
        return present;
    }
    TabItem item;
    item.imageIndex = static_cast<std::uint32_t>(stage);
    item.parameter = item.imageIndex;
    item.text = row->text;
    Add(item);
    return GetSize() - 1;
}

}  // namespace vorlan
