#include "io/BoundaryFile.h"

#include <gtest/gtest.h>

#include "io/TempFolder.h"

namespace vorlan {
namespace {

using test::spill;
using test::TempFolder;

std::string integersOf(const SBndFile& boundary) {
    std::string text;
    for (int i = 0; i < boundary.NodeCount(); ++i) {
        text += std::to_string(boundary.x.GetAt(i)) + "," + std::to_string(boundary.y.GetAt(i)) + "," +
                std::to_string(boundary.z.GetAt(i)) + ";";
    }
    return text;
}

struct Row {
    const char* name;
    const char* text;
    const char* integers;
    bool valid;
};

class ReadingBoundaries : public testing::TestWithParam<Row> {};

TEST_P(ReadingBoundaries, FollowsTheScan) {
    const TempFolder folder;
    SBndFile boundary;
    boundary.path = (folder / "bank.bnd").string();
    spill(boundary.path, GetParam().text);
    if (GetParam().valid) {
        readBoundary(boundary);
    } else {
        try {
            readBoundary(boundary);
            ADD_FAILURE();
        } catch (const BoundaryFormatError& error) {
            EXPECT_EQ(error.what(), "Format of the file " + boundary.path + " is invalid !");
        }
    }
    EXPECT_EQ(integersOf(boundary), GetParam().integers);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ReadingBoundaries,
    testing::Values(Row{"oneNode", "1.2345 0 -2\n", "1234,0,-2000;", true},
                    Row{"truncatedTowardZero", "-0.0005 0.0009 -1.9999\n", "0,0,-1999;", true},
                    // 0.7 has no exact single: it is a little less.
                    Row{"singlePrecision", "0.7 0.1 16.001\n", "699,100,16000;", true}, Row{"empty", "", "", true},
                    Row{"blankOnly", " \n\n", "", false},
                    Row{"noLastLineEnd", "1 2 3\n4 5 6", "1000,2000,3000;4000,5000,6000;", true},
                    Row{"windowsLineEnds", "1 2 3\r\n4 5 6\r\n", "1000,2000,3000;4000,5000,6000;", true},
                    Row{"emptyLastLine", "1 2 3\n\n \n", "1000,2000,3000;", true},
                    Row{"tabsAndLeadingBlanks", "  1\t2   3\n", "1000,2000,3000;", true},
                    Row{"triplesAcrossLines", "1 2\n3 4\n5 6\n", "1000,2000,3000;4000,5000,6000;", true},
                    Row{"twoNumbersLeft", "1 2 3\n4 5\n", "1000,2000,3000;", false},
                    Row{"twoNumbersInTheMiddle", "1 2 3\n4 5\n6 7 8\n", "1000,2000,3000;4000,5000,6000;", false},
                    Row{"words", "1 2 3\nend\n", "1000,2000,3000;", false}, Row{"decimalComma", "1,5 2 3\n", "", false},
                    Row{"exponents", "1e1 +2.5E-1 .5\n", "10000,250,500;", true},
                    Row{"tooLarge", "1e30 nan 0\n", "-2147483648,-2147483648,0;", true}),
    [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace vorlan
