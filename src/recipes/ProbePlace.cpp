#include "recipes/ProbePlace.h"

#include "model/Index.h"
#include "recipes/RunError.h"

namespace vorlan {

std::string describe(const ProbePlace& place) {
    return "data file " + std::to_string(place.file + 1) + ", probe " + std::to_string(place.probe + 1);
}

void requireProbe(const Workspace& workspace, const ProbePlace& place) {
    const SAdvFilesArray& files = workspace.dataFiles.files;
    if (place.file < 0 || place.file >= files.GetSize()) {
        throw refusal("there is no data file " + std::to_string(place.file + 1) + ", the workspace has " +
                      std::to_string(files.GetSize()));
    }
    const int probes = files.GetAt(place.file).probes.GetSize();
    if (place.probe < 0 || place.probe >= probes) {
        throw refusal("there is no probe " + std::to_string(place.probe + 1) + ", data file " +
                      std::to_string(place.file + 1) + " has " + std::to_string(probes));
    }
}

void selectPlace(CVorl_ADVDoc& document, const ProbePlace& place) {
    requireProbe(document.GetWorkspace(), place);
    if (document.ActiveFile() != place.file) {
        document.SelectFile(place.file);
    }
    if (document.ActiveProbe() != place.probe) {
        document.SelectProbe(place.probe);
    }
}

bool selectStage(CVorl_ADVDoc& document, Stage stage) {
    const int tab = document.Probe().tabItems.IndexOfStage(asInt(stage));
    if (tab < 0) {
        return false;
    }
    document.SelectStage(tab);
    return true;
}

}  // namespace vorlan
