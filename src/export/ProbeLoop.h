#pragma once

#include "export/ExportOptions.h"
#include "model/SAdvSet.h"

namespace vorlan {

/// Calls block with every probe of every file, in order.
template <class Block>
void forEachProbe(const SAdvSet& set, Block block) {
    for (const SAdvFile& file : set.files) {
        int position = 1;
        for (const SAdvProbe& probe : file.probes) {
            block(ExportSource{file.fileName, position, probe});
            ++position;
        }
    }
}

}  // namespace vorlan
