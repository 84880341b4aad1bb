#include "model/Workspace.h"

#include <algorithm>

#include "model/Archive.h"

namespace vorlan {

Workspace::Workspace() {
    pages.SetSize(kStageCount);
}

void Workspace::Serialize(Archive& archive) {
    std::string version = kVersionText;
    archive.value(version);
    if (archive.isLoading() && version.find_first_of("0123456789.") == std::string::npos) {
        throw InvalidVersionError();
    }
    settings.Serialize(archive);
    dataFiles.Serialize(archive);
    boundaries.Serialize(archive);
    SerializePages(archive);
}

void Workspace::SerializePages(Archive& archive) {
    if (archive.isLoading()) {
        pagesLoaded_ = archive.peekShort() == kStageCount;
        if (pagesLoaded_) {
            pages.RemoveAll();
            pages.Serialize(archive);
        }
        tail_ = archive.takeRest();
        return;
    }
    const bool changed =
        std::any_of(pages.begin(), pages.end(), [](const PageAtrType& page) { return !(page == PageAtrType{}); });
    if (pagesLoaded_ || changed) {
        pages.Serialize(archive);
    }
    archive.append(tail_);
}

}  // namespace vorlan
