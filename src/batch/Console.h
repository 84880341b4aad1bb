#pragma once

#include <ostream>
#include <string>

#include "recipes/ProgramName.h"

namespace vorlan {

/// Where a command writes: what was asked for to out, everything else to err.
struct Console {
    std::ostream& out;
    std::ostream& err;
    bool errIsTerminal = false;

    /// "vorlan-batch: text" on err, for every line of the text. A name in it can hold anything: control characters are
    /// shown as question marks.
    void complain(const std::string& text);
};

}  // namespace vorlan
