#include "batch/Console.h"

#include <sstream>

#include "model/Printable.h"

namespace vorlan {

void Console::complain(const std::string& text) {
    std::istringstream lines(text);
    std::string whole;
    for (std::string line; std::getline(lines, line);) {
        whole.append(kBatchName).append(": ").append(printable(line)).append("\n");
    }
    // At once: a terminal's stream writes every piece by itself.
    err << whole << std::flush;
}

}  // namespace vorlan
