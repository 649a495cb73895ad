#include "refhost/CommandLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace refhost {

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::Pair;

struct GoodCase {
    const char* name;
    std::vector<std::string> words;
    Command command;
    std::string subject;
    std::int32_t document;
    std::int32_t lines;
};

class GoodCommandLine : public testing::TestWithParam<GoodCase> {};

TEST_P(GoodCommandLine, IsUnderstood) {
    const CommandLine line = parseCommandLine(GetParam().words);

    EXPECT_EQ(line.command, GetParam().command);
    EXPECT_EQ(line.subject, GetParam().subject);
    EXPECT_EQ(line.document, GetParam().document);
    EXPECT_EQ(line.lines, GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, GoodCommandLine,
    testing::Values(
        GoodCase{"Nothing", {}, Command::OpenHost, "", 0, 0},
        GoodCase{
            "Execute", {"--execute", "DODAK,SABLONA", "--document", "12"}, Command::Execute, "DODAK,SABLONA", 12, 0},
        GoodCase{"DocumentFirst", {"--document", "12", "--execute", "DODAK"}, Command::Execute, "DODAK", 12, 0},
        // An empty first word is for the item to judge, not for the command line.
        GoodCase{"EmptyParams", {"--execute", "", "--document", "1"}, Command::Execute, "", 1, 0},
        // Record numbers are positive, but that is for the screen to say.
        GoodCase{"NegativeDocument", {"--show", "DODAK", "--document", "-5"}, Command::Show, "DODAK", -5, 0},
        GoodCase{"LeadingZeroIsDecimal", {"--show", "DODAK", "--document", "010"}, Command::Show, "DODAK", 10, 0},
        GoodCase{"ValueBehindAnEqualsSign", {"--show=DODAK", "--document=7"}, Command::Show, "DODAK", 7, 0},
        // Brackets and braces mean something to other programs; here they are the text.
        GoodCase{"BracketsAreText", {"--query", "[a,b]"}, Command::Query, "[a,b]", 0, 0},
        GoodCase{"BracesAreText", {"--query", "{}"}, Command::Query, "{}", 0, 0},
        GoodCase{"Call", {"--call", "MELVARKEDITORDodakInit"}, Command::Call, "MELVARKEDITORDodakInit", 0, 0},
        GoodCase{"CallBatch", {"--call", "--batch"}, Command::Batch, "", 0, 0},
        GoodCase{"BatchAlone", {"--batch"}, Command::Batch, "", 0, 0},
        // The procedure then serves the lines that name none.
        GoodCase{"BatchOfOneProcedure", {"--call", "X", "--batch"}, Command::Batch, "X", 0, 0},
        GoodCase{"Query", {"--query", "select 1"}, Command::Query, "select 1", 0, 0},
        GoodCase{"Documents", {"--documents", "DODOBJVZOR"}, Command::Documents, "DODOBJVZOR", 0, 0},
        GoodCase{"Create", {"--create-database"}, Command::CreateDatabase, "", 0, 0},
        GoodCase{"CreateWithLines", {"--create-database", "--lines", "5000"}, Command::CreateDatabase, "", 0, 5000},
        GoodCase{"Upgrade", {"--upgrade-database"}, Command::UpgradeDatabase, "", 0, 0},
        GoodCase{"Version", {"--version"}, Command::Version, "", 0, 0},
        GoodCase{"Help", {"--help"}, Command::Help, "", 0, 0}),
    [](const auto& row) { return row.param.name; });

struct BadCase {
    const char* name;
    std::vector<std::string> words;
    const char* part;
};

class BadCommandLine : public testing::TestWithParam<BadCase> {};

TEST_P(BadCommandLine, IsRefusedWithTheWordThatIsWrong) {
    try {
        parseCommandLine(GetParam().words);
        FAIL() << "accepted";
    } catch (const CommandLineError& error) {
        EXPECT_THAT(error.what(), HasSubstr(GetParam().part));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, BadCommandLine,
    testing::Values(
        BadCase{"UnknownOption", {"--colour", "red"}, "unknown word: --colour"},
        BadCase{"LooseWord", {"DODAK"}, "unknown word: DODAK"},
        BadCase{"NoValue", {"--database"}, "--database: 1 required"},
        BadCase{"OptionInsteadOfValue", {"--user", "--batch"}, "--user: needs a value"},
        BadCase{"EmptyValue", {"--user", ""}, "--user: needs a value"},
        BadCase{"Twice", {"--user", "a", "--user", "b"}, "--user: At Most 1"},
        BadCase{"CommandTwice", {"--batch", "--batch"}, "--batch: At Most 1"},
        BadCase{"CommandWithAnAnswer", {"--batch=false"}, "batch was given a disallowed"},
        BadCase{"UnknownOptionAmongValues", {"--call", "X", "a_ID=1", "--b=2"}, "unknown word: --b=2"},
        BadCase{"TwoCommands", {"--query", "select 1", "--documents", "DODAK"}, "--query excludes --documents"},
        BadCase{"NoDocument", {"--execute", "DODAK"}, "--execute requires --document"},
        BadCase{"DocumentOfNothing", {"--document", "1"}, "--document: belongs to --execute or --show"},
        BadCase{"DocumentIsText", {"--show", "DODAK", "--document", "first"}, "\"first\""},
        BadCase{"DocumentIsNoDecimalNumber", {"--show", "DODAK", "--document", "0x10"}, "\"0x10\""},
        BadCase{"DocumentTooBig", {"--show", "DODAK", "--document", "2147483648"}, "\"2147483648\""},
        BadCase{"NoProcedure", {"--call"}, "--call: needs a procedure"},
        BadCase{"ValuesInBatch",
                {"--call", "--batch", "a_ID=1"},
                "unknown word: a_ID=... (values belong to --call, those of a batch to its lines)"},
        BadCase{"BatchOfQuery", {"--query", "select 1", "--batch"}, "--batch excludes --query"},
        BadCase{"ValuesOfQuery", {"--query", "select 1", "a_ID=1"}, "belong to --call"},
        BadCase{"NamelessValue", {"--call", "X", "=1"}, "unknown word: =1"},
        BadCase{"LinesOfNothing", {"--lines", "5"}, "--lines: belongs to --create-database"},
        BadCase{"NegativeLines", {"--create-database", "--lines", "-1"}, "--lines: must not be less than 0"},
        BadCase{"EmptyWithLines", {"--create-database", "--empty", "--lines", "3"}, "--lines excludes --empty"},
        BadCase{"EmptyOfNothing", {"--empty"}, "--empty: belongs to --create-database"},
        BadCase{"UpgradeAndCreate",
                {"--upgrade-database", "--create-database"},
                "--create-database excludes --upgrade-database"},
        BadCase{"OtherEngine", {"--database", "file.db"}, "--database: begins with"},
        BadCase{"OtherLocale", {"--locale", "de_DE"}, "--locale: de_DE not in"},
        BadCase{"OtherLanguage", {"--language", "de"}, "--language: de not in"}),
    [](const auto& row) { return row.param.name; });

TEST(CommandLine, HasTheLocaleAndLanguageOfTheCompanyUntilToldOtherwise) {
    const CommandLine line = parseCommandLine({});

    EXPECT_EQ(line.locale, "cs_CZ");
    EXPECT_EQ(line.language, "cs");
    EXPECT_EQ(line.database, "");
    EXPECT_EQ(line.user, "");
    EXPECT_EQ(line.traceFile, "");
    EXPECT_EQ(line.logFile, "");
    EXPECT_FALSE(line.logValues);
}

TEST(CommandLine, TakesTheOptionsThatGoWithEveryCommand) {
    const CommandLine line =
        parseCommandLine({"--database", "sqlite:a b.db", "--user", "novakova", "--locale", "en_GB", "--language", "en",
                          "--trace", "t.jsonl", "--log", "l.jsonl", "--log-values", "--query", "select 1"});

    EXPECT_EQ(line.database, "sqlite:a b.db");
    EXPECT_EQ(line.user, "novakova");
    EXPECT_EQ(line.locale, "en_GB");
    EXPECT_EQ(line.language, "en");
    EXPECT_EQ(line.traceFile, "t.jsonl");
    EXPECT_EQ(line.logFile, "l.jsonl");
    EXPECT_TRUE(line.logValues);
}

TEST(CommandLine, TakesAFolderOfProceduresAndTheWishForAnEmptyCompany) {
    EXPECT_EQ(parseCommandLine({"--procedures", "own", "--call", "X"}).procedures, "own");
    EXPECT_TRUE(parseCommandLine({"--create-database", "--empty"}).empty);
    EXPECT_FALSE(parseCommandLine({"--create-database"}).empty);
}

TEST(CommandLine, KeepsTheValuesOfACallInOrderAndPartsThemAtTheFirstEqualsSign) {
    const CommandLine line = parseCommandLine({"--call", "X", "a_TEXT=1=2", "a_EMPTY=", "a_NUMBER=-5"});

    EXPECT_THAT(line.arguments,
                testing::ElementsAre(Pair("a_TEXT", "1=2"), Pair("a_EMPTY", ""), Pair("a_NUMBER", "-5")));
}

TEST(CommandLine, UsageNamesEveryCommand) {
    for (const char* option :
         {"--execute",         "--document",         "--call",  "--batch", "--query",      "--documents", "--show",
          "--create-database", "--upgrade-database", "--lines", "--empty", "--procedures", "--database",  "--user",
          "--locale",          "--language",         "--trace", "--log",   "--log-values", "--version"}) {
        EXPECT_THAT(usageText(), HasSubstr(option));
    }
    EXPECT_THAT(usageText(), Not(HasSubstr("Excludes")));
}

} // namespace

} // namespace refhost
