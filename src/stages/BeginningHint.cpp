#include "stages/BeginningHint.h"

#include <array>

#include "model/Index.h"

namespace vorlan {

PaneMessage beginningHint(Pane pane) {
    constexpr std::array<const char*, kPaneCount> hints = {
        "Open a workspace: File, Open... (Ctrl+O)",
        "Or drop a workspace or a table onto this window",
        "Bring a record in from a table: File, Import Table...",
        "Make a synthetic record: Tools, Simulate Time Series...",
    };
    return PaneMessage{hints.at(asSize(pane))};
}

}  // namespace vorlan
