#include "refhost/dbcheck/CheckCommandLine.h"

#include "refhost/CommandLine.h"

#include <gmock/gmock.h>

namespace refhost {
namespace {

using testing::HasSubstr;

std::string refused(const std::vector<std::string>& words) {
    try {
        parseCheckCommandLine(words);
        return "accepted";
    } catch (const CommandLineError& error) {
        return error.what();
    }
}

TEST(CheckCommandLine, TakesItsOptionsInAnyOrder) {
    const CheckCommandLine line =
        parseCheckCommandLine({"--json", "--language", "en", "--database", "sqlite:a b.db", "--user", "nováková",
                               "--locale", "en_GB", "--procedures", "vlastní"});
    EXPECT_EQ(line.database, "sqlite:a b.db");
    EXPECT_EQ(line.user, "nováková");
    EXPECT_EQ(line.locale, "en_GB");
    EXPECT_EQ(line.language, "en");
    EXPECT_EQ(line.procedures, "vlastní");
    EXPECT_TRUE(line.json);
}

TEST(CheckCommandLine, IsCzechAndForPeopleWhenNothingElseIsSaid) {
    const CheckCommandLine line = parseCheckCommandLine({"--database", "sqlite:a.db"});
    EXPECT_EQ(line.locale, "cs_CZ");
    EXPECT_EQ(line.language, "cs");
    EXPECT_FALSE(line.json);
}

TEST(CheckCommandLine, AsksForItsVersionWithoutADatabase) {
    EXPECT_TRUE(parseCheckCommandLine({"--version"}).version);
    EXPECT_FALSE(parseCheckCommandLine({"--database", "sqlite:a.db"}).version);
}

TEST(CheckCommandLine, NeedsADatabaseAndRefusesWhatItDoesNotKnow) {
    EXPECT_THAT(refused({}), HasSubstr("--database"));
    EXPECT_THAT(refused({"--database"}), HasSubstr("--database"));
    EXPECT_THAT(refused({"--database", "sqlite:a.db", "--language", "de"}), HasSubstr("--language"));
    EXPECT_THAT(refused({"--database", "mysql:a"}), HasSubstr("begins with sqlite: or postgresql:"));
    EXPECT_THAT(refused({"--database", "sqlite:a.db", "--user", "--json"}), HasSubstr("--user"));
    EXPECT_THAT(refused({"--database", "sqlite:a.db", "--procedures", ""}), HasSubstr("needs a value"));
    EXPECT_THAT(refused({"--database", "sqlite:a.db", "word"}), HasSubstr("word"));
    EXPECT_EQ(refused({"--help"}), "accepted");
}

TEST(CheckCommandLine, ATrialNeedsItsDocumentAndAConfirmationATrial) {
    const std::vector<std::string> database{"--database", "sqlite:a.db"};
    const auto with = [&](std::vector<std::string> words) {
        words.insert(words.end(), database.begin(), database.end());
        return words;
    };
    const CheckCommandLine line = parseCheckCommandLine(with({"--exercise", "DODOBJ", "--document", "7", "--yes"}));
    EXPECT_EQ(line.screen, "DODOBJ");
    EXPECT_EQ(line.document, 7);
    EXPECT_TRUE(line.isConfirmed);
    EXPECT_THAT(refused(with({"--exercise", "DODOBJ"})), HasSubstr("--document"));
    EXPECT_THAT(refused(with({"--document", "7"})), HasSubstr("--exercise"));
    EXPECT_THAT(refused(with({"--yes"})), HasSubstr("--exercise"));
    EXPECT_THAT(refused(with({"--exercise", "FAKTURY", "--document", "7"})), HasSubstr("--exercise"));
    EXPECT_THAT(refused(with({"--exercise", "DODAK", "--document", "sedm"})), HasSubstr("--document"));
}

TEST(CheckCommandLine, TellsEveryOptionAndTheExitStatus) {
    EXPECT_THAT(checkUsageText(), testing::Not(HasSubstr("Needs:")));
    for (const char* told : {"--database", "--user", "--procedures", "--locale", "--language", "--json", "--exercise",
                             "--document", "--yes", "Exit status"}) {
        EXPECT_THAT(checkUsageText(), HasSubstr(told));
    }
}

} // namespace
} // namespace refhost
