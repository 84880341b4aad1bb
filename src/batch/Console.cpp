#include "batch/Console.h"

#include <sstream>

namespace vorlan {

void Console::complain(const std::string& text) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        err << kBatchName << ": " << line << '\n';
    }
    err.flush();
}

}  // namespace vorlan
