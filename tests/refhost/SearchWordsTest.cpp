#include "refhost/tables/SearchWords.h"

#include <gtest/gtest.h>

namespace refhost {

namespace {

struct SearchCase {
    const char* name;
    const char16_t* typed;
    const char16_t* row;
    bool matches;
};

class SearchWordsTest : public testing::TestWithParam<SearchCase> {};

TEST_P(SearchWordsTest, FindsAllWordsAnywhere) {
    const SearchWords words(QString::fromUtf16(GetParam().typed));
    EXPECT_EQ(words.matches(foldForSearch(QString::fromUtf16(GetParam().row))), GetParam().matches);
}

INSTANTIATE_TEST_SUITE_P(Cases, SearchWordsTest,
                         testing::Values(SearchCase{"Nothing", u"", u"Železárny", true},
                                         SearchCase{"Blanks", u"  ", u"Železárny", true},
                                         SearchCase{"Part", u"lezár", u"Železárny", true},
                                         SearchCase{"WithoutMarks", u"zelezarny", u"Železárny", true},
                                         // Whoever types the mark finds the text with it, and the one without as well.
                                         SearchCase{"WithMarks", u"žito", u"zito", true},
                                         SearchCase{"OtherCase", u"ŽELEZ", u"Železárny", true},
                                         SearchCase{"AnyOrder", u"praha dl", u"DL-2027 Praha", true},
                                         SearchCase{"OneMissing", u"praha brno", u"DL-2027 Praha", false},
                                         SearchCase{"AcrossWords", u"2027praha", u"DL-2027 Praha", false},
                                         // What looks like a pattern is only text.
                                         SearchCase{"NoPattern", u".*", u"DL-2027", false},
                                         SearchCase{"Percent", u"21 %", u"DPH 21 %", true}),
                         [](const auto& row) { return row.param.name; });

} // namespace

} // namespace refhost
