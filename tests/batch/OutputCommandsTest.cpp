// export and render.
#include "batch/BatchTest.h"
#include "export/Writers.h"

namespace vorlan {

namespace {

class OutputCommandsTest : public BatchTest {
  protected:
    std::string analysed() const {
        const std::string recipe = write("r.toml", "[[step]]\ndo = \"spectral\"\nlags = 40\n");
        done({"run", "--recipe", recipe, "--out", path("s.avp"), withProbes("in.avp", 2)});
        return path("s.avp");
    }
};

TEST_F(OutputCommandsTest, ExportWritesTheProbeThatIsAskedFor) {
    const std::string input = analysed();
    const Workspace workspace = openWorkspace(input);
    std::ostringstream expected;
    writeSpectral(expected, {"test", 2, probeOf(workspace, 0, 1)},
                  {.header = true, .time = true, .separator = Separator::Tab});
    const std::vector<std::string> arguments = {"export",  "spectral", "--header", "--time", "--separator", "tab",
                                                "--probe", "2",        "--file",   "1",      input,         "--out"};
    std::vector<std::string> toFile = arguments;
    toFile.push_back(path("s.dat"));
    EXPECT_EQ(done(toFile), "");
    EXPECT_EQ(read(path("s.dat")), expected.str());
    std::vector<std::string> toStream = arguments;
    toStream.push_back("-");
    EXPECT_EQ(done(toStream), expected.str());
    EXPECT_TRUE(holds(done({"export", "spectral", "--out", "-", "--header", input}), "PROBE : 1\n"));
}

TEST_F(OutputCommandsTest, ColumnsThatDoNotFitTogetherAreRefusedByTheNameOfTheWorkspace) {
    Workspace workspace = openWorkspace(analysed());
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

TEST_F(OutputCommandsTest, RenderWritesTheFormatOfTheExtension) {
    const std::string input = analysed();
    const std::string before = read(input);
    const struct {
        const char* name;
        const char* head;
    } rows[] = {{"a.png", "\x89PNG"}, {"a.SVG", "<?xml"}, {"a.pdf", "%PDF"}};
    for (const auto& row : rows) {
        done({"render", "--stage", "spectral", "--size", "320x240", "--out", path(row.name), input});
        EXPECT_EQ(read(path(row.name)).substr(0, std::string(row.head).size()), row.head) << row.name;
    }
    // Width and height stand in the picture's header, most significant byte first.
    EXPECT_EQ(read(path("a.png")).substr(16, 8), std::string("\0\0\x01\x40\0\0\0\xF0", 8));
    done({"render", "--stage", "spectral", "--size", "320x240", "--pane", "right-bottom", "--out", path("b.png"),
          input});
    EXPECT_NE(read(path("b.png")), read(path("a.png")));
    done({"render", "--stage", "pre-processing", "--values", "stresses", "--pane", "left-top", "--out", path("c.svg"),
          input});
    EXPECT_TRUE(holds(read(path("c.svg")), "Sampled Stresses"));
    EXPECT_EQ(read(input), before);
}

}  // namespace

}  // namespace vorlan
