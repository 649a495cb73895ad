#include "refhost/database/RowReader.h"

#include "host/Exceptions.h"
#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"

namespace refhost {

namespace {

/// The ids of the contract's orders and templates: ten of them.
const AnsiString c_Orders = "select ID from DODOBJEDNAVKA order by ID";

class Reading : public Contract {
protected:
    static std::vector<std::int64_t> ids(const RowReader::Rows& rows) {
        std::vector<std::int64_t> result;
        for (const std::vector<TDbValue>& row : rows) {
            result.push_back(std::get<std::int64_t>(row.front()));
        }
        return result;
    }
    using Ids = std::vector<std::int64_t>;
};

TEST_P(Reading, BringsPortionsInTheQuerysOrder) {
    const auto reader = sharedCompany().openRows(c_Orders);

    EXPECT_EQ(reader->columns(), std::vector<AnsiString>{"ID"});
    EXPECT_EQ(ids(reader->read(4)), (Ids{1, 2, 3, 4}));
    EXPECT_EQ(ids(reader->read(4)), (Ids{5, 6, 7, 8}));
    EXPECT_EQ(ids(reader->read(4)), (Ids{9, 10}));
    EXPECT_EQ(ids(reader->read(4)), Ids{});
}

TEST_P(Reading, EndsWithAnEmptyPortionWhenTheLastOneWasFull) {
    const auto reader = sharedCompany().openRows(c_Orders);

    EXPECT_EQ(reader->read(10).size(), 10U);
    EXPECT_EQ(reader->read(10).size(), 0U);
}

TEST_P(Reading, KnowsTheColumnsOfNoRows) {
    const auto reader = sharedCompany().openRows("select CISLO, ID as _ID from DODAK where ID < 0");

    EXPECT_EQ(reader->columns(), (std::vector<AnsiString>{"CISLO", "_ID"}));
    EXPECT_EQ(reader->read(1).size(), 0U);
}

TEST_P(Reading, GoesOnBesideEachCallOfASaveAsTheDatabaseStoodAtItsBeginning) {
    const std::string url = ownCompanyUrl();
    const auto database = openAs(url, "novakova");
    const auto acceptedBesideAReading = [&](const std::string& procedure, const std::vector<TDbParam>& params) {
        const auto reader = database->openRows(c_Orders);
        ASSERT_EQ(reader->read(3).size(), 3U);
        EXPECT_EQ(outcome(*database, procedure, params), "accepted");
        EXPECT_EQ(ids(reader->read(100)), (Ids{4, 5, 6, 7, 8, 9, 10})) << procedure;
    };

    acceptedBesideAReading("MELVARKEDITORResetTemp", {});
    acceptedBesideAReading(
        "MELVARKEDITORDodObjInsertToTemp",
        {{"a_SKLADPOL", "Sirup"}, {"a_DODAVATEL", "Nápoje Švec"}, {"a_SKPLID", "71"}, {"a_MNOZSTVI", "1"}});
    acceptedBesideAReading("MELVARKEDITORDodObjTempUloz", {{"a_DDOBID", id(c_Order)}});

    EXPECT_EQ(rows(*openAs(url, "svoboda"), "select count(*) from DODOBJEDNAVKA"), "11")
        << "one more order, of the other supplier, is there for everybody";
}

TEST_P(Reading, ThatIsGivenUpHoldsNothing) {
    const std::string url = ownCompanyUrl();
    const auto database = openAs(url, "novakova");
    database->openRows(c_Orders)->read(1);

    EXPECT_EQ(outcome(*database, "MELVARKEDITORNASTAVENIUlozNastaveniOkna", {{"a_TYPEDITACE", id(0)}, {"a_DATA", "x"}}),
              "accepted");

    EXPECT_EQ(rows(*openAs(url, "svoboda"), "select DATA from EDITOROKNO"), "x");
}

TEST_P(Reading, RefusesWhatIsNoReadingStatement) {
    for (const char* sql : {"delete from DODAK", "delete from DODAK returning ID", "select 1; delete from DODAK"}) {
        try {
            sharedCompany().openRows(sql)->read(1);
            ADD_FAILURE() << sql << " was read";
        } catch (const EDatabaseError&) {
        }
    }
    EXPECT_EQ(rows(sharedCompany(), "select count(*) from DODAK"), "9");
}

TEST_P(Reading, TellsAnErrorOfARowThatIsReadLater) {
    // By their identifiers, as the table has them; of these the seventh row cannot be computed.
    const auto reader = sharedCompany().openRows(
        "select ID, abs(case ID when 7 then -9223372036854775807 - 1 else 1 end) from DODOBJEDNAVKA where ID > 0");
    ASSERT_EQ(reader->read(3).size(), 3U);
    EXPECT_THROW(reader->read(10), EDatabaseError);
    EXPECT_THROW(reader->read(10), EDatabaseError);
}

INSTANTIATE_TEST_SUITE_P(Engines, Reading, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace

} // namespace refhost
