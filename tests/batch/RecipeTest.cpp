// Recipes: what their steps take, and the line of every fault.
#include "batch/Recipe.h"

#include "batch/BatchError.h"
#include "batch/BatchTest.h"

namespace vorlan {

namespace {

std::string faultsOf(const std::string& text) {
    try {
        parseRecipe(text, "r.toml");
        return "none";
    } catch (const BatchError& error) {
        EXPECT_EQ(error.status(), ExitStatus::Usage);
        return error.what();
    }
}

TEST(Recipe, StepsTakeTheirDefaults) {
    const Recipe recipe =
        parseRecipe("[[step]]\ndo = \"filter\"\n[[step]]\ndo = \"spectral\"\n[[step]]\ndo = \"quadrants\"\n", "r");
    ASSERT_EQ(recipe.steps.size(), 3U);
    EXPECT_FALSE(recipe.files);
    EXPECT_FALSE(recipe.writesFiles());
    EXPECT_EQ(recipe.steps[0].values.real("half_width"), 10.0);
    EXPECT_EQ(recipe.steps[0].values.choice("shape"), 1);
    EXPECT_EQ(recipe.steps[1].values.choice("window"), 2);
    EXPECT_FALSE(recipe.steps[1].values.has("lags"));
    EXPECT_EQ(recipe.steps[2].values.real("increment"), 0.2);
    EXPECT_EQ(recipe.steps[2].values.choice("stress"), 1);
    EXPECT_EQ(recipe.steps[2].line, 5);
}

TEST(Recipe, AnIntegerServesWhereARealIsWanted) {
    const Recipe recipe = parseRecipe(
        "files = [2]\nprobes = [3, 1]\n[[step]]\ndo = \"clip\"\nfrom = 2\nto = 3.5\n[[step]]\n"
        "do = \"rotate\"\nposition = [1, 2.5, -3]\n",
        "r");
    EXPECT_EQ(recipe.files, std::vector<int>{2});
    EXPECT_EQ(recipe.probes, (std::vector<int>{3, 1}));
    EXPECT_EQ(recipe.steps[0].values.real("from"), 2.0);
    EXPECT_EQ(recipe.steps[1].values.triple("position"), (std::array<double, 3>{1.0, 2.5, -3.0}));
}

TEST(Recipe, ARecipeOfNothingHasNoSteps) {
    EXPECT_TRUE(parseRecipe("", "r").steps.empty());
    EXPECT_TRUE(parseRecipe("# nothing\nstep = []\n", "r").steps.empty());
}

TEST(Recipe, FaultsAreToldWithTheirLine) {
    const struct {
        const char* text;
        const char* fault;
    } rows[] = {
        {"[[step]\ndo = 1", "r.toml:1: "},
        {"files = [1]\nprobe = [1]", "r.toml:2: unknown key \"probe\""},
        {"files = 1", "r.toml:1: \"files\" must be a list"},
        {"files = []", "r.toml:1: \"files\""},
        {"\nprobes = [1, 0]", "r.toml:2: \"probes\""},
        {"probes = [1, 1]", "r.toml:1: \"probes\""},
        {"probes = [1.0]", "r.toml:1: \"probes\""},
        {"[step]\ndo = \"reset\"", "r.toml:1: \"step\" must be a list of tables"},
        {"step = [1]", "r.toml:1: \"step\""},
        {"\n\n[[step]]\n", "r.toml:3: step 1: key \"do\" is missing"},
        {"[[step]]\ndo = 3", "r.toml:2: step 1: \"do\" must be a text"},
        {"[[step]]\ndo = \"despike\"", "r.toml:2: step 1: unknown step \"despike\""},
        {"[[step]]\ndo = \"reset\"\nfrom = 1", "r.toml:3: step 1 (reset): unknown key \"from\""},
        {"[[step]]\ndo = \"reset\"\n[[step]]\n\ndo = \"clip\"\nfrom = 1",
         "r.toml:3: step 2 (clip): key \"to\" is missing"},
        {"[[step]]\ndo = \"clip\"\nfrom = \"a\"\nto = 2", "r.toml:3: step 1 (clip): \"from\" must be a finite number"},
        {"[[step]]\ndo = \"clip\"\nfrom = 1\nto = inf", "r.toml:4: "},
        {"[[step]]\ndo = \"rotate\"\nposition = [1, 2]", "r.toml:3: "},
        {"[[step]]\ndo = \"rotate\"\nposition = [1, 2, nan]", "r.toml:3: "},
        {"[[step]]\ndo = \"edit\"\ncorrelation = \"mean\"", "must be \"average\" or \"minimum\""},
        {"[[step]]\ndo = \"edit\"\nsnr_threshold = 8", "r.toml:1: step 1 (edit): \"snr_threshold\" does nothing"},
        {"[[step]]\ndo = \"filter\"\nshape = \"gaussian\"\ntype = \"high-pass\"", "r.toml:1: step 1 (filter): "},
        {"[[step]]\ndo = \"stationarity\"\nbands = 10.0",
         "r.toml:3: step 1 (stationarity): \"bands\" must be an integer"},
        {"[[step]]\ndo = \"stationarity\"\nbands = 9999999999", "too large"},
        {"[[step]]\ndo = \"distributions\"\nbar_width = 101", "\"bar_width\" must be between 0 and 100"},
        {"[[step]]\ndo = \"distributions\"\nnormal = 1", "\"normal\" must be true or false"},
        {"[[step]]\ndo = \"spectral\"\npercent = 51", "\"percent\" must be between 0 and 50"},
        {"[[step]]\ndo = \"spectral\"\npercent = 10\nlags = 100", "either \"percent\" or \"lags\""},
        {"[[step]]\ndo = \"mean-velocity\"\nvalue = 0.004", "\"value\" must be between 0.005 and 1000"},
        {"[[step]]\ndo = \"export\"\nout = \"a\"", "key \"kind\" is missing"},
        {"[[step]]\ndo = \"export\"\nkind = \"velocities\"", "key \"out\" is missing"},
        {"[[step]]\ndo = \"export\"\nkind = \"velocities\"\nout = \"\"", "\"out\" is empty"},
        {"[[step]]\ndo = \"export\"\nkind = \"velocities\"\nout = \"{name}.dat\"", "placeholders"},
        {"[[step]]\ndo = \"export\"\nkind = \"velocities\"\nout = \"a\"\nall = true", "\"all\""},
        {"[[step]]\ndo = \"render\"\nstage = \"spectral\"\nout = \"a.jpg\"",
         "r.toml:4: step 1 (render): \"out\" must end in"},
        {"[[step]]\ndo = \"render\"\nstage = \"spectral\"\nout = \"a.png\"\nsize = \"big\"", "r.toml:5: "},
    };
    for (const auto& row : rows) {
        EXPECT_TRUE(holds(faultsOf(row.text), row.fault)) << row.text;
    }
}

TEST(Recipe, AllFaultsAreToldInTheOrderOfTheirLines) {
    EXPECT_EQ(faultsOf("[[step]]\ndo = \"clip\"\nto = true\nhow = 1\n[[step]]\ndo = \"none\"\n").find("r.toml:1: "),
              0U);
    const std::string faults = faultsOf("zeal = 1\n[[step]]\ndo = \"clip\"\nfrom = 1\nto = true\nfaster = 1\n");
    EXPECT_EQ(faults.find("r.toml:1: "), 0U);
    EXPECT_LT(faults.find("\nr.toml:5: "), faults.find("\nr.toml:6: "));
}

TEST(OutputPattern, PlaceholdersStandForNameFileAndProbe) {
    const OutputPattern pattern("out/{workspace}-{file}-{probe}{probe}.dat");
    EXPECT_EQ(pattern.expand("in/{probe}.x.avp", {0, 11}), "out/{probe}.x-1-1212.dat");
    EXPECT_EQ(pattern.expandWorkspace("a.avp"), "out/a-{file}-{probe}{probe}.dat");
}

}  // namespace

}  // namespace vorlan
