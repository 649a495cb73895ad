#include "refhost/tables/SortKeys.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>

namespace refhost {

namespace {

using testing::ElementsAre;

TResultTable columnOf(const std::vector<TDbValue>& values) {
    TResultTable table{.Columns = {"A"}, .Rows = {}};
    for (const TDbValue& value : values) {
        table.Rows.push_back({value});
    }
    return table;
}

/// The texts of the column in ascending order.
std::vector<std::string> sorted(std::vector<std::string> texts, const TFormatSettings& settings) {
    const TResultTable table = columnOf({texts.begin(), texts.end()});
    const SortKeys keys(table, 0, columnKind(table, 0, settings), settings);
    std::vector<std::size_t> order(texts.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t left, std::size_t right) { return keys.isLess(left, right); });
    std::vector<std::string> result;
    for (const std::size_t row : order) {
        result.push_back(texts[row]);
    }
    return result;
}

struct KindCase {
    const char* name;
    std::vector<TDbValue> values;
    ColumnKind kind;
};

class ColumnKindTest : public testing::TestWithParam<KindCase> {};

TEST_P(ColumnKindTest, IsWhatAllValuesHaveInCommon) {
    EXPECT_EQ(columnKind(columnOf(GetParam().values), 0, TFormatSettings::Czech()), GetParam().kind);
}

INSTANTIATE_TEST_SUITE_P(Cases, ColumnKindTest,
                         testing::Values(KindCase{"Integers", {std::int64_t{2}, std::int64_t{10}}, ColumnKind::Number},
                                         KindCase{"NumberTexts", {"1,5", "-3"}, ColumnKind::Number},
                                         KindCase{"NumbersAndNulls", {"1,5", TDbValue(), ""}, ColumnKind::Number},
                                         KindCase{"Dates", {"1.2.2027", "31.12.2026"}, ColumnKind::Moment},
                                         KindCase{"Moments", {"1.2.2027 08:30:00", "1.2.2027"}, ColumnKind::Moment},
                                         KindCase{"Texts", {"Praha", "Brno"}, ColumnKind::Text},
                                         // A rate is the name of a rate.
                                         KindCase{"Percentages", {"21 %", "0 %"}, ColumnKind::Text},
                                         KindCase{"OneTextAmongNumbers", {"1", "2", "DL-3"}, ColumnKind::Text},
                                         KindCase{"NumbersAndDates", {"1", "1.2.2027"}, ColumnKind::Text},
                                         KindCase{"NotACalendarDate", {"31.4.2027"}, ColumnKind::Text},
                                         KindCase{"OnlyNulls", {TDbValue(), TDbValue()}, ColumnKind::Text}),
                         [](const auto& row) { return row.param.name; });

TEST(SortKeys, NumbersSortBySizeAndEmptyOnesComeFirst) {
    EXPECT_THAT(sorted({"10", "9,5", "", "-1", "100"}, TFormatSettings::Czech()),
                ElementsAre("", "-1", "9,5", "10", "100"));
}

TEST(SortKeys, DatesSortByTimeInTheOrderOfTheLocale) {
    EXPECT_THAT(sorted({"2.1.2027", "1.2.2027", "31.12.2026"}, TFormatSettings::Czech()),
                ElementsAre("31.12.2026", "2.1.2027", "1.2.2027"));
    EXPECT_THAT(sorted({"1/2/2027 10:00:00", "1/2/2027 09:00:00"}, TFormatSettings::English()),
                ElementsAre("1/2/2027 09:00:00", "1/2/2027 10:00:00"));
}

TEST(SortKeys, TextsSortInCzechOrderWithChAfterH) {
    EXPECT_THAT(sorted({"Chleba", "Hrách", "Cibule", "Čočka", "Ibišek", "cukr"}, TFormatSettings::Czech()),
                ElementsAre("Cibule", "cukr", "Čočka", "Hrách", "Chleba", "Ibišek"));
}

TEST(SortKeys, NumbersInsideTextsSortBySize) {
    EXPECT_THAT(sorted({"DL-10", "DL-9", "DL-100"}, TFormatSettings::Czech()), ElementsAre("DL-9", "DL-10", "DL-100"));
}

} // namespace

} // namespace refhost
