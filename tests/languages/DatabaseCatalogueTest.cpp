#include "refhost/Languages.h"
#include "refhost/Refusals.h"
#include "refhost/database/RefusalTable.h"
#include "tests/languages/CatalogueFile.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

namespace {

const std::string c_keyStart = "MELVARKHOST\\REFUSAL\\";

std::string codeOf(const CatalogueEntry& entry) {
    return entry.id.substr(c_keyStart.size(), std::string("ML000").size());
}

/// Every refusal code that stands in the database's sources, in code or comment.
std::set<std::string> codesOfTheDatabase() {
    static const std::regex code("ML[0-9]{3}");
    std::set<std::string> codes;
    for (const auto& file : std::filesystem::recursive_directory_iterator(MELVARK_SOURCES "/refhost/database")) {
        const std::string extension = file.path().extension().string();
        if (extension != ".txt" && extension != ".sql" && extension != ".cpp") {
            continue;
        }
        std::ostringstream text;
        text << std::ifstream(file.path()).rdbuf();
        const std::string source = text.str();
        codes.insert(std::sregex_token_iterator(source.begin(), source.end(), code), std::sregex_token_iterator());
    }
    return codes;
}

class DatabaseCatalogue : public testing::TestWithParam<std::string> {};

TEST_P(DatabaseCatalogue, HasEveryCodeOfTheDatabaseAndNoOther) {
    std::set<std::string> translated;
    for (const CatalogueEntry& entry : readCatalogue("database", GetParam())) {
        EXPECT_TRUE(entry.id.starts_with(c_keyStart)) << entry.id;
        translated.insert(codeOf(entry));
    }
    EXPECT_EQ(translated, codesOfTheDatabase());
}

TEST_P(DatabaseCatalogue, NamesInEachSentenceTheThingsThatTheCzechOneNames) {
    for (const CatalogueEntry& entry : readCatalogue("database", GetParam())) {
        EXPECT_EQ(placeholders(entry.translation), placeholders(entry.source)) << entry.id;
        EXPECT_NE(entry.translation, entry.source) << entry.id;
    }
}

TEST_P(DatabaseCatalogue, FormsOfOneCodeBearTheirCzechPatternInTheId) {
    for (const CatalogueEntry& entry : readCatalogue("database", GetParam())) {
        const std::size_t bar = entry.id.find('|');
        if (bar == std::string::npos) {
            continue;
        }
        EXPECT_EQ(entry.id.substr(bar + 1), entry.source);
        EXPECT_EQ(refhost::takeThingsOut(entry.source).pattern, entry.source) << "the pattern is not in its final form";
    }
}

/// A refusal as the database sends it: its places filled, each by something else.
EDatabaseError sentOf(const refhost::RefusalRow& row) {
    return refhost::refusal(row.Key, {"první", "druhý", "třetí", "čtvrtý", "pátý", "šestý", "sedmý", "osmý", "devátý"});
}

TEST_P(DatabaseCatalogue, TellsEveryRefusalOfTheTable) {
    const refhost::Languages language(GetParam());
    for (const refhost::RefusalRow& row : refhost::refusalRows()) {
        // What kind of thing "{1}" is stands in the sentence, and each kind has a text of its own.
        EXPECT_TRUE(row.Sentence.starts_with("{1} ") || refhost::translateRefusal(sentOf(row), language)) << row.Key;
    }
}

TEST_P(DatabaseCatalogue, TellsTheFormsOfACodeApart) {
    std::set<std::string> ids;
    for (const CatalogueEntry& entry : readCatalogue("database", GetParam())) {
        ids.insert(entry.id);
    }
    for (const refhost::RefusalRow& row : refhost::refusalRows()) {
        if (row.Key.find('/') != std::string_view::npos) {
            const EDatabaseError sent = sentOf(row);
            EXPECT_TRUE(ids.contains(c_keyStart + sent.Code() + "|" + refhost::takeThingsOut(sent.Message()).pattern))
                << row.Key;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, DatabaseCatalogue, testing::ValuesIn(c_translatedLanguages),
                         [](const auto& row) { return row.param; });

} // namespace
