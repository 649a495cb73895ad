#include "refhost/dbcheck/DatabaseContract.h"

#include "host/AsciiCase.h"
#include "select/SourceTable.h"

#include <gmock/gmock.h>

namespace refhost {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

/// The set-ups of the dialog in which a source is named, in the order of the page.
constexpr const RSourceSetup* c_Setups[] = {
    &c_DodakFromObjednavka, &c_DodakFromDodak,     &c_DodObjFromObjednavkaVzor, &c_DodObjFromObjednavka,
    &c_DodObjFromDodak,     &c_DodObjFromDodCenik, &c_DodObjFromDodavky,
};

/// The view of a list "Kordan3:TABLE.Variant".
std::string viewOf(const std::string& form) {
    std::string view = melvark::UpperAscii(form.substr(form.find(':') + 1)) + "_V";
    view.replace(view.find('.'), 1, "_");
    return view;
}

std::vector<std::string> namesOf(const DeclaredNames& declared) {
    std::vector<std::string> names;
    for (const DeclaredName& name : declared) {
        names.push_back(name.Name + ":" + name.Type);
    }
    return names;
}

TEST(DatabaseContract, HasTheConditionsThatTheDialogsAskLetterForLetter) {
    ASSERT_THAT(contract().Conditions, SizeIs(std::size(c_Setups)));
    for (std::size_t i = 0; i < std::size(c_Setups); ++i) {
        EXPECT_EQ(contract().Conditions[i].View, viewOf(c_Setups[i]->HostForm));
        EXPECT_EQ(contract().Conditions[i].Text, c_Setups[i]->Condition);
    }
}

TEST(DatabaseContract, HasTheChecksThatTheDialogsCall) {
    for (const RSourceSetup* setup : c_Setups) {
        ASSERT_TRUE(contract().Procedures.contains(setup->CheckProcedure)) << setup->CheckProcedure;
        const ProcedureDeclaration& check = contract().Procedures.at(setup->CheckProcedure);
        EXPECT_THAT(namesOf(check.Inputs),
                    ElementsAre(std::string(setup->DocumentParam) + ":integer", std::string(setup->TextParam) + ":text",
                                std::string(setup->IdParam) + ":integer"));
        ASSERT_THAT(*check.Sets, SizeIs(1));
        EXPECT_THAT(namesOf(check.Sets->front()), ElementsAre("ID:integer"));
    }
}

TEST(DatabaseContract, HasTheTwoQueriesOfThePickLists) {
    ASSERT_THAT(contract().Queries, SizeIs(2));
    EXPECT_EQ(contract().Queries[0].Sql, "select NAZEV from SKLAD_V order by NAZEV");
    EXPECT_THAT(namesOf(contract().Queries[0].Columns), ElementsAre("NAZEV:text"));
    EXPECT_EQ(contract().Queries[1].Sql, "select JMENO from DODAVATEL_V order by JMENO");
    EXPECT_THAT(namesOf(contract().Queries[1].Columns), ElementsAre("JMENO:text"));
}

TEST(DatabaseContract, ReadsSeveralSetsOutputsAndThePricesOfARow) {
    const auto& procedures = contract().Procedures;
    ASSERT_THAT(*procedures.at("MELVARKEDITORDodakInit").Sets, SizeIs(3));
    EXPECT_THAT(namesOf(procedures.at("MELVARKEDITORDodakInit").Sets->front()),
                ElementsAre("UZIVATEL:text", "DPHBLIC:integer"));
    EXPECT_THAT(namesOf(procedures.at("MELVARKEDITORDodakObnovData").Outputs), ElementsAre("a_OBNOVDATA:integer"));
    EXPECT_THAT(*procedures.at("MELVARKEDITORDodakObnovData").Sets, SizeIs(0));
    EXPECT_THAT(*procedures.at("MELVARKEDITORResetTemp").Sets, SizeIs(0));
    EXPECT_THAT(procedures.at("MELVARKEDITORDodakVypocetCen").Inputs, SizeIs(3 + 16 + 3));
    EXPECT_EQ(procedures.at("MELVARKEDITORDodakVypocetCen").Inputs[3].Name, "a_JEDNCENABSESLEVOU");
    EXPECT_THAT(procedures.at("MELVARKEDITORDodakVypocetCen").Sets->front(), SizeIs(16 + 3));
    EXPECT_THAT(contract().PriceColumns, SizeIs(16));
    EXPECT_THAT(
        namesOf(procedures.at("MELVARKEDITORNASTAVENIUlozNove").Inputs),
        ElementsAre("a_NAZEV:text", "a_TYPEDITACE:integer", "a_SDILENE:boolean", "a_KOMENTAR:text", "a_DATA:text"));
}

TEST(DatabaseContract, APageWithoutATableIsAMistakeOfOurs) {
    EXPECT_THROW(pageTable("no such heading"), std::logic_error);
}

} // namespace
} // namespace refhost
