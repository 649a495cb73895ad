#include "refhost/HiddenValues.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace refhost {

namespace {

struct Row {
    const char* name;
    const char* sql;
    const char* hidden;
};

class HiddenValues : public testing::TestWithParam<Row> {};

TEST_P(HiddenValues, StandAsQuestionMarks) {
    EXPECT_EQ(hideValues(GetParam().sql), GetParam().hidden);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, HiddenValues,
    testing::Values(Row{"nothing", "", ""}, Row{"names", "select NAZEV from SKLAD_V", "select NAZEV from SKLAD_V"},
                    Row{"a number", "_DODVID=3", "_DODVID=?"}, Row{"a decimal", "CENA > -12.50", "CENA > -?"},
                    Row{"several", "ID in (1,22, 333)", "ID in (?,?, ?)"}, Row{"an exponent", "X = 1e5+2", "X = ?+?"},
                    Row{"digits in a name", "SKLAD2 = A1", "SKLAD2 = A1"},
                    Row{"a name beyond ASCII",
                        "MNO\xc5\xbdSTV\xc3\x8d"
                        "9 = 9",
                        "MNO\xc5\xbdSTV\xc3\x8d"
                        "9 = ?"},
                    Row{"a text", "NAZEV='Mlýn Lípa'", "NAZEV=?"}, Row{"an empty text", "A='' or B='x'", "A=? or B=?"},
                    Row{"a quote in a text", "A='u ''Lípy'' 7' and B=1", "A=??? and B=?"},
                    Row{"a text without its end", "A='tajné heslo", "A=?"},
                    Row{"a name in quotes", "\"Cena 1\"=1", "\"Cena 1\"=?"},
                    Row{"a quote in a quoted name", "\"A'b\"=1", "\"A'b\"=?"},
                    Row{"a text with a double quote", "A='x\"y' and B=2", "A=? and B=?"}),
    [](const auto& row) {
        std::string name = row.param.name;
        std::replace(name.begin(), name.end(), ' ', '_');
        return name;
    });

} // namespace

} // namespace refhost
