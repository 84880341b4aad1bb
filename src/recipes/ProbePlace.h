#pragma once

#include <string>

#include "app/CVorl_ADVDoc.h"

namespace vorlan {

/// Indexes of a probe, from 0.
struct ProbePlace {
    int file = 0;
    int probe = 0;

    friend bool operator==(const ProbePlace&, const ProbePlace&) = default;
};
/// "data file 1, probe 2".
std::string describe(const ProbePlace& place);

/// Refuses a place that the workspace does not have.
void requireProbe(const Workspace& workspace, const ProbePlace& place);
/// Selects file and probe as clicks on the selectors would, unless they are selected.
void selectPlace(CVorl_ADVDoc& document, const ProbePlace& place);
/// Selects the probe's tab of the stage; false when it has none.
bool selectStage(CVorl_ADVDoc& document, Stage stage);

}  // namespace vorlan
