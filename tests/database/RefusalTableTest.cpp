#include "refhost/database/RefusalTable.h"

#include "refhost/database/EmbeddedSql.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>
#include <stdexcept>

namespace refhost {

namespace {

std::set<std::string> tableKeys() {
    std::set<std::string> keys;
    for (const RefusalRow& row : refusalRows()) {
        keys.emplace(row.Key);
    }
    return keys;
}

/// The texts of all SQL of an engine, without the comments.
std::string statements(std::span<const SqlFile> files) {
    static const std::regex comment("--[^\n]*");
    std::string text;
    for (const SqlFile& file : files) {
        if (file.Path != "functions/refusal_sentence.sql") {
            text += std::regex_replace(std::string(file.Text), comment, "") + "\n";
        }
    }
    return text;
}

/// The program's own sources.
std::string programText() {
    std::string text;
    for (const auto& file : std::filesystem::recursive_directory_iterator(MELVARK_SOURCE_DIR "/refhost")) {
        if (file.path().extension() == ".cpp") {
            text.append(std::istreambuf_iterator<char>(std::ifstream(file.path()).rdbuf()), {});
        }
    }
    return text;
}

std::set<std::string> quotedKeys(const std::string& text, char quote) {
    const std::regex key(std::string(1, quote) + "(ML[0-9]{3}(/[a-z]+)?)" + quote);
    return {std::sregex_token_iterator(text.begin(), text.end(), key, 1), std::sregex_token_iterator()};
}

TEST(RefusalTable, FillsThePlacesOfASentence) {
    const EDatabaseError error = refusal("ML034", {"2", "Mouky", "Nápoje"});

    EXPECT_EQ(error.Message(),
              "Skupina 2. úrovně „Mouky“ neleží pod skupinou „Nápoje“. Vyberte skupiny, které k sobě patří.");
    EXPECT_EQ(error.Code(), "ML034");
}

TEST(RefusalTable, LeavesAPlaceInTheNameOfAThingAlone) {
    EXPECT_EQ(refusal("ML022", {"{2}", "DL-1"}).Message(),
              "Zapsáno je „{2}“, ale vybráno bylo „DL-1“. Vyberte ze seznamu znovu.");
}

TEST(RefusalTable, GivesTheFormsOfOneCodeThatCode) {
    EXPECT_EQ(refusal("ML013/template", {"VZ-2"}).Code(), "ML013");
}

TEST(RefusalTable, KnowsNoOtherKeyAndLeavesNoPlaceEmpty) {
    EXPECT_THROW(refusal("ML000"), std::logic_error);
    EXPECT_THROW(refusal("ML034", {"2", "Mouky"}), std::logic_error);
}

TEST(RefusalTable, HasEveryKeyThatTheSqlOfAnEngineRefusesWith) {
    const std::set<std::string> known = tableKeys();
    for (const auto files : {sqliteFiles(), postgresqlFiles()}) {
        const std::set<std::string> used = quotedKeys(statements(files), '\'');
        EXPECT_GT(used.size(), 40U) << "the keys are not recognised any more";
        for (const std::string& key : used) {
            EXPECT_TRUE(known.contains(key)) << key;
        }
    }
}

TEST(RefusalTable, HasEveryKeyThatTheProgramRefusesWith) {
    const std::set<std::string> known = tableKeys();
    const std::set<std::string> used = quotedKeys(programText(), '"');
    EXPECT_GT(used.size(), 30U) << "the keys are not recognised any more";
    for (const std::string& key : used) {
        EXPECT_TRUE(known.contains(key)) << key;
    }
}

TEST(RefusalTable, HasNoKeyThatNobodyRefusesWith) {
    std::set<std::string> used = quotedKeys(programText(), '"');
    for (const auto files : {sqliteFiles(), postgresqlFiles()}) {
        used.merge(quotedKeys(statements(files), '\''));
    }
    for (const std::string& key : tableKeys()) {
        EXPECT_TRUE(used.contains(key)) << key;
    }
}

/// A sentence has one place to stand: no engine and no function spells one out beside the table.
TEST(RefusalTable, IsTheOnlyPlaceOfItsSentences) {
    for (const std::string& text : {statements(sqliteFiles()), statements(postgresqlFiles()), programText()}) {
        for (const RefusalRow& row : refusalRows()) {
            const std::string sentence(row.Sentence);
            const std::string ending =
                sentence.substr(sentence.rfind(". ") == std::string::npos ? 0 : sentence.rfind(". ") + 2);
            EXPECT_EQ(text.find(ending), std::string::npos) << row.Key;
        }
    }
}

/// Nobody makes an error of the database or of a file without the table, but who passes on what the server itself said.
/// Other classes are about a start that has no language yet and about lines that a script was given.
TEST(RefusalTable, IsAskedForEveryErrorOfTheProgram) {
    static const std::regex made("\\b(EDatabaseError|EInOutError)[({]\\s*\"");
    const std::string text = programText();
    std::smatch found;
    EXPECT_FALSE(std::regex_search(text, found, made)) << found.str();
    EXPECT_TRUE(std::regex_search(std::string("throw EInOutError(\n\"Soubor"), made)) << "it finds nothing";
}

} // namespace

} // namespace refhost
