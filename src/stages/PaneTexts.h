#pragma once

#include "plot/PaneContent.h"

namespace vorlan {

/// Turns the texts of what a pane shows into UTF-8. Those of the workspace are bytes of either encoding; a describer
/// hands them on as they are stored. Fonts keep their bytes: a font's name is decoded where the platform's is made.
void decodeTexts(PaneContent& content);

}  // namespace vorlan
