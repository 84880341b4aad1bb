// Recipes at work on workspaces.
#include "analysis/SpectralAnalysis.h"
#include "batch/BatchTest.h"
#include "export/Writers.h"

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

TEST_F(RunTest, ARecipeWithoutStepsWritesTheBytesOfTheInput) {
    // A version of its own and bytes behind the workspace: what a save would not repeat.
    std::string bytes = read(simulated("a.avp"));
    bytes.replace(bytes.find("1.59"), 4, "1.41");
    const std::string input = write("a.avp", bytes + "tail");
    EXPECT_EQ(apply("", {"--out", path("b.avp"), input}).status, 0);
    EXPECT_TRUE(sameBytes(read(path("b.avp")), bytes + "tail"));
}

TEST_F(RunTest, SpectralStoresWhatTheDocumentComputes) {
    const std::string input = simulated("a.avp");
    const Workspace workspace =
        applied("[[step]]\ndo = \"spectral\"\nwindow = \"parzen\"\nunit = \"rad/s\"\npercent = 20\n", input);
    EXPECT_EQ(probeOf(workspace).spectralLags, 50U);
    EXPECT_EQ(probeOf(workspace).spectralWindow, 3U);
    EXPECT_EQ(probeOf(workspace).spectralUnit, 1U);
    EXPECT_TRUE(probeOf(workspace).IsDone(DoneMark::Spectral));
    EXPECT_EQ(probeOf(workspace).seriesU.spectrum.GetSize(), 50);
    EXPECT_EQ(workspace.settings.spectral.percent, 20);
    const SAdvProbe byLags =
        probeOf(applied("[[step]]\ndo = \"spectral\"\nwindow = \"parzen\"\nunit = \"rad/s\"\nlags = 50\n", input));
    EXPECT_EQ(byLags, probeOf(workspace));
    EXPECT_EQ(probeOf(applied("[[step]]\ndo = \"spectral\"\n", input)).spectralWindow, 1U);
    EXPECT_EQ(probeOf(applied("[[step]]\ndo = \"spectral\"\nwindow = \"bartlett\"\n", input)).spectralWindow, 2U);
}

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
    EXPECT_EQ(result.settings.meanVelocityMode, 1);
    EXPECT_EQ(result.settings.userMeanVelocity, 25.0);
    EXPECT_TRUE(probeOf(result, 0, 0).IsDone(DoneMark::Spectral));
    EXPECT_EQ(probeOf(result, 0, 1), probeOf(workspace, 0, 1));
    EXPECT_TRUE(probeOf(result, 0, 2).IsDone(DoneMark::Spectral));
}

TEST_F(RunTest, PreProcessingStepsChangeTheRecord) {
    const std::string input = simulated("a.avp");
    EXPECT_EQ(probeOf(applied("[[step]]\ndo = \"clip\"\nfrom = 2\nto = 6\n", input)).WorkingSamples(), 100);
    EXPECT_EQ(probeOf(applied("[[step]]\ndo = \"clip\"\nfrom = 6\nto = 2\n", input)).WorkingSamples(), 0);
    // Back on the stage that offers it, whatever the step before has shown.
    const SAdvProbe reset = probeOf(applied(
        "[[step]]\ndo = \"clip\"\nfrom = 0\nto = 4\n" + std::string(kSpectral) + "[[step]]\ndo = \"reset\"\n", input));
    EXPECT_EQ(reset.WorkingSamples(), 250);
    EXPECT_EQ(reset.seriesU.values.GetSize(), 250);
    const SAdvProbe turned =
        probeOf(applied("[[step]]\ndo = \"rotate\"\nheading = 90\nposition = [1, 0, -2]\n", input));
    const SAdvProbe plain = probeOf(openWorkspace(input));
    EXPECT_NEAR(turned.VelocityMoments(1).mean, plain.VelocityMoments(0).mean, 0.01);
    EXPECT_EQ(turned.samplingVolumeZ, -2000.0);
    EXPECT_EQ(probeOf(applied("[[step]]\ndo = \"rotate\"\n", input)).samplingVolumeX, plain.samplingVolumeX);
    EXPECT_EQ(probeOf(applied("[[step]]\ndo = \"filter\"\nhalf_width = 1\n", input)).WorkingSamples(), 200);
}

TEST_F(RunTest, EditHandsItsCriteriaOver) {
    const std::string input = simulated("a.avp");
    const Workspace result = applied(
        "[[step]]\ndo = \"edit\"\ncorrelation = \"minimum\"\ncorrelation_threshold = 88\n"
        "snr = \"average\"\nvelocity_threshold = 2\ntreatment = \"remove\"\n",
        input);
    const WorkspaceSettings& s = result.settings;
    EXPECT_TRUE(s.editing.correlation.on);
    EXPECT_EQ(s.editing.correlation.statistic, ScoreStatistic::Minimum);
    EXPECT_EQ(s.editing.correlation.minimumThreshold, 88.0);
    EXPECT_EQ(s.editing.correlation.averageThreshold, 70.0);
    EXPECT_TRUE(s.editing.signalToNoise.on);
    EXPECT_EQ(s.editing.signalToNoise.averageThreshold, 10.0);
    EXPECT_FALSE(s.editing.spikeFilter);
    EXPECT_TRUE(s.editing.velocityTest);
    EXPECT_EQ(s.editing.velocityThreshold, 2.0);
    EXPECT_FALSE(probeOf(result).UsesAllSamples());
}

TEST_F(RunTest, RepeatAnswersTheQuestionAboutDoneStages) {
    const std::string recipe = std::string(kSpectral) + "[[step]]\ndo = \"clip\"\nfrom = 0\nto = 8\n";
    const std::string input = simulated("a.avp");
    EXPECT_EQ(apply(recipe, {"--out", path("yes.avp"), input}).status, 0);
    EXPECT_EQ(apply(recipe, {"--out", path("no.avp"), "--repeat", "no", input}).status, 0);
    EXPECT_EQ(apply(kSpectral, {"--out", path("before.avp"), input}).status, 0);
    const SAdvProbe yes = probeOf(openWorkspace(path("yes.avp")));
    const SAdvProbe no = probeOf(openWorkspace(path("no.avp")));
    EXPECT_EQ(yes.seriesU.values.GetSize(), 200);
    EXPECT_EQ(no.seriesU, probeOf(openWorkspace(path("before.avp"))).seriesU);
    EXPECT_EQ(no.WorkingSamples(), 200);
    SAdvProbe again = no;
    // The clipped record analysed anew is what repeating gives.
    EXPECT_EQ(apply(kSpectral, {"--out", path("again.avp"), path("no.avp")}).status, 0);
    EXPECT_EQ(probeOf(openWorkspace(path("again.avp"))).seriesU, yes.seriesU);
}

TEST_F(RunTest, ExportsAndPicturesTakeTheirNamesFromTheProbe) {
    const std::string input = withProbes("sea.avp", 2);
    const std::string recipe =
        std::string(kSpectral) +
        "[[step]]\ndo = \"export\"\nkind = \"velocities\"\ntime = true\n"
        "separator = \"comma\"\nout = \"" +
        path("{workspace}-{file}-{probe}.dat") +
        "\"\n"
        "[[step]]\ndo = \"render\"\nstage = \"spectral\"\npane = \"left-top\"\nsize = \"200x150\"\nout = \"" +
        path("{probe}.svg") + "\"\n";
    const Result result = apply(recipe, {input});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(names(),
              (std::vector<std::string>{"1.svg", "2.svg", "recipe.toml", "sea-1-1.dat", "sea-1-2.dat", "sea.avp"}));
    const Workspace workspace = openWorkspace(input);
    std::ostringstream expected;
    writeVelocities(expected, {workspace.dataFiles.files.GetAt(0).fileName, 2, probeOf(workspace, 0, 1)},
                    {.header = false, .time = true, .separator = Separator::Comma});
    EXPECT_EQ(read(path("sea-1-2.dat")), expected.str());
    EXPECT_TRUE(holds(read(path("2.svg")), "<svg"));
    EXPECT_FALSE(probeOf(workspace).IsDone(DoneMark::Spectral));
}

TEST_F(RunTest, SeveralInputsRunOnWhenOneFailsAndTheWorstStatusCounts) {
    const std::string a = simulated("a.avp");
    const std::string bad = write("bad.avp", "no");
    const std::string c = simulated("c.avp");
    const std::string expected = [&] {
        EXPECT_EQ(apply(kSpectral, {"--out", path("expected.avp"), c}).status, 0);
        return read(path("expected.avp"));
    }();
    std::filesystem::create_directory(path("out"));
    for (const char* jobs : {"1", "2", "8"}) {
        std::filesystem::remove(path("out/c.avp"));
        const Result result = apply(kSpectral, {"--out-dir", path("out"), "--jobs", jobs, a, bad, c});
        EXPECT_EQ(result.status, 3) << jobs;
        EXPECT_TRUE(holds(result.err, bad));
        EXPECT_TRUE(sameBytes(read(path("out/c.avp")), expected));
        EXPECT_FALSE(std::filesystem::exists(path("out/bad.avp")));
    }
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

}  // namespace

}  // namespace vorlan
