#include "model/PlainArrays.h"

#include "model/Archive.h"

namespace vorlan {

void SIntArray::Serialize(Archive& archive) {
    serializeBlock(archive);
}

void SDArray::Serialize(Archive& archive) {
    serializeBlock(archive);
}

void SDMultiArray::Serialize(Archive& archive) {
    serializeItems(archive, archive.count(items().size(), sizeof(std::int32_t)));
}

void StrArray::Serialize(Archive& archive) {
    const std::size_t count = archive.shortCount(items().size(), 1);
    if (archive.isLoading()) {
        items().resize(items().size() + count);
    }
    for (std::size_t i = items().size() - count; i < items().size(); ++i) {
        archive.value(items()[i]);
    }
}

}  // namespace vorlan
