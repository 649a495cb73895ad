#include "host/Utf8.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace melvark;

TEST(Utf8, StepsOverOneCharacterOfEachLength) {
    struct {
        const char* text;
        char32_t code;
        std::size_t length;
    } const rows[] = {{"ab", U'a', 1}, {"čb", U'č', 2}, {"€b", U'€', 3}, {"😀b", U'😀', 4}};
    for (const auto& row : rows) {
        const TUtf8Step step = FirstStep(row.text);
        EXPECT_TRUE(step.IsValid) << row.text;
        EXPECT_EQ(step.Code, row.code) << row.text;
        EXPECT_EQ(step.Length, row.length) << row.text;
    }
}

TEST(Utf8, TakesWhatIsNoCharacterByteByByte) {
    struct {
        const char* remark;
        const char* text;
    } const rows[] = {
        {"a byte that only continues", "\x80x"}, {"a cut sequence", "\xC5"},
        {"a sequence broken off", "\xC5x"},      {"an overlong form", "\xC0\xAF"},
        {"a surrogate", "\xED\xA0\x80"},         {"beyond the last plane", "\xF4\x90\x80\x80"},
    };
    for (const auto& row : rows) {
        const TUtf8Step step = FirstStep(row.text);
        EXPECT_FALSE(step.IsValid) << row.remark;
        EXPECT_EQ(step.Length, 1U) << row.remark;
        EXPECT_FALSE(IsUtf8(row.text)) << row.remark;
        EXPECT_FALSE(IsUtf8(std::string("dobré ") + row.text)) << row.remark;
    }
    EXPECT_TRUE(IsUtf8("žluť € 😀"));
    EXPECT_TRUE(IsUtf8(""));
}

TEST(Utf8, FindsDamageAtEachPlaceOfALongText) {
    const std::string text = "0123456789 žluťoučký kůň € 0123456789 😀 0123456789";
    EXPECT_TRUE(IsUtf8(text));
    for (std::size_t at = 0; at <= text.size(); ++at) {
        EXPECT_FALSE(IsUtf8(std::string(text).insert(at, "\xFF"))) << at;
        const bool isBetween = at == text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80;
        EXPECT_EQ(IsUtf8(text.substr(0, at)), isBetween) << at;
        EXPECT_EQ(IsUtf8(text.substr(at)), isBetween) << at;
    }
}

TEST(Utf8, CountsCharactersAndNoDamage) {
    EXPECT_EQ(CharacterCount(""), 0U);
    EXPECT_EQ(CharacterCount("žluť"), 4U);
    EXPECT_EQ(CharacterCount("a\x80\xFFž"), 2U);
}

TEST(Utf8, CutsBetweenCharacters) {
    EXPECT_EQ(FirstCharacters("žluť", 0), "");
    EXPECT_EQ(FirstCharacters("žluť", 3), "žlu");
    EXPECT_EQ(FirstCharacters("žluť", 4), "žluť");
    EXPECT_EQ(FirstCharacters("žluť", 9), "žluť");
    EXPECT_EQ(FirstCharacters("a\x80z", 1), "a\x80") << "damage stays with the character before it";
}

} // namespace
