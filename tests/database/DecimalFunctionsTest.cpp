#include "refhost/database/DecimalFunctions.h"

#include <gtest/gtest.h>
#include <memory>
#include <sqlite3.h>
#include <string>

namespace refhost {
namespace {

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

class DecimalFunctions : public testing::Test {
protected:
    DecimalFunctions() {
        sqlite3* database = nullptr;
        sqlite3_open(":memory:", &database);
        database_.reset(database);
        registerDecimalFunctions(database);
    }

    /// The value of the first row's first column as text, "null", or "error: " and the message.
    std::string valueOf(const std::string& expression) {
        sqlite3_stmt* prepared = nullptr;
        sqlite3_prepare_v2(database_.get(), ("select " + expression).c_str(), -1, &prepared, nullptr);
        const std::unique_ptr<sqlite3_stmt, FinalizeStatement> statement(prepared);
        if (sqlite3_step(prepared) != SQLITE_ROW) {
            return std::string("error: ") + sqlite3_errmsg(database_.get());
        }
        const auto* text = sqlite3_column_text(prepared, 0);
        return text == nullptr ? "null" : reinterpret_cast<const char*>(text);
    }

private:
    std::unique_ptr<sqlite3, CloseDatabase> database_;
};

TEST_F(DecimalFunctions, ComputeExactly) {
    EXPECT_EQ(valueOf("dec_add('0.1', '0.2')"), "0.3");
    EXPECT_EQ(valueOf("dec_sub('0.3', '0.1')"), "0.2");
    EXPECT_EQ(valueOf("dec_mul('1.1', '1.1')"), "1.21");
    EXPECT_EQ(valueOf("dec_div('2', '3', 6)"), "0.666667");
    EXPECT_EQ(valueOf("dec_round('-0.125', 2)"), "-0.13");
    EXPECT_EQ(valueOf("dec_abs('-1.5')"), "1.5");
    EXPECT_EQ(valueOf("dec_neg('1.5')"), "-1.5");
    EXPECT_EQ(valueOf("dec_fixed('1.5', 2)"), "1.50");
    EXPECT_EQ(valueOf("dec_cmp('10', '9') || dec_cmp('9', '10') || dec_cmp('9', '9.0')"), "1-10");
}

TEST_F(DecimalFunctions, TakeIntegersAndFloatingPoint) {
    EXPECT_EQ(valueOf("dec_mul('0.21', 100)"), "21");
    EXPECT_EQ(valueOf("dec_add(0.1, 0.2)"), "0.3"); // each counts as its shortest decimal
    EXPECT_EQ(valueOf("dec_add(1e-7, 0)"), "0.0000001");
}

TEST_F(DecimalFunctions, GiveNullForNull) {
    for (const char* call :
         {"dec_add(null, '1')", "dec_add('1', null)", "dec_sub('1', null)", "dec_mul(null, null)",
          "dec_div(null, '1', 2)", "dec_div('1', null, 2)", "dec_div('1', '2', null)", "dec_round(null, 2)",
          "dec_round('1', null)", "dec_fixed(null, 2)", "dec_abs(null)", "dec_neg(null)", "dec_cmp('1', null)"}) {
        EXPECT_EQ(valueOf(call), "null") << call;
    }
}

TEST_F(DecimalFunctions, ProductsAgreeWhenEachPairThatIsGivenDoes) {
    EXPECT_EQ(valueOf("dec_products_agree('2', '0.01')"), "1");
    EXPECT_EQ(valueOf("dec_products_agree('2', '0.01', '3', '6.01', '4', '7.99')"), "1");
    EXPECT_EQ(valueOf("dec_products_agree('2', '0.01', '3', '6.02', '4', '7.99')"), "0");
    EXPECT_EQ(valueOf("dec_products_agree('2', '0.01', '3', '6.01', '4', '7.98')"), "0");
    EXPECT_EQ(valueOf("dec_products_agree('2', '0.01', null, '9', '4', null)"), "1");
    EXPECT_EQ(valueOf("dec_products_agree(null, '0.01', '3', '7')"), "null");
    EXPECT_EQ(valueOf("dec_products_agree('2', null, '3', '7')"), "null");
}

TEST_F(DecimalFunctions, MistakesFailTheStatement) {
    EXPECT_EQ(valueOf("dec_add('1,5', '1')"), "error: not a decimal number: 1,5");
    EXPECT_EQ(valueOf("dec_abs('')"), "error: not a decimal number: ");
    EXPECT_EQ(valueOf("dec_div('1', '0', 2)"), "error: division by zero");
    EXPECT_EQ(valueOf("dec_round('1', 21)"), "error: number of decimals out of range: 21");
    EXPECT_EQ(valueOf("dec_sum(column1) from (values ('1'), ('x'))"), "error: not a decimal number: x");
}

TEST_F(DecimalFunctions, SumLeavesNullsOut) {
    EXPECT_EQ(valueOf("dec_sum(column1) from (values ('0.1'), (null), ('0.20'), (-1))"), "-0.7");
    EXPECT_EQ(valueOf("dec_sum(column1) from (values (null))"), "null");
    EXPECT_EQ(valueOf("dec_sum('1') from (values (1)) where 0"), "null");
}

} // namespace
} // namespace refhost
