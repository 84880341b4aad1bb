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
    serializeItems(archive, archive.count(items().size(), kSmallestColumn));
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
    serializeItems(archive, archive.shortCount(items().size(), sizeof(std::int32_t)));
}

}  // namespace vorlan
