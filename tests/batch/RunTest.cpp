// What sessions cannot say: damaged workspaces, another program at the same moment, the measured record.
#include "batch/BatchTest.h"
#include "batch/WorkspaceAccess.h"
#include "recipes/RunError.h"

namespace vorlan {

namespace {

using RunTest = BatchTest;

TEST_F(RunTest, ColumnsThatDoNotFitTogetherAreRefusedByTheNameOfTheWorkspace) {
    const std::string input = path("damaged.avp");
    done({"run", "--recipe", write("s.toml", "[[step]]\ndo = \"spectral\"\nlags = 50\n"), "--out", input,
          simulated("a.avp")});
    Workspace workspace = openWorkspace(input);
    SAdvProbe& damaged = workspace.dataFiles.files.ElementAt(0).probes.ElementAt(0);
    damaged.seriesV.spectrum = SArray();
    damaged.workTables[0].ElementAt(2) = SArray();
    saveWorkspace(workspace, input);
    const std::string recipe =
        write("e.toml", "[[step]]\ndo = \"export\"\nkind = \"velocities\"\nout = \"" + path("e.dat") + "\"\n");
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"export", "spectral", "--out", path("e.dat"), input},
          {"export", "velocities", "--out", path("e.dat"), input},
          {"run", "--recipe", recipe, input}}) {
        const Result result = run(arguments);
        EXPECT_EQ(result.status, 1) << arguments[1];
        EXPECT_TRUE(holds(result.err, input + ": "));
        EXPECT_TRUE(holds(result.err, "Encountered an improper argument."));
    }
    EXPECT_FALSE(std::filesystem::exists(path("e.dat")));
    for (const char* stage : {"pre-processing", "spectral", "vectors"}) {
        done({"render", "--stage", stage, "--size", "320x240", "--out", path("e.png"), input});
    }
}

TEST_F(RunTest, WhatAnyOtherProgramHasWrittenIsNotSavedOver) {
    SilentPort port;
    CVorl_ADVDoc document(port);
    std::ostringstream messages;
    Console console{messages, messages, false};
    WorkspaceUpdate update(document, simulated("a.avp"), console);
    write("a.avp", "new");
    EXPECT_THROW(update.save(), RunError);
    EXPECT_EQ(read(path("a.avp")), "new");
}

TEST_F(RunTest, TheMeasuredRecordGoesThrough) {
    const char* const table = std::getenv("VORLAN_MEASURED_RECORD");
    if (table == nullptr) {
        GTEST_SKIP() << "VORLAN_MEASURED_RECORD names no table";
    }
    done({"import", "--out", path("t.avp"), "--interval", "0.03125", table});
    const SAdvProbe probe = probeOf(openWorkspace(path("t.avp")));
    EXPECT_EQ(probe.WorkingSamples(), 32000);
    EXPECT_NEAR(probe.VelocityMoments(0).mean, -93.0, 0.2);
    // The table has one decimal: what was stored comes out again.
    const std::string exported = done({"export", "velocities", "--out", "-", path("t.avp")});
    EXPECT_EQ(exported.substr(0, exported.find('\n')), "-75.40 4.00 -6.70");
    EXPECT_EQ(std::count(exported.begin(), exported.end(), '\n'), 32000);
}

}  // namespace

}  // namespace vorlan
