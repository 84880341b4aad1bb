#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <functional>
#include <limits>
#include <random>

#include "Stored.h"
#include "model/PlainArrays.h"
#include "model/SArray.h"
#include "model/STabsArray.h"
#include "model/Text.h"

namespace vorlan {
namespace {

constexpr std::int32_t kNoInteger = std::numeric_limits<std::int32_t>::min();

TEST(Arrays, StoreValuesTruncatedTowardZero) {
    const struct {
        double scale;
        double value;
        std::int32_t integer;
    } rows[] = {{1.0, 1.99, 1},
                {1.0, -1.99, -1},
                {0.01, 12.349, 1234},
                {0.01, 0.29, 28},  // the quotient is below the integer
                {1.0, 2147483647.9, 2147483647},
                {1.0, 2147483648.0, kNoInteger},
                {1.0, -2147483648.9, kNoInteger},
                {1.0, -2147483649.0, kNoInteger},
                {1.0, std::nan(""), kNoInteger},
                {0.001, -std::numeric_limits<double>::infinity(), kNoInteger},
                {0.0, 1.0, kNoInteger}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        SArray column(row.scale);
        column.AddValue(row.value);
        column.SetValue(2, row.value);
        EXPECT_EQ(column.GetAt(0), row.integer);
        EXPECT_EQ(column.GetAt(1), 0);
        EXPECT_EQ(column.GetAt(2), row.integer);
        EXPECT_EQ(column.GetValue(0), row.integer * row.scale);
        // Several are stored as one is.
        column.StoreValues(std::vector<double>(7, row.value));
        ASSERT_EQ(column.GetSize(), 7);
        for (const std::int32_t integer : column) {
            EXPECT_EQ(integer, row.integer);
        }
    }
}

TEST(Arrays, ReadingOutsideIsRefusedAndSettingGrows) {
    SIntArray marks;
    EXPECT_THROW(marks.GetAt(0), InvalidArgument);
    marks.SetAt(2, 7);
    EXPECT_EQ(marks.GetSize(), 3);
    EXPECT_EQ(marks.GetAt(0), 0);
    EXPECT_EQ(marks.GetAt(1), 0);
    EXPECT_EQ(marks.GetAt(2), 7);
    EXPECT_THROW(marks.GetAt(-1), InvalidArgument);
    EXPECT_THROW(marks.GetAt(3), InvalidArgument);
    EXPECT_THROW(marks.RemoveAt(3), InvalidArgument);
    EXPECT_THROW(marks.SetAt(-1, 0), InvalidArgument);
    EXPECT_EQ(marks.GetSize(), 3);
    try {
        marks.GetAt(9);
        FAIL();
    } catch (const InvalidArgument& error) {
        EXPECT_STREQ(error.what(), "Encountered an improper argument.");
    }
    // An element may be set from the array itself while it grows.
    StrArray names;
    names.Add(std::string(100, 'n'));
    for (int i = 1; i < 50; ++i) {
        names.SetAt(i, names.GetAt(0));
    }
    EXPECT_EQ(names.GetAt(49), std::string(100, 'n'));
}

TEST(Arrays, CopiesShareTheirElementsUntilOneIsWritten) {
    SArray column(0.5);
    column.StoreValues(std::vector<double>{1.0, 2.0, 3.0});
    const auto elements = [](const SArray& array) { return array.view().data(); };
    const std::int32_t* const first = elements(column);
    const SArray kept = column;
    EXPECT_EQ(elements(kept), first);

    // Whatever way a copy is written, the other one stays.
    const std::vector<std::function<void(SArray&)>> writes = {
        [](SArray& a) { a.SetAt(1, 9); },
        [](SArray& a) { a.Add(9); },
        [](SArray& a) { a.ElementAt(0) = 9; },
        [](SArray& a) { a.RemoveAt(2); },
        [](SArray& a) { a.InsertAt(0, 9); },
        [](SArray& a) { a.SetSize(1); },
        [](SArray& a) { a.RemoveAll(); },
        [](SArray& a) { a.view()[2] = 9; },
        [](SArray& a) { *a.begin() = 9; },
        [](SArray& a) { a.StoreValues(std::vector<double>{9.0}); },
        [](SArray& a) {
            a.ResizeForOverwrite(3);
            a.view()[0] = 9;
            a.view()[1] = 9;
            a.view()[2] = 9;
        },
    };
    for (const auto& write : writes) {
        SArray copy = kept;
        write(copy);
        EXPECT_NE(copy, kept);
        EXPECT_EQ(elements(kept), first);
        EXPECT_EQ(kept, column);
    }

    // Storing reads; loading into a copy appends to the copy alone.
    Archive out = Archive::storing();
    column.Serialize(out);
    EXPECT_EQ(elements(column), first);
    Archive in = Archive::loading(out.bytes());
    column.Serialize(in);
    EXPECT_EQ(column.GetSize(), 6);
    EXPECT_EQ(kept.GetSize(), 3);
}

std::string tabTexts(std::initializer_list<std::uint32_t> stages) {
    STabsArray tabs;
    for (const std::uint32_t stage : stages) {
        TabItem item;
        item.imageIndex = stage;
        item.parameter = 77;
        tabs.Add(item);
    }
    std::string texts;
    for (const TabItem& item : test::reloaded(tabs)) {
        EXPECT_EQ(item.mask, 3U);
        EXPECT_EQ(item.parameter, 77U);
        texts += item.text + "|";
    }
    return texts;
}

TEST(Tabs, TakeTheirTextFromTheStageNumber) {
    EXPECT_EQ(tabTexts({0, 1, 2, 3, 4, 5, 6}),
              "Pre-Processing|Stationarity|Histograms|Spectral Analysis|Mean Velocity Vectors|Qudrants Analysis|"
              "Cross-Spectral Analysis|");
    EXPECT_EQ(tabTexts({6, 7, 0xFFFFFFFFU, 2}),
              "Cross-Spectral Analysis|Cross-Spectral Analysis|Cross-Spectral Analysis|Histograms|");
    EXPECT_EQ(tabTexts({9, 1}), "|Stationarity|");
}

TEST(FixedText, EqualsPrintfForRandomValuesAndTies) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 200000; ++i) {
        const int digits = 1 + static_cast<int>(random() % 7);
        double value = std::bit_cast<double>(random());
        if (i % 4 == 1) {
            value = static_cast<std::int32_t>(random()) * 0.001;
        } else if (i % 4 == 2) {
            value = static_cast<double>(static_cast<std::int64_t>(random()) >> (random() % 60)) / 64.0;
        } else if (i % 4 == 3) {
            // Next to a tie, which has one decimal more.
            value = (static_cast<double>(random() % 1000000) + 0.5) / std::pow(10.0, digits);
            value = std::nextafter(value, random() % 2 == 0 ? 0.0 : 1e9);
        }
        std::string text;
        appendFixed(text, value, digits);
        ASSERT_EQ(text, formatted("%.*f", digits, value)) << formatted("%a", value);
    }
}

}  // namespace
}  // namespace vorlan
