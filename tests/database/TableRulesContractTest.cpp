#include "host/Exceptions.h"
#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"

namespace refhost {

namespace {

/// Code and sentence of what the statement is refused with, "accepted" when it is not.
std::string written(Database& database, const std::string& sql) {
    try {
        database.runScript(sql);
        return "accepted";
    } catch (const EDatabaseError& error) {
        return error.Code() + " " + error.Message();
    }
}

/// What the tables themselves refuse, whoever writes into them: an import, an administrator, another program.
class TableRules : public Contract {
protected:
    void SetUp() override { database_ = ownCompany(); }

    std::string written(const std::string& sql) { return refhost::written(*database_, sql); }

    std::unique_ptr<Database> database_;
};

class TableRulesOfTheEmbeddedEngine : public testing::Test {
protected:
    void SetUp() override { addContractCompany(*database_); }

    std::string written(const std::string& sql) { return refhost::written(*database_, sql); }

    std::unique_ptr<Database> database_ = newDatabase(Engine::SQLite);
};

constexpr const char* c_Overlap = "ML901 Platnost ceníku se překrývá s jiným ceníkem téže položky a téhož dodavatele.";

/// A price of the supplier "Nápoje Švec", who lists syrup from 2025-01-01 to 2026-06-30 and no flour.
std::string priceOf(int item, const std::string& from, const std::string& to) {
    return "insert into DODCENIK (DODVID, SKLPID, PLATIOD, PLATIDO, CENA) values (2, " + std::to_string(item) + ", " +
           from + ", " + to + ", '7')";
}

TEST_P(TableRules, AnOverlappingPriceIsRefusedWithOneSentence) {
    EXPECT_EQ(written(priceOf(7, "'2026-06-30'", "null")), c_Overlap) << "the last day belongs to the validity";
    EXPECT_EQ(written(priceOf(7, "'2024-01-01'", "'2025-01-01'")), c_Overlap) << "so does the first one";
    EXPECT_EQ(written(priceOf(7, "'2025-01-01'", "'2025-01-02'")), c_Overlap) << "the same first day";
    EXPECT_EQ(written(priceOf(7, "'2024-01-01'", "null")), c_Overlap) << "a validity without an end";
    EXPECT_EQ(written(priceOf(7, "'2026-07-01'", "null")), "accepted") << "the day after";
    EXPECT_EQ(written(priceOf(1, "'2026-01-01'", "null")), "accepted") << "another item";
}

TEST_P(TableRules, APriceIsNotMovedOverAnotherOne) {
    EXPECT_EQ(written("update DODCENIK set PLATIDO = '2026-05-01' where DODVID = 1 and SKLPID = 1 and "
                      "PLATIOD = '2026-01-01'"),
              c_Overlap);
    EXPECT_EQ(written("update DODCENIK set PLATIDO = '2026-04-30' where DODVID = 1 and SKLPID = 1 and "
                      "PLATIOD = '2026-01-01'"),
              "accepted");
}

struct RefusedValue {
    const char* Remark;
    const char* Sql;
};

TEST_P(TableRules, ValuesThatNoCalculationCouldBearAreRefused) {
    const RefusedValue values[] = {
        {"a discount above a hundred", "update DODCENIK set SLEVA = '100.01'"},
        {"a negative discount", "update DODCENIK set SLEVA = '-1'"},
        {"a line's discount above a hundred", "update DODAKPOL set SLEVA = '101'"},
        {"a negative discount of a line", "update DODAKPOL set SLEVA = '-0.01'"},
        {"a rate above a hundred", "update DPH set SAZBA = '100.5'"},
        {"a negative rate", "update DPH set SAZBA = '-21'"},
        {"a factor of nothing", "update SKPL set FAKTOR = '0' where PORADI = 1"},
        {"a negative factor", "update SKPL set FAKTOR = '-25' where PORADI = 1"},
        {"another factor of the main unit", "update SKPL set FAKTOR = '2' where PORADI = 0"},
        {"a negative shelf life", "update SKLADPOL set TRVANLIVOSTDNU = -1"},
        {"a shelf life that leaves the calendar", "update SKLADPOL set TRVANLIVOSTDNU = 36501"},
        {"a line without a quantity", "update DODAKPOL set MNOZSTVI = '0'"},
        {"a note that is its own source", "insert into DODAKZDROJ (DODKID, DODKIDZDROJ) values (2, 2)"},
        {"an order that is its own source", "insert into DODOBJZDROJ (DDOBID, DDOBIDZDROJ) values (1, 1)"},
    };
    for (const RefusedValue& value : values) {
        EXPECT_EQ(written(value.Sql).substr(0, 5), "ML930") << value.Remark;
    }
}

TEST_P(TableRules, TheirLimitsAreAccepted) {
    for (const char* sql :
         {"update DODCENIK set SLEVA = '100'", "update DODAKPOL set SLEVA = '0'",
          "update DPH set SAZBA = '100' where ID = 4", "update SKPL set FAKTOR = '0.000001' where PORADI = 1",
          "update SKLADPOL set TRVANLIVOSTDNU = 36500", "insert into DODAKZDROJ (DODKID, DODKIDZDROJ) values (2, 3)",
          "insert into DODOBJZDROJ (DDOBID, DDOBIDZDROJ) values (1, 2)"}) {
        EXPECT_EQ(written(sql), "accepted") << sql;
    }
}

/// The server's numbers have one form; the embedded engine keeps decimals as texts.
TEST_F(TableRulesOfTheEmbeddedEngine, DecimalsHaveOneText) {
    for (const char* price : {"10.50", "010", "+1", ".5", "1.", "-0", "1,5", "1e3", " 1", "x", "", "1.0000001"}) {
        for (const char* column : {"DODCENIK set CENA", "DODAKPOL set JEDNCENABBEZSLEVY", "DODAKPOL set MNOZSTVI",
                                   "DODOBJPOL set MNOZSTVI", "DODOBJPOL set DODANO"}) {
            EXPECT_EQ(written("update " + std::string(column) + " = '" + price + "'").substr(0, 5), "ML930")
                << column << " " << price;
        }
    }
    for (const char* total : {"1.5", "-12.34", "0"}) {
        EXPECT_EQ(written("update DODAKPOL set CENASSESLEVOU = '" + std::string(total) + "'"), "accepted");
    }
    EXPECT_EQ(written("update DODAKPOL set CENASSESLEVOU = '1.005'").substr(0, 5), "ML930")
        << "totals have two decimals";
}

INSTANTIATE_TEST_SUITE_P(Engines, TableRules, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace

} // namespace refhost
