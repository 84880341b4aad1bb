#include "model/SSvmSet.h"

#include "model/StoreValue.h"

namespace vorlan {

void SSvmSet::Build(const SAdvSet& set) {
    files_.clear();
    for (const SAdvFile& file : set.files) {
        SSvmFile volumes;
        volumes.name = file.fileName.substr(file.fileName.rfind('\\') + 1);
        for (const SAdvProbe& probe : file.probes) {
            volumes.x.Add(truncateToInt32(probe.samplingVolumeX));
            volumes.y.Add(truncateToInt32(probe.samplingVolumeY));
            volumes.z.Add(truncateToInt32(probe.samplingVolumeZ));
        }
        files_.push_back(std::move(volumes));
    }
}

}  // namespace vorlan
