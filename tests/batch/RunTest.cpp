// Recipes at work on workspaces.
#include "batch/BatchTest.h"

namespace vorlan {

namespace {

constexpr const char* kSpectral = "[[step]]\ndo = \"spectral\"\nlags = 50\n";

class RunTest : public BatchTest {
  protected:
    Result apply(const std::string& recipe, const std::vector<std::string>& rest) const {
        std::vector<std::string> arguments = {"run", "--recipe", write("recipe.toml", recipe)};
        arguments.insert(arguments.end(), rest.begin(), rest.end());
        return run(arguments);
    }
    /// The workspace that a recipe makes of one input.
    Workspace applied(const std::string& recipe, const std::string& input) const {
        const Result result = apply(recipe, {"--out", path("applied.avp"), input});
        EXPECT_EQ(result.status, 0) << result.err;
        return openWorkspace(path("applied.avp"));
    }
};

TEST_F(RunTest, SelectionEndsAsItWasLoadedAndSettingsAsTheStepsLeaveThem) {
    Workspace workspace = openWorkspace(withProbes("a.avp", 3));
    workspace.settings.activeFile = 0;
    workspace.settings.activeProbe = 1;
    workspace.settings.activeItem = 0;
    workspace.settings.previousFile = 5;
    workspace.settings.previousProbe = 6;
    workspace.settings.previousItem = 7;
    saveWorkspace(workspace, path("a.avp"));
    const Workspace result = applied(
        "probes = [1, 3]\n[[step]]\ndo = \"spectral\"\nlags = 20\n[[step]]\n"
        "do = \"mean-velocity\"\nmode = \"user\"\nvalue = 25\n",
        path("a.avp"));
    EXPECT_EQ(result.settings.activeFile, 0);
    EXPECT_EQ(result.settings.activeProbe, 1);
    EXPECT_EQ(result.settings.activeItem, 0);
    EXPECT_EQ(result.settings.previousFile, 5);
    EXPECT_EQ(result.settings.previousProbe, 6);
    EXPECT_EQ(result.settings.previousItem, 7);
    EXPECT_EQ(result.settings.spectral.lags, 20);
    EXPECT_EQ(result.settings.spectral.truncationMode, 1);
    EXPECT_EQ(result.settings.meanVelocity, (MeanVelocitySettings{MeanVelocityMode::User, 25.0}));
    EXPECT_TRUE(probeOf(result, 0, 0).IsDone(DoneMark::Spectral));
    EXPECT_EQ(probeOf(result, 0, 1), probeOf(workspace, 0, 1));
    EXPECT_TRUE(probeOf(result, 0, 2).IsDone(DoneMark::Spectral));
}

TEST_F(RunTest, JobsKeepLinesWholeAndOutputsInTheOrderOfTheInputs) {
    std::vector<std::string> rest = {"--jobs", "4", "--progress"};
    std::string expected;
    for (int i = 0; i < 9; ++i) {
        rest.push_back(simulated("w" + std::to_string(i) + ".avp", std::to_string(i)));
        expected += done({"export", "velocities", "--out", "-", rest.back()});
    }
    const Result result =
        apply(std::string(kSpectral) + "[[step]]\ndo = \"export\"\nkind = \"velocities\"\nout = \"-\"\n", rest);
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, expected);
    std::istringstream lines(result.err);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        EXPECT_TRUE(holds(line, ": data file 1, probe 1, step 1 (spectral): ")) << line;
        EXPECT_EQ(line.find(path("w")), 0U) << line;
        EXPECT_EQ(line.find(".avp:", line.find(".avp:") + 1), std::string::npos) << line;
    }
    EXPECT_GT(count, 9 * 10);
    EXPECT_EQ(names().size(), 10U);
}

TEST_F(RunTest, ColumnsThatDoNotFitTogetherAreRefusedByTheNameOfTheWorkspace) {
    Workspace workspace = applied(kSpectral, simulated("a.avp"));
    SAdvProbe& damaged = workspace.dataFiles.files.ElementAt(0).probes.ElementAt(0);
    damaged.seriesV.spectrum = SArray();
    damaged.workTables[0].ElementAt(2) = SArray();
    const std::string input = path("damaged.avp");
    saveWorkspace(workspace, input);
    const std::string recipe = write(
        "e.toml", "probes = [1]\n[[step]]\ndo = \"export\"\nkind = \"velocities\"\nout = \"" + path("e.dat") + "\"\n");
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

}  // namespace

}  // namespace vorlan
