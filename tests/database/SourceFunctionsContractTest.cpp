#include "refhost/database/SampleCompany.h"
#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/SourceSweep.h"

#include <algorithm>

namespace refhost {

namespace {

class SourceFunctionsContract : public Contract {
protected:
    static std::string value(const std::string& expression) { return rows(sharedCompany(), "select " + expression); }
};

std::string firstOf(const std::vector<std::string>& differences) {
    std::string text;
    for (std::size_t i = 0; i < std::min<std::size_t>(differences.size(), 10); ++i) {
        text += differences[i] + "\n";
    }
    return text;
}

TEST_P(SourceFunctionsContract, ListsOfferExactlyWhatTheirChecksTake) {
    const SourceSweepResult result = sweepSources(sharedCompany());

    // 9 notes take orders (7) and notes (9); 10 orders and templates take templates (3), orders (7), notes (9) and,
    // from a list or from deliveries, suppliers (3 and 3).
    EXPECT_EQ(result.Pairs, 9U * (7 + 9) + 10U * (3 + 7 + 9 + 3 + 3));
    EXPECT_EQ(firstOf(result.Differences), "");
}

TEST_P(SourceFunctionsContract, ListsOfTheSampleCompanyOfferExactlyWhatTheirChecksTake) {
    const std::unique_ptr<Database> database = newDatabase(GetParam());
    createSampleCompany(*database, 0);

    const SourceSweepResult result = sweepSources(*database, {.Documents = 151, .Candidates = 13});

    EXPECT_GT(result.Pairs, 500U);
    EXPECT_EQ(firstOf(result.Differences), "");
}

TEST_P(SourceFunctionsContract, OrdersForANote) {
    const std::string function = "V_MELVARKEDITORDodakCheckZdrojObjednavka";
    EXPECT_EQ(value(function + "(1, 1, 1, 2, 1, 0)"), "1");
    EXPECT_EQ(value(function + "(1, 1, 1, 2, 2, 0)"), "0");   // the note's supplier is another
    EXPECT_EQ(value(function + "(4, 2, 1, 2, 1, 0)"), "0");   // the order's warehouse is another
    EXPECT_EQ(value(function + "(1, 1, 1, 2, 1, 1)"), "0");   // nothing is left to deliver
    EXPECT_EQ(value(function + "(1, 1, 1, 999, 1, 0)"), "0"); // the note is gone
    EXPECT_EQ(value(function + "(7, 1, 1, 2, 1, 0)"), "0");   // a template
    EXPECT_EQ(value(function + "(3, 1, 2, -1, -1, 0)"), "1"); // no note and no supplier restrict nothing
    EXPECT_EQ(value(function + "(4, 2, 1, null, null, null)"), "1");
    EXPECT_EQ(value(function + "(5, 1, null, 2, 1, 0)"), "1"); // an order without a supplier
    EXPECT_EQ(value(function + "(3, 1, 2, 2, 0, 0)"), "1");    // a screen without a supplier gives 0
    EXPECT_EQ(value(function + "(null, null, null, null, null, null)"), "0");
}

TEST_P(SourceFunctionsContract, NotesForANote) {
    const std::string function = "V_MELVARKEDITORDodakCheckZdrojDodak";
    EXPECT_EQ(value(function + "(6, 1, 2, 1)"), "1");
    EXPECT_EQ(value(function + "(2, 1, 2, 1)"), "0"); // itself
    EXPECT_EQ(value(function + "(3, 2, 2, 1)"), "0"); // another supplier
    EXPECT_EQ(value(function + "(3, 2, -1, -1)"), "1");
    EXPECT_EQ(value(function + "(999, 1, 2, 1)"), "0");
}

TEST_P(SourceFunctionsContract, OneFunctionDecidesAboutOrdersAndTemplates) {
    const std::string function = "V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor";
    EXPECT_EQ(value(function + "(10, 1, 1, 1, 1, 1)"), "1");   // an order
    EXPECT_EQ(value(function + "(7, 1, 1, 1, 1, 1)"), "1");    // a template
    EXPECT_EQ(value(function + "(7, 1, 1, 7, 1, 1)"), "0");    // itself
    EXPECT_EQ(value(function + "(3, 1, 2, 1, 1, 1)"), "0");    // another supplier
    EXPECT_EQ(value(function + "(4, 2, 1, 1, 1, 1)"), "0");    // another warehouse
    EXPECT_EQ(value(function + "(9, 1, null, 1, 1, 1)"), "1"); // a template without a supplier
    EXPECT_EQ(value(function + "(4, 2, 1, -1, -1, -1)"), "1");
    EXPECT_EQ(value(function + "(999, 1, 1, 1, 1, 1)"), "0");
}

TEST_P(SourceFunctionsContract, NotesForAnOrder) {
    const std::string function = "V_MELVARKEDITORDodObjCheckZdrojDodak";
    EXPECT_EQ(value(function + "(2, 1, 1, 1, 1)"), "1");
    EXPECT_EQ(value(function + "(3, 2, 1, 1, 1)"), "0"); // another supplier
    EXPECT_EQ(value(function + "(4, 1, 1, 1, 1)"), "0"); // another warehouse
    EXPECT_EQ(value(function + "(4, 1, -1, -1, -1)"), "1");
}

TEST_P(SourceFunctionsContract, PriceListsCountAtAMomentThatIsAText) {
    const std::string function = "V_MELVARKEDITORDodObjCheckZdrojDodCenik";
    EXPECT_EQ(value(function + "(2, 5, -1, -1, '30.6.2026 23:59:59')"), "1"); // the syrup's last day
    EXPECT_EQ(value(function + "(2, 5, -1, -1, '1.7.2026 0:00:00')"), "0");
    EXPECT_EQ(value(function + "(2, 5, -1, -1, '30.6.2026')"), "1");
    EXPECT_EQ(value(function + "(2, 3, -1, -1, null)"), "1"); // the order's own moment: its day lists tea and syrup
    EXPECT_EQ(value(function + "(3, 3, -1, -1, null)"), "0");
    EXPECT_EQ(value(function + "(2, 999, -1, -1, '30.6.2026')"), "0"); // the order is gone
    EXPECT_EQ(value(function + "(2, -1, -1, -1, '30.6.2026')"), "1");
    EXPECT_EQ(value(function + "(2, 5, -1, -1, 'dnes')").substr(0, 5), "ML002");
}

TEST_P(SourceFunctionsContract, DeliveriesCountForMonthsThatAreATextOrANumber) {
    // Drinks delivered on 20.2.2026 only.
    const std::string call = "V_MELVARKEDITORDodObjCheckZdrojDodavky(2, 5, -1, -1, ";
    EXPECT_EQ(value(call + "'20.5.2026 8:00:00', '3')"), "1"); // back to 20.2.
    EXPECT_EQ(value(call + "'21.5.2026 8:00:00', '3')"), "0");
    EXPECT_EQ(value(call + "'21.5.2026 8:00:00', ' 4 ')"), "1");
    EXPECT_EQ(value(call + "'19.2.2026 23:59:59', '12')"), "0"); // not yet
    EXPECT_EQ(value(call + "'20.2.2026 0:00:00', '0')"), "1");
    EXPECT_EQ(value(call + "'31.12.2040', null)"), "1"); // without a number there is no limit
    EXPECT_EQ(value(call + "'20.5.2026', 'mnoho')"),
              "ML070 Počet měsíců „mnoho“ není celé číslo od 0 do 1200. Opravte parametr firmy.");
}

TEST_P(SourceFunctionsContract, MonthsBackEndOnADayThatExists) {
    // A month before 31.3.2026 is 28.2.2026.
    const auto database = ownCompany();
    const auto value = [&] {
        return rows(*database, "select V_MELVARKEDITORDodObjCheckZdrojDodavky(2, 5, -1, -1, '31.3.2026', '1')");
    };
    database->runScript("update DODAK set DATUM = '2026-02-28' where ID = 3");
    EXPECT_EQ(value(), "1");
    database->runScript("update DODAK set DATUM = '2026-02-27' where ID = 3");
    EXPECT_EQ(value(), "0");
}

TEST_P(SourceFunctionsContract, ParametersOfTheCompanyAreTexts) {
    EXPECT_EQ(value("V_GetGlobalParam('SKLAD', 'POCETMESICUDODAVEK')"), "3");
    EXPECT_EQ(value("V_GetGlobalParam('DPH', 'SAZBADPHB')"), "2");
    EXPECT_EQ(value("V_GetGlobalParam('SKLAD', 'DPHBLIC')"), "-"); // of another section
    EXPECT_EQ(value("V_GetGlobalParam('NIC', 'NIC')"), "-");
    EXPECT_EQ(value("V_GetGlobalParam(null, null)"), "-");
}

INSTANTIATE_TEST_SUITE_P(Engines, SourceFunctionsContract, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
