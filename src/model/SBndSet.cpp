#include "model/SBndSet.h"

#include "model/Archive.h"

namespace vorlan {

namespace {
constexpr std::size_t kSmallestBoundary = 2 + 3 * (sizeof(double) + sizeof(std::int32_t));
}

void SBndFile::Serialize(Archive& archive) {
    archive.value(name);
    archive.value(path);
    for (SArray* column : {&x, &y, &z}) {
        column->Serialize(archive);
    }
}

void SBndFile::SetNode(int index, double nodeX, double nodeY, double nodeZ) {
    x.SetValue(index, nodeX);
    y.SetValue(index, nodeY);
    z.SetValue(index, nodeZ);
}

void SBndFile::InsertNode(int index, double nodeX, double nodeY, double nodeZ) {
    x.InsertAt(index, 0);
    y.InsertAt(index, 0);
    z.InsertAt(index, 0);
    SetNode(index, nodeX, nodeY, nodeZ);
}

void SBndFile::RemoveNode(int index) {
    x.RemoveAt(index);
    y.RemoveAt(index);
    z.RemoveAt(index);
}

void SBndSet::Serialize(Archive& archive) {
    serializeItems(archive, archive.count(items().size(), kSmallestBoundary));
}

}  // namespace vorlan
