#include "editwin/model/DisplayFormat.h"

#include <gtest/gtest.h>

namespace {

struct ShownRow {
    const char* remark;
    TColumnsDataType dataType;
    const char* format;
    const char* stored;
    const char* shown;
};

const ShownRow shownRows[] = {
    {"a price: groups, two decimals, currency", cdtFlt, "%m", "1234,5", "1\u00A0234,50\u00A0Kč"},
    {"a discount: two decimals and a percent sign", cdtFlt, "%f %%", "12,5", "12,50 %"},
    {"an integer number is a number too", cdtFlt, "%f", "7", "7,00"},
    {"no format: the text itself", cdtFlt, "", "1234,5", "1234,5"},
    {"an empty cell stays empty", cdtFlt, "%m", "", ""},
    {"an empty text gets nothing around it", cdtString, "<%s>", "", ""},
    {"a number that is none is shown as it is", cdtFlt, "%m", "dohodou", "dohodou"},
    {"a separator of another locale makes no number", cdtFlt, "%m", "1234.5", "1234.5"},
    {"blanks are no number", cdtFlt, "%m", " ", " "},
    {"an integer", cdtInt, "%d ks", "12", "12 ks"},
    {"an integer as money", cdtInt, "%m", "12", "12,00\u00A0Kč"},
    {"a decimal number is no integer", cdtInt, "%d ks", "1,5", "1,5"},
    {"more than an integer holds", cdtInt, "%d ks", "99999999999", "99999999999"},
    {"other types are put in as text", cdtString, "<%s>", "12,5", "<12,5>"},
    {"a date is put in as text", cdtDate, "do %s", "1.2.2027", "do 1.2.2027"},
    {"a kind too", cdtType, "<%s>", "A", "<A>"},
    {"a percent sign in the value is no format", cdtString, "<%s>", "5 %d", "<5 %d>"},
    {"a format for numbers does not fit a text", cdtString, "%m", "12", "12"},
    {"a format that is cut off shows the text", cdtFlt, "%", "12", "12"},
    {"a format that wants two values shows the text", cdtFlt, "%f %f", "12", "12"},
};

TEST(DisplayFormat, ShowsTheFormattedValueOrTheTextItself) {
    for (const ShownRow& row : shownRows) {
        SCOPED_TRACE(row.remark);
        const RColumn column{.DisplayFormat = row.format, .DataType = row.dataType};
        EXPECT_EQ(melvark::DisplayText(column, row.stored, TFormatSettings::Czech()), row.shown);
    }
}

TEST(DisplayFormat, FollowsTheUsersLocale) {
    const RColumn price{.DisplayFormat = "%m", .DataType = cdtFlt};
    EXPECT_EQ(melvark::DisplayText(price, "1234.5", TFormatSettings::English()), "1,234.50\u00A0CZK");
}

} // namespace
