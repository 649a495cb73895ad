#include "refhost/dbcheck/CheckReport.h"

#include "refhost/Languages.h"

#include <gtest/gtest.h>

namespace refhost {
namespace {

const CheckReport c_TwoFindings{"sqlite:/firma.db",
                                {{FindingKind::ProcedureMissing, "PROC", {}, {}, {}},
                                 {FindingKind::ViewColumnMissing, "A_V", "_ID", "integer", {}}}};

TEST(CheckReport, HasALineAFindingAndTheirNumber) {
    EXPECT_EQ(reportText(c_TwoFindings, Languages("cs")), "Procedura PROC chybí. Vytvořte ji.\n"
                                                          "Pohled A_V nemá sloupec _ID (integer). Přidejte jej.\n"
                                                          "Nevyhovuje, nálezů: 2\n");
}

TEST(CheckReport, SaysThatADatabaseFits) {
    EXPECT_EQ(reportText({"sqlite:/firma.db", {}}, Languages("cs")), "Databáze vyhovuje.\n");
    EXPECT_EQ(reportText({"sqlite:/firma.db", {}}, Languages("en")), "The database fits.\n");
    EXPECT_EQ(reportJson({"sqlite:/firma.db", {}}, Languages("cs")),
              R"({"database":"sqlite:/firma.db","fits":true,"findings":[]})"
              "\n");
}

TEST(CheckReport, IsOneJsonObjectForPrograms) {
    EXPECT_EQ(reportJson(c_TwoFindings, Languages("en")),
              R"({"database":"sqlite:/firma.db","fits":false,"findings":[)"
              R"({"code":"procedure-missing","object":"PROC","member":"","expected":"","found":"",)"
              R"("sentence":"The procedure PROC is missing. Create it."},)"
              R"({"code":"view-column-missing","object":"A_V","member":"_ID","expected":"integer","found":"",)"
              R"("sentence":"The view A_V has no column _ID (integer). Add it."}]})"
              "\n");
}

} // namespace
} // namespace refhost
