#include "refhost/dbcheck/FindingTexts.h"

#include "refhost/Languages.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace refhost {
namespace {

TEST(FindingTexts, EachKindHasItsSentenceAndAdviceInBothLanguages) {
    const Languages czech("cs");
    const Languages english("en");
    const Finding finding{FindingKind::ParameterType, "PROC", "a_X", "integer", "text"};
    EXPECT_EQ(findingText(finding.Kind).code, "parameter-type");
    EXPECT_EQ(findingSentence(finding, czech), "Parametr a_X procedury PROC má typ text. Změňte jej na integer.");
    EXPECT_EQ(findingSentence(finding, english),
              "The parameter a_X of the procedure PROC has the type text. Make it integer.");
}

TEST(FindingTexts, ThePageForAdministratorsTellsEveryCode) {
    std::ostringstream page;
    page << std::ifstream(MELVARK_SOURCE_DIR "/docs/database.md").rdbuf();
    for (const FindingText& text : findingTexts()) {
        EXPECT_NE(page.str().find("`" + std::string(text.code) + "`"), std::string::npos) << text.code;
        EXPECT_EQ(&findingText(text.kind), &text) << text.code << " is not alone";
    }
}

TEST(FindingTexts, AValueThatLooksLikeAPlaceStaysAsItIs) {
    const Languages czech("cs");
    EXPECT_EQ(findingSentence({FindingKind::RoleMayNotCall, "%2", "%1", {}, {}}, czech),
              "Role %2 nesmí volat %1. Dejte jí právo execute.");
}

TEST(FindingTexts, ARefusalIsToldInTheLanguageAndAFailureInTheDatabasesWords) {
    const Languages english("en");
    const Finding refused{FindingKind::CompanyMissing,
                          {},
                          {},
                          {},
                          {},
                          EDatabaseError("Databáze „firma“ nemá tabulky. Nejprve ji vytvořte.", "ML922", "details")};
    EXPECT_EQ(findingSentence(refused, english), foundText(refused, english));
    EXPECT_NE(foundText(refused, english).find("“firma”"), std::string::npos) << foundText(refused, english);
    const Finding failed{FindingKind::ViewUnusable,
                         "A_V",
                         {},
                         {},
                         {},
                         EDatabaseError("Nejde to.", "ML930", "SQLite 1: no such table: A_V\nselect * from A_V",
                                        TDatabaseCause::Failure)};
    EXPECT_EQ(findingSentence(failed, english),
              "The view A_V cannot be read. Create or mend it. (SQLite 1: no such table: A_V)");
}

} // namespace
} // namespace refhost
