#include "refhost/Languages.h"
#include "tests/languages/CatalogueFile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

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
    for (std::sregex_iterator match(literal.begin(), literal.end(), piece), end; match != end; ++match) {
        joined += std::regex_replace((*match)[1].str(), std::regex(R"(\\(.))"), "$1");
    }
    return joined;
}

/// Every key of the host in its sources, with the text beside it.
std::vector<FoundText> hostTexts() {
    static const std::regex entry(R"re(\{\s*("MELVARKHOST\\\\[^"]*"),\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\})re");
    std::vector<FoundText> found;
    for (const auto& file : std::filesystem::recursive_directory_iterator(MELVARK_SOURCES "/refhost")) {
        const std::string extension = file.path().extension().string();
        if (extension != ".h" && extension != ".cpp") {
            continue;
        }
        const std::string text = read(file.path());
        for (std::sregex_iterator match(text.begin(), text.end(), entry), end; match != end; ++match) {
            found.push_back({joinLiteral((*match)[1].str()), joinLiteral((*match)[2].str())});
        }
    }
    return found;
}

class HostCatalogue : public testing::TestWithParam<std::string> {};

TEST_P(HostCatalogue, HasEveryTextOfTheHostWithTheSamePlaceholders) {
    const refhost::Languages language(GetParam());
    const std::vector<FoundText> found = hostTexts();
    ASSERT_GT(found.size(), 80u) << "the sources were not found";
    for (const FoundText& text : found) {
        const auto translation = language.translation(text.key, text.builtIn);
        if (!translation) {
            ADD_FAILURE() << "missing: " << text.key;
            continue;
        }
        EXPECT_EQ(placeholders(*translation), placeholders(text.builtIn)) << text.key;
    }
}

TEST_P(HostCatalogue, HasNoTextThatNobodyShowsAndGivesTheCzechTextAsItIs) {
    const std::vector<FoundText> found = hostTexts();
    for (const CatalogueEntry& entry : readCatalogue("host", GetParam())) {
        const bool isShown = std::ranges::any_of(found, [&](const FoundText& text) {
            return text.builtIn == entry.source && (entry.id == text.key || entry.id == text.key + "|" + text.builtIn);
        });
        EXPECT_TRUE(isShown) << entry.id << " = " << entry.source;
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, HostCatalogue, testing::ValuesIn(c_translatedLanguages),
                         [](const auto& row) { return row.param; });

} // namespace
