#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "batch/BatchProgram.h"
#include "io/TempFolder.h"
#include "io/WorkspaceFile.h"

namespace vorlan {

/// Runs the program in a folder of its own.
class BatchTest : public ::testing::Test {
  protected:
    struct Result {
        int status;
        std::string out;
        std::string err;
    };

    std::string path(const std::string& name) const { return (folder_ / name).string(); }

    static Result run(const std::vector<std::string>& arguments) {
        std::ostringstream out;
        std::ostringstream err;
        const int status = runBatch(arguments, out, err);
        return {status, out.str(), err.str()};
    }
    /// A run that has to succeed.
    static std::string done(const std::vector<std::string>& arguments) {
        const Result result = run(arguments);
        EXPECT_EQ(result.status, 0) << result.err;
        return result.out;
    }

    std::string write(const std::string& name, const std::string& text) const {
        test::spill(path(name), text);
        return path(name);
    }
    static std::string read(const std::string& file) { return test::slurp(file); }
    /// Names in the folder, sorted.
    std::vector<std::string> names() const {
        std::vector<std::string> list;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
            list.push_back(entry.path().filename().string());
        }
        std::sort(list.begin(), list.end());
        return list;
    }

    /// A workspace with one noisy probe of 250 samples.
    std::string simulated(const std::string& name, const std::string& seed = "1") const {
        done({"simulate", "--out", path(name), "--length", "10", "--noise-variance", "3,2,1", "--seed", seed});
        return path(name);
    }
    /// A workspace with one data file of several such probes.
    std::string withProbes(const std::string& name, int probes) const {
        Workspace workspace = openWorkspace(simulated(name));
        SAdvProbesArray& list = workspace.dataFiles.files.ElementAt(0).probes;
        for (int i = 1; i < probes; ++i) {
            list.Add(list.GetAt(0));
            list.ElementAt(i).probeNumber = static_cast<std::uint32_t>(i) + 1;
        }
        saveWorkspace(workspace, path(name));
        return path(name);
    }

    static const SAdvProbe& probeOf(const Workspace& workspace, int file = 0, int probe = 0) {
        return workspace.dataFiles.files.GetAt(file).probes.GetAt(probe);
    }

  private:
    test::TempFolder folder_;
};

/// True when the text holds the part; the failure shows the text.
inline ::testing::AssertionResult holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos ? ::testing::AssertionSuccess()
                                                : ::testing::AssertionFailure() << "no \"" << part << "\" in:\n"
                                                                                << text;
}

/// For workspaces and pictures: a failure does not print them.
inline ::testing::AssertionResult sameBytes(const std::string& a, const std::string& b) {
    return a == b ? ::testing::AssertionSuccess()
                  : ::testing::AssertionFailure() << "two contents of " << a.size() << " and " << b.size() << " bytes";
}

}  // namespace vorlan
