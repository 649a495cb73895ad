#include "refhost/screens/Screens.h"

#include "host/Exceptions.h"
#include "refhost/Languages.h"
#include "refhost/screens/DocumentDataSet.h"
#include "tests/refhost/ScreenRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace refhost {

namespace {

using testing::HasSubstr;

TEST(Screens, AreThreeInTheOrderOfTheirTabs) {
    ASSERT_EQ(screenDefinitions().size(), 3u);
    EXPECT_EQ(screenDefinitions()[0].code, "DODAK");
    EXPECT_EQ(screenDefinitions()[1].code, "DODOBJ");
    EXPECT_EQ(screenDefinitions()[2].code, "DODOBJVZOR");
}

TEST(Screens, AreFoundByTheirExactCode) {
    const Languages languages("cs");
    EXPECT_EQ(findScreen("DODOBJVZOR", languages).linesView, "SCREEN_DODOBJVZOR_LINES_V");
    try {
        findScreen("dodak", languages);
        FAIL() << "found";
    } catch (const EHostError& error) {
        EXPECT_THAT(error.Message(), HasSubstr("„dodak“"));
    }
}

TEST(Screens, TheFirstWordOfParametersNamesTheScreenAndAStrangeWordTheDeliveryNotes) {
    EXPECT_EQ(screenOfParams("DODOBJ,SABLONA").code, "DODOBJ");
    EXPECT_EQ(screenOfParams("DODOBJVZOR").code, "DODOBJVZOR");
    EXPECT_EQ(screenOfParams("dodobj").code, "DODAK");
    EXPECT_EQ(screenOfParams("").code, "DODAK");
}

TEST(DocumentDataSet, GivesTheFieldsOfItsRow) {
    const DocumentDataSet dataSet(deliveryNotes(), 1, TFormatSettings::Czech());

    EXPECT_FALSE(dataSet.IsEmpty());
    EXPECT_EQ(dataSet.FieldByName("_ID").AsInteger(), 102);
    EXPECT_EQ(dataSet.FieldByName("dodavatel").AsString(), "Čapek");
}

TEST(DocumentDataSet, WithoutARowIsEmptyButKnowsItsFields) {
    const DocumentDataSet dataSet(deliveryNotes(), std::nullopt, TFormatSettings::Czech());

    EXPECT_TRUE(dataSet.IsEmpty());
    EXPECT_TRUE(dataSet.FieldByName("_ID").IsNull());
}

TEST(DocumentDataSet, NamesAFieldThatItLacks) {
    const DocumentDataSet dataSet(deliveryNotes(), 0, TFormatSettings::Czech());

    EXPECT_EQ(dataSet.FindField("_SKLDID").has_value(), false);
    try {
        dataSet.FieldByName("_SKLDID");
        FAIL() << "found";
    } catch (const EDatabaseError& error) {
        EXPECT_THAT(error.Message(), HasSubstr("_SKLDID"));
    }
}

} // namespace

} // namespace refhost
