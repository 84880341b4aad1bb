#include "model/Workspace.h"

#include <algorithm>
#include <cstring>

#include "model/Archive.h"

namespace vorlan {

Workspace::Workspace() {
    pages.SetSize(kStageCount);
}

void Workspace::Serialize(Archive& archive) {
    std::string version = kVersionText;
    archive.value(version);
    if (archive.isLoading() && version.find_first_of("0123456789.") == std::string::npos) {
        throw FormatError("Invalid Workspace format.", 0);
    }
    settings.Serialize(archive);
    dataFiles.Serialize(archive);
    boundaries.Serialize(archive);
    SerializePages(archive);
}

void Workspace::SerializePages(Archive& archive) {
    if (archive.isStoring()) {
        const bool changed =
            std::any_of(pages.begin(), pages.end(), [](const PageAtrType& page) { return !(page == PageAtrType{}); });
        // A tail that is no page block would be read as one if pages stood before it, so it comes first as it did.
        if (pagesLoaded_ || (changed && tail_.empty())) {
            pages.Serialize(archive);
        }
        archive.append(tail_);
        return;
    }
    std::vector<std::byte> rest = archive.takeRest();
    std::uint16_t count = 0;
    if (rest.size() >= sizeof count) {
        std::memcpy(&count, rest.data(), sizeof count);
    }
    if (count == kStageCount) {
        Archive block = Archive::loading(rest);
        SPageAtrArray loaded;
        try {
            loaded.Serialize(block);
        } catch (const ArchiveError& error) {
            throw EndOfFileError(archive.offset() - rest.size() + error.offset());
        }
        pages = std::move(loaded);
        pagesLoaded_ = true;
        rest = block.takeRest();
    }
    tail_ = std::move(rest);
}

}  // namespace vorlan
