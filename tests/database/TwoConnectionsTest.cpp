#include "tests/database/ContractCompany.h"
#include "tests/database/Staging.h"

#include <algorithm>
#include <functional>
#include <future>
#include <latch>

namespace refhost {

namespace {

constexpr int c_Rounds = 10;

/// Two clerks who do the same at the same time, each on a connection and in a thread of his own.
class TwoConnections : public Contract {
protected:
    void SetUp() override { url_ = ownCompanyUrl(); }

    std::unique_ptr<Database> observer() const { return openAs(url_, "svoboda"); }

    /// Runs `work` for both clerks, 0 and 1, at once. What it throws fails the test.
    void atOnce(const std::function<void(Database&, int)>& work, const char* secondUser = "dvorak") const {
        std::unique_ptr<Database> connections[] = {openAs(url_, "novakova"), openAs(url_, secondUser)};
        std::latch bothReady(2);
        std::vector<std::future<void>> clerks;
        for (int clerk = 0; clerk < 2; ++clerk) {
            clerks.push_back(std::async(std::launch::async, [&, clerk] {
                bothReady.arrive_and_wait();
                work(*connections[clerk], clerk);
            }));
        }
        for (std::future<void>& clerk : clerks) {
            EXPECT_NO_THROW(clerk.get());
        }
    }

private:
    std::string url_;
};

void call(Database& database, const std::string& procedure, const Parameters& parameters = {}) {
    database.Execute({procedure, parameters, false});
}

Parameters noteRow(const std::string& item, const std::string& quantity, const std::string& orderLine = {}) {
    Parameters row = {{"a_SKLADPOL", item}, {"a_MNOZSTVI", quantity}};
    if (!orderLine.empty()) {
        row.push_back({"a_DOBSID", orderLine});
    }
    return row;
}

TEST_P(TwoConnections, LinesOfOneNoteAreNeitherLostNorDoubledNorMixed) {
    atOnce([](Database& database, int clerk) {
        for (int round = 0; round < c_Rounds; ++round) {
            call(database, "MELVARKEDITORResetTemp");
            for (int i = 0; i < 3; ++i) {
                call(database, "MELVARKEDITORDodakInsertToTemp",
                     noteRow("Sirup", std::to_string(1000 * (clerk + 1) + round)));
            }
            call(database, "MELVARKEDITORDodakTempUloz", {{"a_DODKID", id(c_OpenNote)}});
        }
    });

    // One line was there; 2 clerks in 10 rounds append 3 each, in places 2 to 61. The three lines of a save lie side by
    // side: each of the 20 quantities takes three places in a row.
    const auto database = observer();
    EXPECT_EQ(rows(*database, "select count(*), min(PORADI), max(PORADI) from DODAKPOL where DODKID = 2"),
              "61 | 1 | 61");
    EXPECT_EQ(rows(*database, "select count(*) from (select MNOZSTVI from DODAKPOL where DODKID = 2 and PORADI > 1 "
                              "group by MNOZSTVI having count(*) = 3 and max(PORADI) - min(PORADI) = 2) s"),
              "20");
}

TEST_P(TwoConnections, OfTwoWhoDeliverTheSameRestOneIsRefused) {
    const auto database = observer();
    for (int round = 0; round < c_Rounds; ++round) {
        database->runScript("update DODOBJPOL set DODANO = '40', KOMPLETNI = 0 where ID = 101");
        std::string outcomes[2];
        atOnce([&outcomes](Database& connection, int clerk) {
            call(connection, "MELVARKEDITORResetTemp");
            call(connection, "MELVARKEDITORDodakInsertToTemp", noteRow("Mouka hladká", "60", "101"));
            outcomes[clerk] = outcome(connection, "MELVARKEDITORDodakTempUloz",
                                      {{"a_DODKID", id(clerk == 0 ? c_OpenNote : c_NoteOfBranch)}});
        });
        std::ranges::sort(outcomes);
        EXPECT_EQ(outcomes[0] + " " + outcomes[1], "ML054 accepted");
        EXPECT_EQ(rows(*database, "select number_text(DODANO), KOMPLETNI from DODOBJPOL where ID = 101"), "100 | 1");
    }
    EXPECT_EQ(rows(*database, "select count(*) from DODAKPOL where DOBSID = 101"), std::to_string(c_Rounds));
}

TEST_P(TwoConnections, WhoTakesOrderLinesInAnotherOrderDoesNotBlockTheOther) {
    // 100 kg of flour less 40, and 7.5 kg of sugar: 20 saves of a gram complete neither line.
    atOnce([](Database& database, int clerk) {
        const Parameters flour = noteRow("Mouka hladká", "0.001", "101");
        const Parameters sugar = noteRow("Cukr krystal", "0.001", "103");
        for (int round = 0; round < c_Rounds; ++round) {
            call(database, "MELVARKEDITORResetTemp");
            call(database, "MELVARKEDITORDodakInsertToTemp", clerk == 0 ? flour : sugar);
            call(database, "MELVARKEDITORDodakInsertToTemp", clerk == 0 ? sugar : flour);
            call(database, "MELVARKEDITORDodakTempUloz",
                 {{"a_DODKID", id(clerk == 0 ? c_OpenNote : c_NoteOfBranch)}, {"a_DDOBID_ZDROJ", id(c_Order)}});
        }
    });

    const auto database = observer();
    EXPECT_EQ(
        rows(*database, "select ID, number_text(DODANO), KOMPLETNI from DODOBJPOL where ID in (101, 103) order by ID"),
        "101 | 40,02 | 0\n103 | 0,02 | 0");
    EXPECT_EQ(rows(*database, "select DODKID, DDOBIDZDROJ from DODAKZDROJ order by DODKID"), "2 | 1\n4 | 1");
}

TEST_P(TwoConnections, NewOrdersForOtherSuppliersGetNumbersOfTheirOwn) {
    atOnce([](Database& database, int clerk) {
        for (int round = 0; round < c_Rounds; ++round) {
            call(database, "MELVARKEDITORResetTemp");
            for (const char* supplier : {"Nápoje Švec", "Čajovna Říp"}) {
                call(database, "MELVARKEDITORDodObjInsertToTemp",
                     {{"a_SKLADPOL", AnsiString("Chléb")},
                      {"a_DODAVATEL", AnsiString(supplier)},
                      {"a_SKPLID", AnsiString("51")},
                      {"a_MNOZSTVI", AnsiString("1")}});
            }
            call(database, "MELVARKEDITORDodObjTempUloz", {{"a_DDOBID", id(clerk == 0 ? c_Order : c_OrderOfBranch)}});
        }
    });

    // 2 clerks, 10 rounds, 2 suppliers: 40 orders of one line each.
    const auto database = observer();
    EXPECT_EQ(rows(*database, "select count(*), count(distinct CISLO), min(POCETPOLOZEK), max(POCETPOLOZEK) "
                              "from SCREEN_DODOBJ_V where CISLO like 'OV2026-%'"),
              "40 | 40 | 1 | 1");
}

TEST_P(TwoConnections, NewOrdersStandAboveAnIdThatSomebodyChoseElsewhere) {
    const auto database = observer();
    for (int round = 0; round < c_Rounds; ++round) {
        const std::string chosen = rows(*database, "select max(ID) + 2 from DODOBJEDNAVKA");
        database->runScript("insert into DODOBJEDNAVKA (ID, VZOR, CISLO, OBJEDNANIDC, SKLDID) values (" + chosen +
                            ", 0, 'RUČNÍ " + chosen + "', '2026-04-11 10:00:00', 1)");
        std::string outcomes[2];
        atOnce([&outcomes](Database& connection, int clerk) {
            call(connection, "MELVARKEDITORResetTemp");
            call(connection, "MELVARKEDITORDodObjInsertToTemp",
                 {{"a_SKLADPOL", AnsiString("Chléb")},
                  {"a_DODAVATEL", AnsiString("Nápoje Švec")},
                  {"a_SKPLID", AnsiString("51")},
                  {"a_MNOZSTVI", AnsiString("1")}});
            outcomes[clerk] = outcome(connection, "MELVARKEDITORDodObjTempUloz",
                                      {{"a_DDOBID", id(clerk == 0 ? c_Order : c_OrderOfBranch)}});
        });
        EXPECT_EQ(outcomes[0] + " " + outcomes[1], "accepted accepted");
        EXPECT_EQ(
            rows(*database, "select ID - " + chosen + " from DODOBJEDNAVKA where ID > " + chosen + " order by ID"),
            "1\n2");
    }
}

TEST_P(TwoConnections, OfTwoWhoFindTheOrderWithoutASupplierOneGivesItHis) {
    const auto database = observer();
    for (int round = 0; round < c_Rounds; ++round) {
        database->runScript("delete from DODOBJEDNAVKA where CISLO like 'OV2026-%'; "
                            "delete from DODOBJPOL where DDOBID = 5; "
                            "update DODOBJEDNAVKA set DODVID = null where ID = 5");
        atOnce([](Database& connection, int clerk) {
            call(connection, "MELVARKEDITORResetTemp");
            call(connection, "MELVARKEDITORDodObjInsertToTemp",
                 {{"a_SKLADPOL", AnsiString("Chléb")},
                  {"a_DODAVATEL", AnsiString(clerk == 0 ? "Nápoje Švec" : "Čajovna Říp")},
                  {"a_SKPLID", AnsiString("51")},
                  {"a_MNOZSTVI", AnsiString("1")}});
            call(connection, "MELVARKEDITORDodObjTempUloz", {{"a_DDOBID", id(c_FreeOrder)}});
        });

        // Whoever comes second finds a supplier who is not his: his line goes into a new order.
        EXPECT_EQ(rows(*database, "select count(*), count(distinct DODAVATEL), min(POCETPOLOZEK), max(POCETPOLOZEK) "
                                  "from SCREEN_DODOBJ_V where _ID = 5 or CISLO like 'OV2026-%'"),
                  "2 | 2 | 1 | 1");
    }
}

std::string keepSetting(Database& database, int round) {
    return outcome(database, "MELVARKEDITORNASTAVENIUlozNove",
                   {{"a_NAZEV", AnsiString("Moje " + std::to_string(round))}, {"a_TYPEDITACE", id(1)}});
}

std::string keepPlacement(Database& database, int round) {
    return outcome(database, "MELVARKEDITORNASTAVENIUlozNastaveniOkna", {{"a_TYPEDITACE", id(round)}});
}

TEST_P(TwoConnections, EachUserKeepsHisSettingsAndPlacements) {
    atOnce([](Database& database, int) {
        for (int round = 0; round < c_Rounds; ++round) {
            EXPECT_EQ(keepSetting(database, round), "accepted"); // names are unique for a user, and these are two
            EXPECT_EQ(keepPlacement(database, round), "accepted");
        }
    });
    const auto database = observer();
    EXPECT_EQ(rows(*database, "select count(*), count(distinct UZIVID) from EDITORNASTAVENI"), "20 | 2");
    EXPECT_EQ(rows(*database, "select count(*), count(distinct UZIVID) from EDITOROKNO"), "20 | 2");
}

TEST_P(TwoConnections, OneUserAtTwoDesksKeepsEachNameOnceAndIsRefusedInWords) {
    std::vector<std::string> outcomes[2];
    // The first call of either desk makes the user's row too.
    atOnce(
        [&outcomes](Database& database, int desk) {
            for (int round = 0; round < 5 * c_Rounds; ++round) {
                outcomes[desk].push_back(keepSetting(database, round));
                EXPECT_EQ(keepPlacement(database, round), "accepted");
            }
        },
        "novakova");

    for (int round = 0; round < 5 * c_Rounds; ++round) {
        const std::size_t i = static_cast<std::size_t>(round);
        const auto [first, second] = std::minmax(outcomes[0].at(i), outcomes[1].at(i));
        EXPECT_EQ(first + " " + second, "ML063 accepted") << "round " << round;
    }
    const auto database = observer();
    EXPECT_EQ(rows(*database, "select count(*), count(distinct UZIVID) from EDITORNASTAVENI"), "50 | 1");
    EXPECT_EQ(rows(*database, "select count(*), count(distinct UZIVID) from EDITOROKNO"), "50 | 1");
}

TEST_P(TwoConnections, ASettingIsLoadedOrSavedBeforeItIsDeletedOrRefused) {
    const auto database = observer();
    for (int round = 0; round < 3 * c_Rounds; ++round) {
        const TCallResult kept = database->Execute({"MELVARKEDITORNASTAVENIUlozNove",
                                                    {{"a_NAZEV", AnsiString("Společné")},
                                                     {"a_TYPEDITACE", id(1)},
                                                     {"a_SDILENE", true},
                                                     {"a_DATA", AnsiString("<a/>")}},
                                                    true});
        const TDbParam setting{"a_ID", kept.Sets.at(0).Rows.at(0).at(0)};
        std::string other;
        atOnce(
            [&](Database& connection, int desk) {
                if (desk == 1) {
                    call(connection, "MELVARKEDITORNASTAVENISmaz", {setting});
                } else {
                    other = answer(connection, "MELVARKEDITORNASTAVENINacti", {setting});
                }
            },
            "svoboda");
        EXPECT_TRUE(other == "<a/>" || other.starts_with("ML060")) << other;
    }
    EXPECT_EQ(rows(*database, "select count(*) from EDITORNASTAVENI"), "0");
}

TEST_P(TwoConnections, ANoteIsClosedBeforeASaveOrAfterIt) {
    const auto database = observer();
    for (int round = 0; round < c_Rounds; ++round) {
        database->runScript("update DODAK set OTEVRENO = 1 where ID = 2");
        const std::string count = "select count(*) from DODAKPOL where DODKID = 2";
        const int before = std::stoi(rows(*database, count));
        std::string saved;
        atOnce([&saved](Database& connection, int clerk) {
            if (clerk == 1) {
                return connection.runScript("update DODAK set OTEVRENO = 0 where ID = 2");
            }
            call(connection, "MELVARKEDITORResetTemp");
            call(connection, "MELVARKEDITORDodakInsertToTemp", noteRow("Sirup", "1"));
            saved = outcome(connection, "MELVARKEDITORDodakTempUloz", {{"a_DODKID", id(c_OpenNote)}});
        });
        EXPECT_TRUE(saved == "accepted" || saved == "ML011") << saved;
        EXPECT_EQ(std::stoi(rows(*database, count)), before + (saved == "accepted" ? 1 : 0));
    }
}

INSTANTIATE_TEST_SUITE_P(Engines, TwoConnections, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
