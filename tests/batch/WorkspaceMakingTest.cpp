// new, simulate and info.
#include "Approved.h"
#include "app/CVorl_ADVDoc.h"
#include "batch/BatchTest.h"

namespace vorlan {

namespace {

class WorkspaceMakingTest : public BatchTest {
  protected:
    std::string simulatedByDocument(const SimulationParameters& parameters, std::uint64_t seed) const {
        SilentPort port;
        CVorl_ADVDoc document(port);
        document.SimulateTimeSeries(parameters, seed);
        document.SelectProbe(0);
        document.SaveWorkspace(path("document.avp"));
        return read(path("document.avp"));
    }
};

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

TEST_F(WorkspaceMakingTest, InfoTellsTheModel) {
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

    std::string text = done({"info", path("a.avp")});
    text.erase(0, path("").size());
    EXPECT_EQ(test::changeOfApproved("info", text + done({"info", "--json", path("a.avp")})), "");
}

TEST_F(WorkspaceMakingTest, ControlCharactersOfNamesReachNoTerminalAndNoPicture) {
    const std::string hostile = "x\x1b[2J\x07\n\x7f\xC2\x9By";
    Workspace workspace = openWorkspace(simulated("a.avp"));
    SAdvFile& file = workspace.dataFiles.files.ElementAt(0);
    file.fileName = hostile;
    SAdvProbe& probe = file.probes.ElementAt(0);
    probe.title = hostile;
    probe.frameAttributes[0].ElementAt(0).plotTitle = hostile;
    const std::string input = path("\x1b[31m.avp");
    saveWorkspace(workspace, input);
    done({"render", "--stage", "pre-processing", "--out", path("a.svg"), input});
    const std::string texts = done({"info", input}) + done({"info", "--json", input}) +
                              run({"export", "spectral", "--out", "-", input}).err + read(path("a.svg"));
    EXPECT_TRUE(holds(texts, "Data file 1: x?[2J????y\n"));
    EXPECT_TRUE(holds(texts, R"("name": "x\u001b[2J\u0007\n\u007f\u009by")"));
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto code = static_cast<unsigned char>(texts[i]);
        EXPECT_TRUE(code == '\n' || (code >= 0x20 && code != 0x7F)) << texts.substr(i < 20 ? 0 : i - 20, 40);
        EXPECT_FALSE(code == 0xC2 && static_cast<unsigned char>(texts[i + 1]) < 0xA0);
    }
}

}  // namespace

}  // namespace vorlan
