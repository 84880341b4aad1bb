// What is seen and guessed of a table before it is read, and how its numbers are meant.
#include <gtest/gtest.h>

#include "io/TableGuess.h"

namespace vorlan {
namespace {

/// Roles, unit and steps of a table in one line.
std::string guessOf(const std::string& text) {
    const TablePreview preview = previewTable(text);
    const std::vector<ColumnRole> roles = guessRoles(preview);
    std::string line;
    for (std::size_t i = 0; i < roles.size(); ++i) {
        line += roles[i].name() + " ";
        if (roles[i].isTime()) {
            const auto steps = timeStepsOf(timesOf(text, i));
            line += steps ? "(" + std::to_string(roundedInterval(*steps)).substr(0, 7) + ") " : "(?) ";
        }
    }
    constexpr const char* kUnits[] = {"cm/s", "m/s", "mm/s"};
    return line + kUnits[static_cast<int>(guessVelocityUnit(preview, roles))];
}

TEST(TableGuess, TakesNamesAndPlaces) {
    const struct {
        const char* text;
        const char* guess;
    } rows[] = {
        {"u,v,w\n1,2,3\n", "u v w cm/s"},
        {"Time (s);Vel_X [m/s];Vel_Y [m/s];Vel_Z [m/s];SNR 1\n0;1;2;3;4\n0.04;1;2;3;4\n",
         "time (0.04000) u v w snr1 m/s"},
        {"u mm/s\tv mm/s\tw mm/s\tCorr2\n1\t2\t3\t4\n", "u v w cor2 mm/s"},
        {"East North Up Up\n1 2 3 4\n", "u v w - cm/s"},
        {"# of a probe\n1 2 3\n4 5 6\n", "u v w cm/s"},
        {"0.000 1 2 3\n0.031 4 5 6\n0.063 1 2 3\n0.094 1 2 3\n", "time (0.03133) u v w cm/s"},
        {"4 1 2 3\n2 4 5 6\n9 1 2 3\n", "u v w - cm/s"},
        {"t,u,v,w\n5,1,2,3\n4,1,2,3\n", "time (?) u v w cm/s"},
        {"a\nb\n", "- cm/s"},
        {"", "cm/s"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(guessOf(row.text), row.guess) << row.text;
    }
}

TEST(TablePreview, ShowsRowsByTheirLines) {
    const std::string text = "u;v\n\n# remark\n1;2\n3\n5;6;7\n8;9\n";
    const TablePreview all = previewTable(text);
    EXPECT_EQ(all.separator, ';');
    EXPECT_EQ(all.names, (std::vector<std::string>{"u", "v"}));
    ASSERT_EQ(all.rows.size(), 4U);
    EXPECT_EQ(all.rows[1].fields, std::vector<std::string>{"3"});
    const TablePreview some = previewTable(text, 6, 1);
    ASSERT_EQ(some.rows.size(), 1U);
    EXPECT_EQ(some.rows[0].line, 6U);
    EXPECT_EQ(some.names, all.names);
}

TEST(Tables, GiveTheSameRecordInEveryUnit) {
    const auto columns = [](const std::string& text, VelocityUnit unit) {
        TableOptions options = optionsOf(guessRoles(previewTable(text)));
        options.velocityUnit = unit;
        return parseDelimitedTable(text, "t.csv", options).record.values;
    };
    // Multiplied, 0.29 m/s would be a little less than 29 cm/s, and stored a step too low.
    const auto expected = columns("u,v,w,cor1\n29,-0.07,1e3,90\n5.7,1.1,.3,91\n", VelocityUnit::CentimetresPerSecond);
    EXPECT_EQ(columns("u,v,w,cor1\n0.29,-0.0007,1E1,90\n+0.057,11e-3,3e-03,91\n", VelocityUnit::MetresPerSecond),
              expected);
    EXPECT_EQ(columns("u,v,w,cor1\n290,-.7,1e4,90\n57,11,3,91\n", VelocityUnit::MillimetresPerSecond), expected);
}

TEST(Tables, RefuseATimeThatIsNone) {
    TableOptions options = optionsOf(guessRoles(previewTable("time,u,v,w\n")));
    EXPECT_EQ(parseDelimitedTable("time,u,v,w\n0,1,2,3\n0.5,1,2,3\n", "t.csv", options).times,
              (std::vector<double>{0.0, 0.5}));
    for (const char* field : {"", "12:00:01", "inf"}) {
        try {
            parseDelimitedTable(std::string("time,u,v,w\n0,1,2,3\n") + field + ",1,2,3\n", "t.csv", options);
            ADD_FAILURE() << field;
        } catch (const TableError& error) {
            EXPECT_EQ(error.line(), 3U);
            EXPECT_EQ(error.column(), 1U);
        }
    }
}

}  // namespace
}  // namespace vorlan
