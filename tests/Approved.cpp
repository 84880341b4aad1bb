#include "Approved.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace vorlan::test {

namespace {

std::filesystem::path pathOf(const std::string& name) {
    return std::filesystem::path(VORLAN_APPROVED) / (name + ".txt");
}

void write(const std::filesystem::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

}  // namespace

std::string approvedText(const std::string& name) {
    std::ifstream stream(pathOf(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string changeOfApproved(const std::string& name, std::string text) {
    // The sign of what is not a number is the processor's.
    for (std::size_t at = 0; (at = text.find("-nan", at)) != std::string::npos;) {
        text.erase(at, 1);
    }
    const std::filesystem::path approved = pathOf(name);
    if (std::getenv("VORLAN_APPROVE") != nullptr) {
        write(approved, text);
        return {};
    }
    if (approvedText(name) == text) {
        return {};
    }
    const std::filesystem::path received =
        std::filesystem::temp_directory_path() / ("vorlan-" + name + "-" + std::to_string(::getpid()));
    write(received, text);
    std::string lines = approved.string() + " is not what the program says now (./approve renews it):\n";
    const std::string command =
        "diff -u --label approved --label now '" + approved.string() + "' '" + received.string() + "' 2>&1";
    if (FILE* diff = ::popen(command.c_str(), "r")) {
        char part[4096];
        for (std::size_t size = 0; (size = std::fread(part, 1, sizeof part, diff)) > 0;) {
            lines.append(part, size);
        }
        ::pclose(diff);
    }
    std::filesystem::remove(received);
    return lines;
}

}  // namespace vorlan::test
