#include "host/Exceptions.h"
#include "tests/database/Contract.h"

namespace refhost {

namespace {

/// What the tables themselves refuse, whoever writes into them: an import, an administrator, another program.
class TableRules : public Contract {
protected:
    void SetUp() override { database_ = ownCompany(); }

    /// Code and sentence of what the statement is refused with, "accepted" when it is not.
    std::string written(const std::string& sql) {
        try {
            database_->runScript(sql);
            return "accepted";
        } catch (const EDatabaseError& error) {
            return error.Code() + " " + error.Message();
        }
    }

    std::unique_ptr<Database> database_;
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

INSTANTIATE_TEST_SUITE_P(Engines, TableRules, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace

} // namespace refhost
