#include "tests/database/Contract.h"

#include <chrono>
#include <cmath>
#include <ctime>
#include <iomanip>
#include <sstream>

namespace refhost {

namespace {

/// What day and hour it is for the company, wherever its clerks and its server are.
class CompanyTime : public Contract {
protected:
    void SetUp() override { database_ = ownCompany(); }

    void setZone(const std::string& zone) {
        database_->runScript("delete from GLOBALPARAM where SEKCE = 'FIRMA';"
                             "insert into GLOBALPARAM (SEKCE, NAZEV, HODNOTA) values ('FIRMA', 'CASOVEPASMO', '" +
                             zone + "')");
    }

    /// How many hours it is later here than by the world's clock, to the nearest hour.
    long hoursAhead() {
        const std::string now = rows(*database_, "select cast(now_moment() as text)");
        std::istringstream stream(now);
        std::tm parts{};
        stream >> std::get_time(&parts, "%Y-%m-%d %H:%M:%S");
        EXPECT_FALSE(stream.fail()) << now;
        const auto seconds = timegm(&parts) - std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
        return std::lround(static_cast<double>(seconds) / 3600);
    }

    std::unique_ptr<Database> database_;
};

TEST_P(CompanyTime, IsThatOfTheCompanysParameter) {
    setZone("Pacific/Kiritimati");
    EXPECT_EQ(hoursAhead(), 14);
    setZone("Etc/GMT+12"); // twelve hours behind, as the names of these zones have it
    EXPECT_EQ(hoursAhead(), -12);
    setZone(" UTC ");
    EXPECT_EQ(hoursAhead(), 0);
}

TEST_P(CompanyTime, IsTheSameHoweverTheZonesLettersAreWritten) {
    for (const char* zone : {"Pacific/Kiritimati", "pacific/kiritimati", "PACIFIC/KIRITIMATI", "etc/gmt-14"}) {
        setZone(zone);
        EXPECT_EQ(hoursAhead(), 14) << zone;
    }
    setZone("utc");
    EXPECT_EQ(hoursAhead(), 0);
}

TEST_P(CompanyTime, IsPragueWithoutOne) {
    const long hours = hoursAhead();
    EXPECT_TRUE(hours == 1 || hours == 2) << hours;
}

/// In one of two zones that are 26 hours apart a template's today is another day.
TEST_P(CompanyTime, DecidesWhichPricesHoldToday) {
    setZone("Pacific/Kiritimati");
    const std::string there = rows(*database_, "select cast(today() as text)");
    database_->runScript("delete from DODCENIK; insert into DODCENIK (DODVID, SKLPID, PLATIOD, PLATIDO, CENA) "
                         "values (1, 1, '" +
                         there + "', '" + there + "', '7')");
    const Parameters template1 = {{"a_DDOBIDMASTER", id(7)}, {"a_DODVID", id(1)}};

    EXPECT_EQ(answer(*database_, "MELVARKEDITORDodObjCheckZdrojDodCenik", template1), "1");
    setZone("Etc/GMT+12");
    EXPECT_EQ(outcome(*database_, "MELVARKEDITORDodObjCheckZdrojDodCenik", template1), "ML028");
}

TEST_P(CompanyTime, AnUnknownZoneIsRefusedInWords) {
    for (const char* zone :
         {"Europe/Praha", "CEST", "GMT+2", "+02:00", "x", "A/B+3", "Abc/Def5", "Etc/GMT+13", "Etc/GMT-15",
          "Etc/GMT+012", "SystemV/AST4", "posix/Europe/Prague", "right/Europe/Prague"}) {
        setZone(zone);
        EXPECT_EQ(answer(*database_, "MELVARKEDITORDodObjCheckZdrojDodCenik",
                         {{"a_DDOBIDMASTER", id(7)}, {"a_DODVID", id(1)}}),
                  "ML071 Časové pásmo „" + std::string(zone) +
                      "“ není známé. Opravte parametr firmy, například na Europe/Prague.");
    }
}

INSTANTIATE_TEST_SUITE_P(Engines, CompanyTime, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace

} // namespace refhost
