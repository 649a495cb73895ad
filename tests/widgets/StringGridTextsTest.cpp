#include "host/widgets/StringGridTexts.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

/// A column with the header "Množství" over the texts 10, 20 and 30.
class StringGridTextsTest : public testing::Test {
protected:
    StringGridTextsTest() {
        texts.SetText(0, "Množství");
        texts.SetUnderneath(
            [this](int row) -> const AnsiString& { return underneath.at(static_cast<std::size_t>(row) - 1); });
    }

    std::vector<AnsiString> underneath{"10", "20", "30"};
    melvark::StringGridTexts texts;
};

} // namespace

TEST_F(StringGridTextsTest, WithoutAnythingUnderneathCellsAreEmpty) {
    melvark::StringGridTexts column;
    EXPECT_EQ(column.Text(2), "");
    column.SetText(2, "x");
    EXPECT_EQ(column.Text(2), "x");
    column.SetText(2, "");
    EXPECT_EQ(column.Text(2), "");
}

TEST_F(StringGridTextsTest, ShowsWhatLiesUnderneathWithoutACopy) {
    EXPECT_EQ(&texts.Text(2), &underneath[1]);
    underneath[1] = "25";
    EXPECT_EQ(texts.Text(2), "25");
}

TEST_F(StringGridTextsTest, AWrittenTextHidesTheOneUnderneath) {
    texts.SetText(2, "20,00");
    EXPECT_EQ(texts.Text(2), "20,00");
    EXPECT_EQ(texts.Text(3), "30");
    underneath[1] = "21";
    EXPECT_EQ(texts.Text(2), "20,00");
}

TEST_F(StringGridTextsTest, AnEmptyTextHidesTheOneUnderneathToo) {
    texts.SetText(2, "");
    EXPECT_EQ(texts.Text(2), "");
}

TEST_F(StringGridTextsTest, TheSameTextAsUnderneathIsNotKept) {
    texts.SetText(2, "20,00");
    texts.SetText(2, "20");
    EXPECT_EQ(&texts.Text(2), &underneath[1]);
}

TEST_F(StringGridTextsTest, NewTextsUnderneathForgetWhatWasWrittenButTheHeader) {
    texts.SetText(1, "x");
    const AnsiString other = "y";
    texts.SetUnderneath([&](int) -> const AnsiString& { return other; });
    EXPECT_EQ(texts.Text(0), "Množství");
    EXPECT_EQ(texts.Text(1), "y");
}

TEST_F(StringGridTextsTest, ForgottenRowsShowWhatLiesUnderneath) {
    texts.SetText(1, "a");
    texts.SetText(2, "b");
    texts.SetText(3, "c");
    texts.ForgetFrom(2);
    EXPECT_EQ(texts.Text(1), "a");
    EXPECT_EQ(texts.Text(2), "20");
    EXPECT_EQ(texts.Text(3), "30");
}
