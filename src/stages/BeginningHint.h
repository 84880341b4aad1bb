#pragma once

#include "model/Stages.h"
#include "plot/PaneContent.h"

namespace vorlan {

/// What a pane of an empty workspace shows: one of the ways to begin.
PaneMessage beginningHint(Pane pane);

}  // namespace vorlan
