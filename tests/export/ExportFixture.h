#pragma once

#include <cstdio>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "export/ExportOptions.h"

namespace vorlan::test {

inline constexpr const char* kSeparators[] = {" ", "\t", ","};

/// All twelve combinations of header, time values and separator.
inline std::vector<ExportOptions> allOptions() {
    std::vector<ExportOptions> all;
    for (const bool header : {false, true}) {
        for (const bool time : {false, true}) {
            for (const Separator separator : {Separator::Space, Separator::Tab, Separator::Comma}) {
                all.push_back({header, time, separator});
            }
        }
    }
    return all;
}

/// One printf per value: the plain way to a row.
inline std::string printed(const char* format, double value) {
    char text[400];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

/// Values with a format each, joined by the separator, and a line feed.
inline std::string plainRow(const std::vector<std::pair<const char*, double>>& values, Separator separator) {
    std::string row;
    for (const auto& [format, value] : values) {
        row += (row.empty() ? "" : kSeparators[static_cast<int>(separator)]) + printed(format, value);
    }
    return row + "\n";
}

inline std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line + "\n");
    }
    return lines;
}

inline SArray randomColumn(std::mt19937& random, int size, double scale) {
    SArray column(scale);
    for (int i = 0; i < size; ++i) {
        column.Add(static_cast<std::int32_t>(random()) >> (random() % 20));
    }
    return column;
}

}  // namespace vorlan::test
