// What the command line accepts and what it says about the rest.
#include "batch/BatchTest.h"
#include "batch/TextValues.h"

namespace vorlan {

namespace {

const std::vector<std::string> kSubcommands = {"new", "simulate", "import", "info", "run", "export", "render"};

class UsageTest : public BatchTest {};

TEST_F(UsageTest, EverySubcommandTellsItsHelpAndTheVersion) {
    const std::string help = done({"--help"});
    for (const std::string& name : kSubcommands) {
        EXPECT_TRUE(holds(help, "\n  " + name + " "));
        EXPECT_TRUE(holds(done({name, "--help"}), "vorlan-batch " + name + " [OPTIONS]"));
        EXPECT_EQ(done({name, "--version"}), done({"--version"}));
    }
    EXPECT_EQ(done({"--version"}), "vorlan-batch 1.59\n");
    EXPECT_TRUE(holds(done({"simulate", "--help"}), "0.04 to 100"));
}

TEST_F(UsageTest, WrongCommandLinesEndWithTwoAndNameTheFault) {
    const std::string avp = simulated("a.avp");
    const std::string out = path("out.avp");
    const std::string empty = write("empty.toml", "");
    const struct {
        std::vector<std::string> arguments;
        const char* named;
    } rows[] = {
        {{}, "subcommand"},
        {{"analyse"}, "analyse"},
        {{"new"}, "OUT.avp"},
        {{"new", "-"}, "a file"},
        {{"info", avp, "--xml"}, "--xml"},
        {{"simulate"}, "--out"},
        {{"simulate", "--out", "-"}, "--out"},
        {{"simulate", "--out", out, "--interval", "0.039"}, "--interval: 0.039 is not between 0.04 and 100"},
        {{"simulate", "--out", out, "--interval", "0,04"}, "--interval"},
        {{"simulate", "--out", out, "--interval", "nan"}, "--interval"},
        {{"simulate", "--out", out, "--length", "1000.1"}, "--length"},
        {{"simulate", "--out", out, "--correlation", "-1"}, "--correlation"},
        {{"simulate", "--out", out, "--snr", "51"}, "--snr"},
        {{"simulate", "--out", out, "--compass", "0,31,0"}, "--compass: 31"},
        {{"simulate", "--out", out, "--mean", "1,2"}, "--mean"},
        {{"simulate", "--out", out, "--mean", "1,2,201"}, "--mean: 201"},
        {{"simulate", "--out", out, "--noise-mean", "0,0,0"}, "--noise-variance"},
        {{"simulate", "--out", out, "--harmonic", "x:1:1:0"}, "--harmonic"},
        {{"simulate", "--out", out, "--harmonic", "u:1:1"}, "--harmonic"},
        {{"simulate", "--out", out, "--harmonic", "u:1:0:0"}, "period"},
        {{"simulate", "--out", out, "--harmonic", "u:1:1:361"}, "phase"},
        {{"simulate", "--out", out, "--seed", "-1"}, "--seed"},
        {{"import", "--out", out, avp}, "--interval"},
        {{"import", "--out", out, "--interval", "0", avp}, "--interval: 0 is not above 0"},
        {{"import", "--out", out, "--interval", "1"}, "TABLE"},
        {{"import", "--out", out, "--interval", "1", "--columns", "u,v,speed", avp}, "speed"},
        {{"import", "--out", out, "--interval", "1", "--missing", "skip", avp}, "skip"},
        {{"export", "tables", "--out", out, avp}, "tables"},
        {{"export", "velocities", avp}, "--out"},
        {{"export", "velocities", "--out", "-", "--file", "0", avp}, "--file"},
        {{"export", "velocities", "--out", "-", "--probe", "1.5", avp}, "--probe"},
        {{"export", "velocities", "--out", "-", "--separator", "semicolon", avp}, "semicolon"},
        {{"export", "velocities", "--out", "-", "--all", avp}, "all"},
        {{"render", "--stage", "spectra", "--out", "a.png", avp}, "spectra"},
        {{"render", "--stage", "spectral", "--out", "a.bmp", avp}, "a.bmp"},
        {{"render", "--stage", "spectral", "--out", "-", avp}, "--out"},
        {{"render", "--stage", "spectral", "--pane", "top", "--out", "a.png", avp}, "top"},
        {{"render", "--stage", "spectral", "--size", "0x10", "--out", "a.png", avp}, "--size"},
        {{"run", "--out", out, avp}, "--recipe"},
        {{"run", "--recipe", empty, "--out", out}, "IN.avp"},
        {{"run", "--recipe", empty, avp}, "nothing would be written"},
        {{"run", "--recipe", empty, "--out", out, "--in-place", avp}, "exclude"},
        {{"run", "--recipe", empty, "--out", out, "--jobs", "0", avp}, "--jobs"},
        {{"run", "--recipe", empty, "--out", out, "--repeat", "maybe", avp}, "maybe"},
    };
    const std::vector<std::string> before = names();
    for (const auto& row : rows) {
        const Result result = run(row.arguments);
        const std::string line = ::testing::PrintToString(row.arguments);
        EXPECT_EQ(result.status, 2) << line << result.err;
        EXPECT_TRUE(holds(result.err, row.named)) << line;
        EXPECT_EQ(result.out, "") << line;
    }
    EXPECT_EQ(names(), before);
}

TEST(TextValues, NumbersAreWholeTextsWithAPoint) {
    EXPECT_EQ(parseReal("-2.5e1"), -25.0);
    EXPECT_EQ(parseReal("+3"), 3.0);
    for (const char* text : {"", " 1", "1 ", "1,5", "0x10", "inf", "nan", "1e999", "+-1"}) {
        EXPECT_FALSE(parseReal(text)) << text;
    }
    EXPECT_EQ(parseReals("1,-2,.5", 3), (std::vector<double>{1.0, -2.0, 0.5}));
    EXPECT_FALSE(parseReals("1,2,", 3));
    EXPECT_EQ(componentOfLetter("W"), 2);
    EXPECT_EQ(componentOfLetter("uv"), -1);
    EXPECT_EQ(componentOfLetter(""), -1);
    EXPECT_EQ(parsePictureSize("640x480")->height, 480);
    for (const char* text : {"640", "640x", "x", "640x0", "10001x1", "1x2x3", "-1x5"}) {
        EXPECT_FALSE(parsePictureSize(text)) << text;
    }
}

TEST(TextValues, NamesAreUtf8OrElseWindows1252) {
    EXPECT_EQ(nameAsUtf8("Fl\xC3\xBCgel \xF0\x9F\x8C\x8A"), "Fl\xC3\xBCgel \xF0\x9F\x8C\x8A");
    EXPECT_EQ(nameAsUtf8("Fl\xFCgel \x80\x96"), "Fl\xC3\xBCgel \xE2\x82\xAC\xE2\x80\x93");
    // Cut, overlong, surrogate and too large sequences are no UTF-8.
    EXPECT_EQ(nameAsUtf8("\xC3"), "\xC3\x83");
    EXPECT_EQ(nameAsUtf8("\xC0\xAF"), "\xC3\x80\xC2\xAF");
    EXPECT_EQ(nameAsUtf8("\xED\xA0\x80"), "\xC3\xAD\xC2\xA0\xE2\x82\xAC");
    EXPECT_EQ(nameAsUtf8("\xF4\x90\x80\x80").substr(0, 2), "\xC3\xB4");
}

}  // namespace

}  // namespace vorlan
