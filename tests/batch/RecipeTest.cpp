// Recipes and values: what they are read as.
#include "batch/Recipe.h"

#include <gtest/gtest.h>

#include "model/Text.h"

namespace vorlan {

namespace {

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

TEST(OutputPattern, PlaceholdersStandForNameFileAndProbe) {
    const OutputPattern pattern("out/{workspace}-{file}-{probe}{probe}.dat");
    EXPECT_EQ(pattern.expand("in/{probe}.x.avp", {0, 11}), "out/{probe}.x-1-1212.dat");
    EXPECT_EQ(pattern.expandWorkspace("{file}.avp"), "out/{file}-{file}-{probe}{probe}.dat");
}

TEST(Text, IsUtf8OrElseWindows1252) {
    EXPECT_EQ(utf8Text("Fl\xC3\xBCgel \xF0\x9F\x8C\x8A"), "Fl\xC3\xBCgel \xF0\x9F\x8C\x8A");
    EXPECT_EQ(utf8Text("Fl\xFCgel \x80\x96"), "Fl\xC3\xBCgel \xE2\x82\xAC\xE2\x80\x93");
    // Cut, overlong, surrogate and too large sequences are no UTF-8.
    EXPECT_EQ(utf8Text("\xC3"), "\xC3\x83");
    EXPECT_EQ(utf8Text("\xC0\xAF"), "\xC3\x80\xC2\xAF");
    EXPECT_EQ(utf8Text("\xED\xA0\x80"), "\xC3\xAD\xC2\xA0\xE2\x82\xAC");
    EXPECT_EQ(utf8Text("\xF4\x90\x80\x80").substr(0, 2), "\xC3\xB4");
}

}  // namespace

}  // namespace vorlan
