#include "host/LangStr.h"

#include "tests/host/FakeHost.h"

#include <gtest/gtest.h>

namespace {

class LangStrTest : public testing::Test {
protected:
    FakeHost host;
    TScopedHost installed{host};
};

TEST_F(LangStrTest, UsesTheFallbackWithoutATranslation) {
    EXPECT_EQ(LangStr(R"(KORDAN30\MELVARKEDITOR\X)", {"7a"}, "Hodnota %s není celé číslo"),
              "Hodnota 7a není celé číslo");
}

TEST_F(LangStrTest, FormatsTheTranslationWithTheArguments) {
    host.translations[{"X", "Hodnota %s není celé číslo"}] = "%s is no integer";
    EXPECT_EQ(LangStr("X", {"7a"}, "Hodnota %s není celé číslo"), "7a is no integer");
}

TEST_F(LangStrTest, TellsTheHostTheBuiltInTextToo) {
    host.translations[{"X", "Uložit"}] = "Save";
    EXPECT_EQ(LangStr("X", {}, "Uložit"), "Save");
    EXPECT_EQ(LangStr("X", {}, "Smazat"), "Smazat");
}

TEST_F(LangStrTest, AnEmptyTranslationIsATranslation) {
    host.translations[{"X", "Poznámka"}] = "";
    EXPECT_EQ(LangStr("X", {}, "Poznámka"), "");
}

TEST_F(LangStrTest, FormatsWithoutArgumentsToo) {
    EXPECT_EQ(LangStr("X", {}, "Sleva 100 %%"), "Sleva 100 %");
    EXPECT_THROW(LangStr("X", {}, "Hodnota %s"), EConvertError);
}

TEST_F(LangStrTest, WritesNumbersInTheHostsFormat) {
    EXPECT_EQ(LangStr("X", {12.5}, "Sleva %f"), "Sleva 12,50");
    host.settings = TFormatSettings::English();
    EXPECT_EQ(LangStr("X", {12.5}, "Sleva %f"), "Sleva 12.50");
}

TEST(LangStr, NeedsAHost) {
    EXPECT_THROW(LangStr("X", {}, "Uložit"), EHostError);
}

struct WordCase {
    const char* text;
    int index;
    const char* word;
    const char* remark;
};

TEST(GetWord, GivesTheFieldAtTheIndex) {
    const WordCase cases[] = {
        {"DODAK,SABLONA", 0, "DODAK", "counted from 0"},
        {"DODAK,SABLONA", 1, "SABLONA", ""},
        {"DODAK,SABLONA", 2, "", "fewer fields"},
        {"DODAK,SABLONA", 1000000000, "", "far fewer fields"},
        {"DODAK,SABLONA", -1, "", "before the first"},
        {"DODAK", 0, "DODAK", "one field"},
        {"", 0, "", "no text"},
        {",SABLONA", 0, "", "an empty field"},
        {",SABLONA", 1, "SABLONA", ""},
        {"a,,c", 1, "", "an empty field between"},
        {"a,,c", 2, "c", ""},
        {"a,", 1, "", "an empty last field"},
        {" a , b ", 1, " b ", "blanks belong to the field"},
    };
    for (const WordCase& c : cases) {
        EXPECT_EQ(GetWord(c.text, c.index, ','), c.word) << '"' << c.text << "\" " << c.index << ' ' << c.remark;
    }
}

TEST(GetWord, PartsByTheSeparatorGiven) {
    EXPECT_EQ(GetWord("a,b;c", 1, ';'), "c");
}

} // namespace
