#include "model/PlainArrays.h"

#include "model/Archive.h"

namespace vorlan {

namespace {

// Count, then the elements as one block; loading appends.
template <class Storage>
void serializeBlock(Archive& archive, Storage& items) {
    using Element = typename Storage::value_type;
    const std::size_t count = archive.count(items.size(), sizeof(Element));
    const std::size_t first = archive.isLoading() ? items.size() : 0;
    if (archive.isLoading()) {
        items.resize(first + count);
    }
    archive.raw(items.data() + first, count * sizeof(Element));
}

}  // namespace

void SIntArray::Serialize(Archive& archive) {
    serializeBlock(archive, items());
}

void SDArray::Serialize(Archive& archive) {
    serializeBlock(archive, items());
}

void SDMultiArray::Serialize(Archive& archive) {
    const std::size_t count = archive.count(items().size(), sizeof(std::int32_t));
    if (archive.isLoading()) {
        items().resize(items().size() + count);
    }
    for (std::size_t i = items().size() - count; i < items().size(); ++i) {
        items()[i].Serialize(archive);
    }
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
