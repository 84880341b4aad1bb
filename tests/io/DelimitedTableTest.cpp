#include "io/DelimitedTable.h"

#include <gtest/gtest.h>

#include <cmath>

#include "io/TempFolder.h"

namespace vorlan {
namespace {

using Column = RecordColumns;

DelimitedTable parsed(const std::string& text, const TableOptions& options = {}) {
    return parseDelimitedTable(text, "site.csv", options);
}

TableOptions marking() {
    TableOptions options;
    options.missing = TableOptions::Missing::Mark;
    return options;
}

TableOptions columns(const std::string& list) {
    TableOptions options;
    options.columns = list;
    return options;
}

/// The velocities, row after row.
std::string velocitiesOf(const DelimitedTable& table) {
    std::string text;
    for (std::size_t i = 0; i < table.record.sampleCount(); ++i) {
        for (const std::size_t c : {Column::U, Column::V, Column::W}) {
            const double v = table.record.values[c][i];
            text += (std::isnan(v) ? "?" : testing::PrintToString(v)) + (c == Column::W ? ";" : ",");
        }
    }
    return text;
}

struct Good {
    const char* name;
    const char* text;
};

class GoodTables : public testing::TestWithParam<Good> {};

TEST_P(GoodTables, GiveTheSameRecord) {
    EXPECT_EQ(velocitiesOf(parsed(GetParam().text)), "1.5,-2,0.25;100,0,3;");
}

INSTANTIATE_TEST_SUITE_P(
    Texts, GoodTables,
    testing::Values(Good{"comma", "u,v,w\n1.5,-2,0.25\n100,0,3\n"}, Good{"semicolon", "u;v;w\n1.5;-2;.25\n1e2;0;3\n"},
                    Good{"tab", "u\tv\tw\n1.5\t-2\t0.25\n100\t0\t3"},
                    Good{"blanks", " u  v w\n 1.5 -2\t0.25 \n100 0   3\n"},
                    Good{"windowsLineEnds", "u,v,w\r\n1.5,-2,0.25\r\n100,0,3\r\n"},
                    Good{"oldLineEnds", "u,v,w\r1.5,-2,0.25\r100,0,3\r"},
                    Good{"byteOrderMark", "\xEF\xBB\xBFu,v,w\n1.5,-2,0.25\n100,0,3\n"},
                    Good{"comments", "# site 7, run 3\n\nu,v,w # cm/s\n#\n1.5,-2,0.25 # first\n\n  \n100,0,3\n#end"},
                    Good{"otherOrder", "w,U,v\n0.25,1.5,-2\n3,100,0\n"},
                    Good{"quotes", "\"u\", \"v\" ,\"w\"\n\"1.5\",-2,0.25\n100,0,3\n"},
                    Good{"signs", "u,v,w\n+1.5,-2,+0.25\n+1e+2,0e1,3\n"},
                    Good{"skipped", "u,-,v,w\n1.5,text,-2,0.25\n100,,0,3\n"}),
    [](const auto& row) { return row.param.name; });

struct Bad {
    const char* name;
    std::string text;
    std::size_t line;
    std::size_t column;
    const char* reason;
    const char* columns = nullptr;
    bool mark = false;
};

class BadTables : public testing::TestWithParam<Bad> {};

TEST_P(BadTables, AreRefusedWithThePlace) {
    TableOptions options = GetParam().mark ? marking() : TableOptions();
    if (GetParam().columns != nullptr) {
        options.columns = GetParam().columns;
    }
    try {
        parsed(GetParam().text, options);
        FAIL() << "taken";
    } catch (const TableError& error) {
        EXPECT_EQ(error.line(), GetParam().line);
        EXPECT_EQ(error.column(), GetParam().column);
        EXPECT_EQ(error.reason(), GetParam().reason);
        EXPECT_EQ(error.what(), "site.csv:" + std::to_string(GetParam().line) + ":" +
                                    std::to_string(GetParam().column) + ": " + GetParam().reason);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, BadTables,
    testing::Values(Bad{"empty", "", 1, 1, "the table is empty"},
                    Bad{"onlyComments", "# a\n\n#b\n", 3, 1, "the table is empty"},
                    Bad{"onlyAHeader", "u,v,w\n\n", 2, 1, "there are no samples"},
                    Bad{"utf16", std::string("\xFF\xFEu\0,\0", 6), 1, 1, "the text is UTF-16; save it as UTF-8"},
                    Bad{"noHeader", "1,2,3\n4,5,6\n", 1, 1,
                        "\"1\" stands where the name of a column should; name the columns otherwise"},
                    Bad{"missingColumn", "# t\nu,w\n1,2\n", 2, 3, "there is no column \"v\""},
                    Bad{"columnTwice", "u,v,w,U\n1,2,3,4\n", 1, 4, "column \"U\" is named twice"},
                    Bad{"halfACompass", "u,v,w,heading,roll\n1,2,3,4,5\n", 1, 6,
                        "the columns heading, pitch and roll come together or not at all"},
                    Bad{"tooFewFields", "u,v,w\n1,2,3\n4,5\n", 3, 3, "2 fields instead of 3"},
                    Bad{"tooManyFields", "u,v,w\n1,2,3,4\n", 2, 4, "4 fields instead of 3"},
                    Bad{"trailingSeparator", "u,v,w\n1,2,3,\n", 2, 4, "4 fields instead of 3"},
                    Bad{"otherSeparatorInside", "u,v,w\n1;2;3\n", 2, 2, "1 fields instead of 3"},
                    Bad{"decimalComma", "u;v;w\n1,5;2;3\n", 2, 1, "\"1,5\" is not a number"},
                    Bad{"text", "u,v,w\n1,2,3\n1,north,3\n", 3, 2, "\"north\" is not a number"},
                    Bad{"twoSigns", "u,v,w\n1,2,+-3\n", 2, 3, "\"+-3\" is not a number"},
                    Bad{"hexadecimal", "u,v,w\n0x10,2,3\n", 2, 1, "\"0x10\" is not a number"},
                    Bad{"unitBehind", "u,v,w\n1,2,3cm\n", 2, 3, "\"3cm\" is not a number"},
                    Bad{"zeroByte", std::string("u,v,w\n1,\0002,3\n", 13), 2, 2, "\"?2\" is not a number"},
                    Bad{"infinite", "u,v,w\n1,inf,3\n", 2, 2, "\"inf\" is no finite number"},
                    Bad{"beyondDouble", "u,v,w\n1,2,1e999\n", 2, 3, "\"1e999\" is no finite number"},
                    Bad{"beyondTheResolution", "u,v,w\n1,2147483.648,3\n", 2, 2,
                        "\"2147483.648\" is too large for the resolution 0.001"},
                    Bad{"emptyVelocity", "u,v,w\n1,2,3\n1, ,3\n", 3, 2, "the velocity is missing"},
                    Bad{"nanVelocity", "u,v,w\n1,2,NaN\n", 2, 3, "the velocity is missing"},
                    Bad{"emptyScore", "u,v,w,cor1\n1,2,3,\n", 2, 4, "the value is missing"},
                    Bad{"scoreMissingBesideVelocity", "u,v,w,cor1\n1,2,3,\n", 2, 4,
                        "the value is missing beside a velocity that is there", nullptr, true},
                    Bad{"nothingInAColumn", "u,v,w\n1,,3\n1,nan,3\n", 3, 2, "the column holds no value at all", nullptr,
                        true},
                    Bad{"listOfUnknownColumn", "1,2,3\n", 1, 3, "there is no kind of column \"z\"", "u,v,z"},
                    Bad{"listTooShort", "1,2,3,4\n", 1, 4, "4 fields instead of 3", "u,v,w"}),
    [](const auto& row) { return row.param.name; });

TEST(Tables, HugeFieldsAreShownInPart) {
    try {
        parsed("u,v,w\n1," + std::string(5'000'000, 'x') + ",3\n");
        FAIL();
    } catch (const TableError& error) {
        EXPECT_EQ(error.reason(), "\"" + std::string(40, 'x') + "...\" is not a number");
    }
    EXPECT_EQ(velocitiesOf(parsed("u,v,w\n1," + std::string(1'000'000, '0') + "7.5,3\n")), "1,7.5,3;");
}

TEST(Tables, ListedColumnsReplaceTheHeader) {
    const TableOptions options = columns("-,w,v,u");
    EXPECT_EQ(velocitiesOf(parsed("9,0.25,-2,1.5\n9,3,0,100\n", options)), "1.5,-2,0.25;100,0,3;");
    EXPECT_EQ(velocitiesOf(parsed("time,x,y,z\n9,0.25,-2,1.5\n9,3,0,100\n", options)), "1.5,-2,0.25;100,0,3;");
    EXPECT_EQ(refusalOfColumnList("u,v,w,-,Snr2"), "");
    EXPECT_EQ(refusalOfColumnList(""), "there is no column \"u\"");
    EXPECT_EQ(refusalOfColumnList("u,v,w,speed"), "there is no kind of column \"speed\"");
    EXPECT_EQ(refusalOfColumnList("u,v,w,u"), "column \"u\" is named twice");
}

TEST(Tables, UnknownColumnsAreToldNotTaken) {
    const DelimitedTable table = parsed("time,u,v,w,snr3,amp1\n0,1,2,3,4,5\n");
    EXPECT_EQ(table.unused, (std::vector<std::string>{"time", "amp1"}));
    EXPECT_TRUE(table.record.has(Column::Snr3));
    EXPECT_FALSE(table.record.has(Column::Snr1));
    EXPECT_EQ(table.record.values[Column::Snr3][0], 4.0);
}

TEST(Tables, MissingVelocitiesAreMarked) {
    const DelimitedTable table = parsed("u,v,w,cor1\n1,2,3,90\nnan,5,,91\n,,,\n7,8,9,92\n", marking());
    EXPECT_EQ(velocitiesOf(table), "1,2,3;?,5,?;?,?,?;7,8,9;");
    EXPECT_EQ(table.record.valid, (std::vector<std::uint8_t>{1, 0, 0, 1}));
    EXPECT_TRUE(std::isnan(table.record.values[Column::Cor1][2]));
    // A line of tabs alone is a sample, a line of blanks is none.
    EXPECT_EQ(velocitiesOf(parsed("u\tv\tw\n1\t2\t3\n\t\t\n  \n4\t5\t6\n", marking())), "1,2,3;?,?,?;4,5,6;");
}

TEST(Tables, TheResolutionDecidesWhatFits) {
    TableOptions options;
    options.velocityResolution = 0.1;
    EXPECT_NO_THROW(parsed("u,v,w\n1,-214748364.8,3\n", options));
    EXPECT_THROW(parsed("u,v,w,pressure\n1,2,3,2147484\n", options), TableError);
}

TEST(Tables, AreReadFromFiles) {
    const test::TempFolder folder;
    test::spill(folder / "t.csv", "u,v,w\n1,2,3\n");
    EXPECT_EQ(velocitiesOf(readDelimitedTable(folder / "t.csv", {})), "1,2,3;");
    test::spill(folder / "t.csv", "");
    EXPECT_THROW(readDelimitedTable(folder / "t.csv", {}), TableError);
    EXPECT_THROW(readDelimitedTable(folder / "none.csv", {}), FileError);
    EXPECT_THROW(readDelimitedTable(folder.path(), {}), FileError);
}

}  // namespace
}  // namespace vorlan
