#include "refhost/dbcheck/CheckReport.h"

#include "refhost/Languages.h"

#include <gtest/gtest.h>

namespace refhost {
namespace {

const CheckReport c_TwoFindings{"sqlite:/firma.db",
                                {{FindingKind::ProcedureMissing, "PROC", {}, {}, {}},
                                 {FindingKind::ViewColumnMissing, "A_V", "_ID", "integer", {}}},
                                false,
                                {}};

/// What a trial left before its link was lost.
const CheckReport c_BrokenOff{
    "sqlite:/firma.db", {}, true, {{Written::What::Lines, "DODAK 5", 3}, {Written::What::Setting, "a %2 b"}}, false};

TEST(CheckReport, HasALineAFindingAndTheirNumber) {
    EXPECT_EQ(reportText(c_TwoFindings, Languages("cs")), "Procedura PROC chybí. Vytvořte ji.\n"
                                                          "Pohled A_V nemá sloupec _ID (integer). Přidejte jej.\n"
                                                          "Nevyhovuje, nálezů: 2\n");
}

TEST(CheckReport, SaysThatADatabaseFits) {
    EXPECT_EQ(reportText({"sqlite:/firma.db", {}, false, {}}, Languages("cs")), "Databáze vyhovuje.\n");
    EXPECT_EQ(reportText({"sqlite:/firma.db", {}, false, {}}, Languages("en")), "The database fits.\n");
    EXPECT_EQ(
        reportJson({"sqlite:/firma.db", {}, false, {}}, Languages("cs")),
        R"({"database":"sqlite:/firma.db","fits":true,"complete":true,"exercised":false,"findings":[],"written":[]})"
        "\n");
}

TEST(CheckReport, IsOneJsonObjectForPrograms) {
    EXPECT_EQ(reportJson(c_TwoFindings, Languages("en")),
              R"({"database":"sqlite:/firma.db","fits":false,"complete":true,"exercised":false,"findings":[)"
              R"({"code":"procedure-missing","object":"PROC","member":"","expected":"","found":"",)"
              R"("sentence":"The procedure PROC is missing. Create it."},)"
              R"({"code":"view-column-missing","object":"A_V","member":"_ID","expected":"integer","found":"",)"
              R"("sentence":"The view A_V has no column _ID (integer). Add it."}],"written":[]})"
              "\n");
}

TEST(CheckReport, TellsWhatATrialWroteAndClaimsNothingOfADatabaseThatWasLost) {
    EXPECT_EQ(reportText(c_BrokenOff, Languages("cs")), "Zapsáno: doklad DODAK 5, nové řádky: 3\n"
                                                        "Zapsáno: nastavení sloupců „a %2 b“, nakonec zase smazané\n");
    EXPECT_EQ(reportJson(c_BrokenOff, Languages("en")),
              R"({"database":"sqlite:/firma.db","fits":false,"complete":false,"exercised":true,"findings":[],)"
              R"("written":[{"kind":"lines","object":"DODAK 5","count":3},)"
              R"({"kind":"setting","object":"a %2 b","count":1}]})"
              "\n");
}

} // namespace
} // namespace refhost
