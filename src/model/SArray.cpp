#include "model/SArray.h"

#include <algorithm>

#include "model/Archive.h"

namespace vorlan {

namespace {
constexpr std::size_t kSmallestColumn = sizeof(double) + sizeof(std::int32_t);
}

void SArray::Serialize(Archive& archive) {
    archive.value(scale_);
    serializeBlock(archive);
}

std::vector<double> SArray::Values() const {
    std::vector<double> values(items().size());
    std::transform(items().begin(), items().end(), values.begin(),
                   [scale = scale_](std::int32_t n) { return n * scale; });
    return values;
}

void SArray::StoreValues(std::span<const double> values) {
    truncateToUnits(values, scale_, freshItems(values.size()).data());
}

void SMultiArray::Serialize(Archive& archive) {
    const std::size_t count = archive.count(items().size(), kSmallestColumn);
    if (archive.isLoading()) {
        items().reserve(items().size() + count);
        for (std::size_t i = 0; i < count; ++i) {
            items().emplace_back().Serialize(archive);
        }
    } else {
        for (SArray& column : items()) {
            column.Serialize(archive);
        }
    }
}

void SMultiArray::Reshape(int columns, double scale) {
    RemoveAll();
    for (int i = 0; i < columns; ++i) {
        Add(SArray(scale));
    }
}

bool SMultiArray::HasNoValues() const {
    for (const SArray& column : items()) {
        if (!column.IsEmpty()) {
            return false;
        }
    }
    return true;
}

void SSuperArray::Serialize(Archive& archive) {
    const std::size_t count = archive.shortCount(items().size(), sizeof(std::int32_t));
    if (archive.isLoading()) {
        items().resize(items().size() + count);
    }
    for (std::size_t i = items().size() - count; i < items().size(); ++i) {
        items()[i].Serialize(archive);
    }
}

}  // namespace vorlan
