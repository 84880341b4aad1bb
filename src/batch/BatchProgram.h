#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace vorlan {

/// The program: arguments without its own name; returns its exit status. Progress is shown when err is the terminal's.
int runBatch(std::vector<std::string> args, std::ostream& out, std::ostream& err);

}  // namespace vorlan
