#include "refhost/Languages.h"

#include "host/Exceptions.h"

#include <gtest/gtest.h>

namespace refhost {

namespace {

TEST(Languages, CzechIsBuiltIn) {
    const Languages czech("cs");

    EXPECT_EQ(czech.text(texts::insertLines), "&Vložit položky");
    EXPECT_EQ(czech.translation(texts::insertLines.key, texts::insertLines.builtIn), std::nullopt);
}

TEST(Languages, EnglishComesFromTheCatalogues) {
    const Languages english("en");

    EXPECT_EQ(english.text(texts::insertLines), "&Insert lines");
    EXPECT_EQ(english.label(texts::refresh), u"&Refresh");
}

TEST(Languages, AKeyThatNoCatalogueHasGivesNothing) {
    EXPECT_EQ(Languages("en").translation(R"(KORDAN30\NIKDE)", "Nikde"), std::nullopt);
}

TEST(Languages, EntriesThatShareAKeyAreToldApartByTheirBuiltInText) {
    const Languages english("en");

    EXPECT_EQ(english.translation("MELVARKHOST\\STATE", "otevřený"), "open");
    EXPECT_EQ(english.translation("MELVARKHOST\\STATE", "uzavřený"), "closed");
    EXPECT_EQ(english.translation("MELVARKHOST\\STATE", "zapomenutý"), std::nullopt);
}

TEST(Languages, AKeyOfOneMeaningIsFoundWhateverItsBuiltInText) {
    EXPECT_EQ(Languages("en").translation(texts::errorCaption.key, "jiný text"), "Error");
}

TEST(Languages, ALanguageWithoutCataloguesIsRefused) {
    EXPECT_THROW(Languages("xx"), EHostError);
}

} // namespace

} // namespace refhost
