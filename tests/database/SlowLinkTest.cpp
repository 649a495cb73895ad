#include "tests/database/SlowLink.h"

#include "tests/database/PrivateServer.h"
#include "tests/database/ServerCompany.h"

#include <gtest/gtest.h>

namespace refhost {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds c_Latency{40};
constexpr int c_Rows = 300;

/// How long it takes.
template <typename Work>
milliseconds timeOf(Work work) {
    const auto begin = steady_clock::now();
    work();
    return std::chrono::duration_cast<milliseconds>(steady_clock::now() - begin);
}

TEST(SlowLink, BringsAnAnswerAfterTwiceTheLatencyAndCarriesManyThingsAtOnce) {
    const ServerCompany company;
    company.open(); // makes the role
    SlowLink link(PrivateServer::instance().folder(), c_Latency);
    PostgreSQLConnection clerk("host=" + link.folder().string() + " dbname=" + company.name() + " user=novakova",
                               TFormatSettings::Czech());
    clerk.Execute(serverCall("MELVARKEDITORResetTemp"));
    EXPECT_GE(timeOf([&] { clerk.Execute(serverCall("MELVARKEDITORResetTemp")); }), 2 * c_Latency);
    const milliseconds rows = timeOf([&] {
        for (int row = 0; row < c_Rows; ++row) {
            clerk.Execute({"MELVARKEDITORDodakInsertToTemp",
                           {{"a_SKLADPOL", AnsiString("Mléko")}, {"a_MNOZSTVI", AnsiString("1")}},
                           false});
        }
        clerk.Execute({"MELVARKEDITORDodakTempUloz", {{"a_DODKID", std::int64_t{1}}}, false});
    });
    EXPECT_LT(rows, c_Rows * c_Latency / 2);
    EXPECT_EQ(rowsOf(clerk, "select count(*) from melvark.DODAKPOL where DODKID = 1"), std::to_string(c_Rows));
}

} // namespace
} // namespace refhost
