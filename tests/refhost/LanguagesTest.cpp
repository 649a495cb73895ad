#include "refhost/Languages.h"

#include "host/Exceptions.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

namespace refhost {

namespace {

struct FoundText {
    std::string key;
    std::string builtIn;
};

std::string read(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

/// One string literal made of several pieces, and its escapes, as the compiler joins them.
std::string joinLiteral(const std::string& literal) {
    std::string joined;
    static const std::regex piece(R"re("((?:[^"\\]|\\.)*)")re");
    for (std::sregex_iterator match(literal.begin(), literal.end(), piece), end; match != end; ++match)
        joined += std::regex_replace((*match)[1].str(), std::regex(R"(\\(.))"), "$1");
    return joined;
}

/// Every key of the host in its sources, with the text beside it.
std::vector<FoundText> hostTexts() {
    static const std::regex entry(R"re(\{\s*("MELVARKHOST\\\\[^"]*"),\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\})re");
    std::vector<FoundText> found;
    for (const auto& file : std::filesystem::recursive_directory_iterator(REFHOST_SOURCES)) {
        const std::string extension = file.path().extension().string();
        if (extension != ".h" && extension != ".cpp")
            continue;
        const std::string text = read(file.path());
        for (std::sregex_iterator match(text.begin(), text.end(), entry), end; match != end; ++match)
            found.push_back({joinLiteral((*match)[1].str()), joinLiteral((*match)[2].str())});
    }
    return found;
}

std::multiset<std::string> placeholders(const std::string& text) {
    static const std::regex placeholder("%[0-9sdfm]");
    return {std::sregex_token_iterator(text.begin(), text.end(), placeholder), std::sregex_token_iterator()};
}

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
    EXPECT_EQ(Languages("en").translation("KORDAN30\\NIKDE", "Nikde"), std::nullopt);
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

TEST(Languages, EveryTextOfTheHostIsInTheEnglishCatalogueWithTheSamePlaceholders) {
    const Languages english("en");
    const std::vector<FoundText> found = hostTexts();

    ASSERT_GT(found.size(), 80u) << "the sources were not found";
    for (const FoundText& text : found) {
        const auto translated = english.translation(text.key, text.builtIn);
        ASSERT_TRUE(translated) << text.key << " is not in the catalogue";
        EXPECT_EQ(placeholders(*translated), placeholders(text.builtIn)) << text.key;
    }
}

} // namespace

} // namespace refhost
