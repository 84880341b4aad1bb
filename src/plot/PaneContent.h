#pragma once

#include <variant>

#include "plot/Diagram.h"

namespace vorlan {

/// What a pane shows: nothing, one line, a diagram, a table or lines of text. All texts are UTF-8. One description
/// serves the window, the printer, the clipboard and files.
using PaneContent = std::variant<std::monostate, PaneMessage, Diagram, TableContent, TextPanel>;

}  // namespace vorlan
