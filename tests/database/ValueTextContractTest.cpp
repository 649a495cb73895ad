#include "tests/database/Contract.h"
#include "tests/support/ValueTextCases.h"

#include <algorithm>

namespace refhost {

namespace {

// The table of texts that the rules in C++ are held to as well.

class ValueTextContract : public Contract {
protected:
    /// A value as the engine reads it from a text and writes it for people, or the code of its refusal.
    static std::string readBack(const std::string& writer, const std::string& reader, std::string_view text) {
        std::string literal = "'";
        for (const char c : text) {
            literal += c == '\'' ? "''" : std::string(1, c);
        }
        const std::string value = rows(sharedCompany(), "select " + writer + "(" + reader + "(" + literal + "'))");
        return value.starts_with("ML") ? value.substr(0, 5) : value;
    }
};

bool isBlank(std::string_view text) {
    return text.find_first_not_of(' ') == std::string_view::npos;
}

TEST_P(ValueTextContract, NumbersAreReadAsParametersAre) {
    for (const valuetext::NumberCase& row : valuetext::numberCases) {
        std::string expected = "ML001";
        if (isBlank(row.text)) {
            expected = "-"; // for a cell, nothing is no wrong number but none
        } else if (row.decimal && row.decimal->find('.') > 15 && row.decimal->size() > 15) {
            expected = "ML005"; // a document's number has no more than 15 digits before the point
        } else if (row.decimal) {
            expected = *row.decimal;
            std::ranges::replace(expected, '.', ','); // as Czech people write it
        }
        EXPECT_EQ(readBack("number_text", "parse_number", row.text), expected) << row.text << " " << row.remark;
    }
}

TEST_P(ValueTextContract, DatesAreReadInTheUsersOrder) {
    for (const valuetext::DateCase& row : valuetext::czechDateCases) {
        std::string expected = "ML002";
        if (isBlank(row.text)) {
            expected = "-";
        } else if (row.date) {
            std::string year = std::to_string(static_cast<int>(row.date->year()));
            year.insert(0, 4 - year.size(), '0');
            expected = std::to_string(static_cast<unsigned>(row.date->day())) + "." +
                       std::to_string(static_cast<unsigned>(row.date->month())) + "." + year;
        }
        EXPECT_EQ(readBack("date_text", "parse_date", row.text), expected) << row.text << " " << row.remark;
    }
}

INSTANTIATE_TEST_SUITE_P(Engines, ValueTextContract, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
