#include "model/SAdvSet.h"

#include "model/Archive.h"

namespace vorlan {

SAdvSet::SAdvSet() {
    frameAttributes.Add(FrameAttributesType{});
}

void SAdvSet::Serialize(Archive& archive) {
    if (archive.isLoading()) {
        files.RemoveAll();
        frameAttributes.RemoveAll();
    }
    files.Serialize(archive);
    frameAttributes.Serialize(archive);
}

void SAdvSet::SetSelectedTab(int file, int probe, int tab) {
    if (probe < 0) {
        throw InvalidArgument();
    }
    files.GrowTo(file).probes.GrowTo(probe).SetSelectedTab(tab);
}

}  // namespace vorlan
