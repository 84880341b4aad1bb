#include "stages/BeginningHint.h"

#include <array>

#include "model/Index.h"

namespace vorlan {

PaneMessage beginningHint(Pane pane) {
    constexpr std::array<const char*, kPaneCount> hints = {
        "Open a workspace: File, Open... (Ctrl+O)",
        "Or drop a workspace file onto this window",
        "Make a workspace of tables: vorlan-batch import",
        "Make a synthetic record: Tools, Simulate Time Series...",
    };
    return PaneMessage{hints.at(asSize(pane))};
}

}  // namespace vorlan
