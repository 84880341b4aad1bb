#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// Faults of the system at chosen calls of this process.
namespace vorlan::test {

/// A call of the system on a file of the watched folder.
struct SystemCall {
    std::string name;
    int flags = 0;  ///< of open
};

/// What a call does instead of its work: fails with an error number, or does a part of it.
struct Fault {
    int call = -1;                ///< index among the calls on the folder; -1 none
    int error = 0;                ///< 0: half of what was asked for is read or written
    std::function<void()> first;  ///< what another program does before the call, which then goes well
};

/// From now on calls on files below the folder are told, and one of them goes wrong.
void watchCalls(const std::filesystem::path& folder, const Fault& fault = {});
/// The calls since then; nothing is watched any more.
std::vector<SystemCall> watchedCalls();

}  // namespace vorlan::test
