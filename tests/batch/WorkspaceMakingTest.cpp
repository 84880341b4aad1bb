// new, simulate, import and info.
#include <nlohmann/json.hpp>

#include "app/CVorl_ADVDoc.h"
#include "batch/BatchTest.h"

namespace vorlan {

namespace {

using nlohmann::json;

class WorkspaceMakingTest : public BatchTest {
  protected:
    json info(const std::string& file) const { return json::parse(done({"info", "--json", file})); }
    std::string simulatedByDocument(const SimulationParameters& parameters, std::uint64_t seed) const {
        SilentPort port;
        CVorl_ADVDoc document(port);
        document.SimulateTimeSeries(parameters, seed);
        document.SelectProbe(0);
        document.SaveWorkspace(path("document.avp"));
        return read(path("document.avp"));
    }
};

TEST_F(WorkspaceMakingTest, NewIsTheEmptyWorkspace) {
    done({"new", path("a.avp")});
    Workspace empty;
    saveWorkspace(empty, path("b.avp"));
    EXPECT_TRUE(sameBytes(read(path("a.avp")), read(path("b.avp"))));
    const json object = info(path("a.avp"));
    EXPECT_EQ(object["version"], "Version 1.59");
    EXPECT_EQ(object["activeFile"], -1);
    EXPECT_EQ(object["activeProbe"], -1);
    EXPECT_EQ(object["files"], json::array());
}

TEST_F(WorkspaceMakingTest, SimulateTakesTheDialogsDefaults) {
    done({"simulate", "--out", path("a.avp"), "--seed", "7"});
    EXPECT_TRUE(sameBytes(read(path("a.avp")), simulatedByDocument({}, 7)));
    const Workspace workspace = openWorkspace(path("a.avp"));
    EXPECT_EQ(workspace.settings.activeFile, 0);
    EXPECT_EQ(workspace.settings.activeProbe, 0);
}

TEST_F(WorkspaceMakingTest, SimulateHandsEveryOptionOver) {
    done({"simulate",   "--out",      path("a.avp"),  "--name",     "wave",
          "--interval", "0.1",        "--length",     "5",          "--correlation",
          "80",         "--snr",      "20",           "--compass",  "359,-30,30",
          "--mean",     "-10,20,30",  "--noise-mean", "1,2,3",      "--noise-variance",
          "-1,0,4",     "--harmonic", "U:5:2:90",     "--harmonic", "u:1:0.5:0",
          "--harmonic", "w:3:1:10",   "--position",   "1,-2,0.5",   "--seed",
          "3"});
    SimulationParameters p;
    p.fileName = "wave";
    p.samplingInterval = 0.1;
    p.length = 5;
    p.correlation = 80;
    p.signalToNoise = 20;
    p.compass = true;
    p.heading = 359;
    p.pitch = -30;
    p.roll = 30;
    p.whiteNoise = true;
    p.harmonicCount = 2;
    p.components = {{{-10, 1, -1, {{5, 2, 90}, {1, 0.5, 0}}}, {20, 2, 0, {{}, {}}}, {30, 3, 4, {{3, 1, 10}, {}}}}};
    p.position = {1, -2, 0.5};
    EXPECT_TRUE(sameBytes(read(path("a.avp")), simulatedByDocument(p, 3)));
}

TEST_F(WorkspaceMakingTest, SeedsDecideTheRecordAndAppendKeepsWhatIsThere) {
    simulated("a.avp", "5");
    simulated("b.avp", "5");
    simulated("c.avp", "6");
    EXPECT_TRUE(sameBytes(read(path("a.avp")), read(path("b.avp"))));
    EXPECT_FALSE(sameBytes(read(path("a.avp")), read(path("c.avp"))));
    done({"simulate", "--out", path("a.avp"), "--append", "--name", "second"});
    const Workspace both = openWorkspace(path("a.avp"));
    ASSERT_EQ(both.dataFiles.files.GetSize(), 2);
    EXPECT_EQ(both.dataFiles.files.GetAt(0), openWorkspace(path("b.avp")).dataFiles.files.GetAt(0));
    EXPECT_EQ(both.dataFiles.files.GetAt(1).fileName, "second");
    EXPECT_EQ(both.settings.activeFile, 1);
    EXPECT_EQ(run({"simulate", "--out", path("none.avp"), "--append"}).status, 3);
    EXPECT_FALSE(std::filesystem::exists(path("none.avp")));
}

TEST_F(WorkspaceMakingTest, ImportStoresWhatTheTableHolds) {
    const std::string table = write("tide.csv", "# measured\nw;u;v;cor1;extra\n1.5;-10.25;2;90;x\n3;-11;2.5;80;y\n");
    const Result result =
        run({"import", "--out", path("a.avp"), "--interval", "0.5", "--position", "0,1,-0.25", table});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(holds(result.err, "\"extra\" is not used"));
    const Workspace workspace = openWorkspace(path("a.avp"));
    EXPECT_EQ(workspace.dataFiles.files.GetAt(0).fileName, "tide");
    const SAdvProbe& probe = probeOf(workspace);
    EXPECT_EQ(probe.sampledTables[SAdvProbe::kVelocities].GetAt(0).Values(), (std::vector<double>{-10.25, -11}));
    EXPECT_EQ(probe.workTables[SAdvProbe::kCorrelation].GetAt(0).Values(), (std::vector<double>{90, 80}));
    EXPECT_EQ(probe.workTables[SAdvProbe::kCorrelation].GetAt(1).Values(), (std::vector<double>{100, 100}));
    EXPECT_EQ(probe.workTables[SAdvProbe::kSignalToNoise].GetAt(2).Values(), (std::vector<double>{30, 30}));
    EXPECT_EQ(probe.samplingVolumeZ, -250.0);
    EXPECT_EQ(probe.samplingInterval, 0.5);
}

TEST_F(WorkspaceMakingTest, ImportMakesFilesOrProbesOfSeveralTables) {
    const std::string one = write("one.txt", "1 2 3\n4 5 6\n");
    const std::string two = write("two.txt", "7 8 9 0\n");
    done({"import", "--out", path("a.avp"), "--interval", "1", "--columns", "u,v,w", "--resolution", "0.5", one});
    EXPECT_EQ(probeOf(openWorkspace(path("a.avp"))).sampledTables[0].GetAt(0).GetScale(), 0.5);
    done({"import", "--out", path("a.avp"), "--append", "--interval", "1", "--columns", "-,u,v,w", two});
    EXPECT_EQ(openWorkspace(path("a.avp")).dataFiles.files.GetSize(), 2);
    EXPECT_EQ(openWorkspace(path("a.avp")).settings.activeFile, 1);
    done({"import", "--out", path("b.avp"), "--interval", "1", "--columns", "u,v,w", "--as-probes", "--name", "both",
          one, one});
    const Workspace both = openWorkspace(path("b.avp"));
    ASSERT_EQ(both.dataFiles.files.GetSize(), 1);
    EXPECT_EQ(both.dataFiles.files.GetAt(0).fileName, "both");
    EXPECT_EQ(both.dataFiles.files.GetAt(0).probes.GetSize(), 2);
    EXPECT_EQ(probeOf(both, 0, 1).probeNumber, 2U);
}

TEST_F(WorkspaceMakingTest, ImportTellsFileLineAndColumnOfAFault) {
    const std::string table = write("bad.csv", "u,v,w\n1,2,3\n1,x,3\n");
    const std::string old = write("old.avp", "precious");
    const Result result = run({"import", "--out", old, "--interval", "1", table});
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(holds(result.err, table + ":3:2: "));
    EXPECT_EQ(read(old), "precious");
    const std::string gap = write("gap.csv", "u,v,w\n1,2,3\nnan,2,3\n3,2,3\n");
    EXPECT_TRUE(holds(run({"import", "--out", old, "--interval", "1", gap}).err, gap + ":3:1: "));
    EXPECT_EQ(read(old), "precious");
    done({"import", "--out", old, "--interval", "1", "--missing", "mark", gap});
    EXPECT_EQ(probeOf(openWorkspace(old)).sampledTables[0].GetAt(0).Values(), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(info(old)["files"][0]["probes"][0]["validSamples"], 2);
    EXPECT_EQ(run({"import", "--out", old, "--interval", "1", path("none.csv")}).status, 3);
}

TEST_F(WorkspaceMakingTest, InfoTellsTheModelInJson) {
    Workspace workspace = openWorkspace(withProbes("a.avp", 2));
    SAdvFile& file = workspace.dataFiles.files.ElementAt(0);
    file.fileName = "M\xFCndung";
    SAdvProbe& probe = file.probes.ElementAt(1);
    probe.title = "clean";
    probe.zoomMode = 1;
    probe.useAllSamples = 0;
    probe.sampleFlags.SetAt(3, 0);
    probe.sampleFlags.SetAt(4, 2);
    probe.samplingVolumeY = 1500.0;
    probe.stageDone = {1, 0, 1, 0, 0, 1};
    probe.SetVelocityMoments(1, {1.5, 2.5, std::numeric_limits<double>::quiet_NaN(), 4.5});
    probe.SetStressMoments(2, {-1, std::numeric_limits<double>::infinity(), 3, 4});
    probe.spectralLags = 25;
    probe.spectralWindow = 1;
    probe.spectralUnit = 1;
    probe.resultBlock = {0.5, 1, 2, 3, 4, 5, 6};
    for (int i = 0; i < 50; ++i) {
        probe.workTables[SAdvProbe::kVelocities].ElementAt(0).RemoveAt(0);
    }
    workspace.settings.activeProbe = 1;
    saveWorkspace(workspace, path("a.avp"));

    const json object = info(path("a.avp"));
    EXPECT_EQ(object["activeFile"], 0);
    EXPECT_EQ(object["activeProbe"], 1);
    EXPECT_EQ(object["files"][0]["name"], "M\xC3\xBCndung");
    EXPECT_EQ(object["files"][0]["probes"].size(), 2U);
    const json expected = {
        {"number", 2},
        {"samples", 250},
        {"workingSamples", 200},
        {"interval", 0.04},
        {"title", "clean"},
        {"zoomMode", 1},
        {"useAllSamples", 0},
        {"validSamples", 199},
        {"stageDone", {1, 0, 1, 0, 0, 1}},
        {"position", {0.0, 1.5, 0.0}},
        {"spectral", {{"lags", 25}, {"window", 1}, {"unit", 1}}},
        {"results", {{"dissipation", 0.5}, {"timeScales", {1.0, 2.0, 3.0}}, {"spectrumIntegrals", {4.0, 5.0, 6.0}}}}};
    json found = object["files"][0]["probes"][1];
    EXPECT_EQ(found["moments"][1], (json{{"mean", 1.5}, {"variance", 2.5}, {"skewness", nullptr}, {"kurtosis", 4.5}}));
    EXPECT_EQ(found["moments"][0]["mean"], probe.VelocityMoments(0).mean);
    EXPECT_EQ(found["moments"].size(), 3U);
    EXPECT_EQ(found["stressMoments"][2]["variance"], nullptr);
    EXPECT_EQ(found["stressMoments"][2]["mean"], -1);
    found.erase("moments");
    found.erase("stressMoments");
    EXPECT_EQ(found, expected);

    const std::string text = done({"info", path("a.avp")});
    EXPECT_TRUE(holds(text, "Data file 1: M\xC3\xBCndung"));
    EXPECT_TRUE(holds(text, "Probe 2: 250 samples at 0.04 s (10 s)"));
    EXPECT_TRUE(holds(text, "200 samples, 199 valid"));
    EXPECT_TRUE(holds(text, "Spectral Analysis (25 lags, Tukey window, rad/s)"));
}

TEST_F(WorkspaceMakingTest, WorkspacesThatCannotBeReadEndWithThree) {
    const std::string whole = read(simulated("whole.avp"));
    const std::string text = write("text.avp", "\x05hello world, this is no workspace");
    const std::string cut = write("cut.avp", whole.substr(0, whole.size() / 2));
    const std::string nothing = write("nothing.avp", "");
    std::filesystem::create_directory(path("folder.avp"));
    for (const std::string& input : {text, cut, nothing, path("folder.avp"), path("none.avp")}) {
        for (const std::vector<std::string>& command :
             {std::vector<std::string>{"info"},
              {"info", "--json"},
              {"export", "velocities", "--out", path("o.dat")},
              {"render", "--stage", "pre-processing", "--out", path("o.png")},
              {"run", "--recipe", write("r.toml", ""), "--out", path("o.avp")}}) {
            std::vector<std::string> arguments = command;
            arguments.push_back(input);
            const Result result = run(arguments);
            EXPECT_EQ(result.status, 3) << command[0] << " " << input;
            EXPECT_TRUE(holds(result.err, input));
            EXPECT_EQ(result.out, "");
        }
    }
    EXPECT_TRUE(holds(run({"info", text}).err, text + ": Invalid Workspace format."));
    EXPECT_FALSE(std::filesystem::exists(path("o.avp")));
}

TEST_F(WorkspaceMakingTest, ASlipInTheOutputsNameCostsNoFile) {
    const std::string avp = simulated("a.avp");
    const std::string other = simulated("b.avp", "2");
    const std::string table = write("t.csv", "u,v,w\n1,2,3\n4,5,6\n7,8,9\n");
    const std::string recipe = write("r.toml", "[[step]]\ndo = \"reset\"\n");
    // The name is that of a workspace only once the probe is known.
    const std::string third = simulated("c-1.avp", "3");
    const auto exportingTo = [](const std::string& out) {
        return "[[step]]\ndo = \"export\"\nkind = \"velocities\"\nout = \"" + out + "\"\n";
    };
    const std::string exporting = write("e.toml", exportingTo(path("c-{probe}.avp")));
    const std::string twice = write("d.toml", exportingTo(path("d.avp")));
    // Lines that read as texts of as many characters as the code of their first one.
    const std::string remark =
        write("remark.csv", "# Flume run 7, Froude number 0.4, probe down\nu,v,w\n1,2,3\n4,5,6\n");
    const std::string wide = write("wide.csv", "0.0000,1.0000,2.0000,3.0000,4.0000,5.0000,6.0000,7.0000,8.0000\n");
    const std::string named = write("named.avp", "u,v,w\n1,2,3\n4,5,6\n7,8,9\n");
    const std::string noted = write("n.toml", "# Cleaning of run 7: spikes out, then filter\n" + read(recipe));
    const std::string self = write("self.toml", exportingTo(path("self.toml")));
    const std::string before = read(avp);
    const std::string beside = read(other) + read(third);
    const struct {
        std::vector<std::string> arguments;
        std::string named;
    } rows[] = {
        {{"import", "--interval", "1", "--out", table, table}, table},
        {{"simulate", "--out", table}, table},
        {{"new", table}, table},
        {{"run", "--recipe", recipe, "--out", table, avp}, table},
        {{"export", "velocities", "--out", avp, avp}, avp},
        {{"export", "velocities", "--out", other, avp}, other},
        {{"run", "--recipe", exporting, avp}, third},
        {{"run", "--recipe", twice, "--out", path("d.avp"), avp}, path("d.avp")},
        {{"import", "--interval", "1", "--out", remark, remark}, remark},
        {{"new", wide}, wide},
        {{"import", "--interval", "1", "--out", named, named}, named},
        {{"run", "--recipe", noted, "--out", noted, avp}, noted},
        {{"run", "--recipe", self, avp}, self},
    };
    for (const auto& row : rows) {
        const Result result = run(row.arguments);
        EXPECT_EQ(result.status, 2) << row.arguments[0];
        EXPECT_TRUE(holds(result.err, row.named + " is ")) << result.err;
    }
    EXPECT_EQ(read(table), "u,v,w\n1,2,3\n4,5,6\n7,8,9\n");
    EXPECT_EQ(read(avp), before);
    EXPECT_EQ(read(other) + read(third), beside);
    // Workspaces and tables that were made before are replaced by their like, empty files by anything.
    done({"import", "--interval", "1", "--out", write("empty", ""), table});
    done({"export", "velocities", "--out", write("old.dat", "old"), avp});
    done({"run", "--recipe", recipe, "--out", other, avp});
    done({"export", "velocities", "--out", wide, avp});
    done({"export", "velocities", "--out", remark, avp});
}

TEST_F(WorkspaceMakingTest, OutputsThatCannotBeWrittenEndWithFour) {
    const std::string avp = simulated("a.avp");
    const std::string table = write("t.csv", "u,v,w\n1,2,3\n");
    write("file", "");
    const std::string recipe = write("r.toml", "[[step]]\ndo = \"reset\"\n");
    for (const std::string& place :
         {path("file") + "/out", path("missing") + "/out", std::string("/proc/vorlan-out")}) {
        const std::string out = place + ".avp";
        EXPECT_EQ(run({"new", out}).status, 4) << out;
        EXPECT_EQ(run({"simulate", "--out", out}).status, 4) << out;
        EXPECT_EQ(run({"import", "--interval", "1", "--out", out, table}).status, 4) << out;
        EXPECT_EQ(run({"export", "velocities", "--out", out, avp}).status, 4) << out;
        EXPECT_EQ(run({"render", "--stage", "pre-processing", "--out", place + ".png", avp}).status, 4) << out;
        EXPECT_EQ(run({"run", "--recipe", recipe, "--out", out, avp}).status, 4) << out;
    }
    EXPECT_EQ(run({"run", "--recipe", recipe, "--out-dir", path("missing"), avp}).status, 4);
    EXPECT_EQ(run({"export", "velocities", "--out", "/dev/full", avp}).status, 4);
    EXPECT_EQ(names(), (std::vector<std::string>{"a.avp", "file", "r.toml", "t.csv"}));
}

}  // namespace

}  // namespace vorlan
