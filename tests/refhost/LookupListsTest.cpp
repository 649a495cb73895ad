// Long lookup lists as the program opens them, on both engines.

#include "host/Exceptions.h"
#include "refhost/HostLibraryManager.h"
#include "refhost/Languages.h"
#include "refhost/Trace.h"
#include "refhost/tables/ResultModel.h"
#include "refhost/tables/ResultTable.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/Engines.h"
#include "tests/refhost/FocusedWidget.h"
#include "tests/refhost/TableRows.h"
#include "tests/widgets/ModalDriver.h"

#include <QTest>

#include <gtest/gtest.h>
#include <sstream>

namespace refhost {

namespace {

constexpr int c_Notes = 3000;
constexpr std::int64_t c_FirstId = 10'000;

/// The company of the contract's tests with 3,000 more notes of Mill, "N-0000" to "N-2999", and as many of another
/// supplier, whom the condition keeps away.
class LookupLists : public testing::TestWithParam<Engine> {
protected:
    LookupLists() {
        addContractCompany(*database_);
        std::vector<std::vector<TDbValue>> notes;
        for (int i = c_Notes; i-- > 0;) {
            const std::string number = std::to_string(c_FirstId + i).substr(1);
            notes.push_back({c_FirstId + i, "N-" + number, "2020-05-04", c_Mill, c_MainWarehouse});
            notes.push_back({2 * c_FirstId + i, "N-" + number, "2020-05-04", c_Drinks, c_MainWarehouse});
        }
        const std::vector<std::string> columns{"ID", "CISLO", "DATUM", "DODVID", "SKLDID"};
        database_->insertRows("DODAK", columns, notes);
    }

    std::optional<TLookupPick> pickNote(const std::function<void(ResultTable&)>& clerk) {
        const ModalDriver driver(QStringLiteral("lookupDialog"), [&](QWidget& dialog) {
            clerk(*dialog.findChild<ResultTable*>(QStringLiteral("lookupTable")));
        });
        return manager_.LookupList("Kordan3:DODAK.Normal", "CISLO", "_ID",
                                   "V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, 2, 1)=1");
    }
    static void waitForAll(const ResultTable& table) {
        // Those of the contract's company that the note may be filled from are among them.
        ASSERT_TRUE(QTest::qWaitFor([&] { return table.shownRowCount() > c_Notes; }));
    }

    std::unique_ptr<Database> database_ = newDatabase(GetParam());
    Languages languages_{"cs"};
    Trace trace_{std::make_unique<std::ostringstream>()};
    HostLibraryManager manager_{{.openRows = [this](const AnsiString& sql) { return database_->openRows(sql); },
                                 .settings = TFormatSettings::Czech(),
                                 .languages = languages_,
                                 .trace = trace_}};
};

TEST_P(LookupLists, BringEachRowOnceInTheOrderOfItsNumber) {
    std::vector<std::string> shown;
    pickNote([&](ResultTable& table) {
        waitForAll(table);
        const QAbstractItemModel& model = *static_cast<const QTableView&>(table).model();
        for (int row = 0; row < model.rowCount(); ++row) {
            shown.push_back(model.index(row, 0).data().toString().toStdString());
        }
        QTest::keyClick(focusedWidget(), Qt::Key_Escape);
    });

    std::vector<std::string> expected{"DL-1", "DL-4", "DL-6", "DL-7", "DL-8", "DL-9"};
    for (int i = 0; i < c_Notes; ++i) {
        expected.push_back("N-" + std::to_string(c_FirstId + i).substr(1));
    }
    EXPECT_EQ(shown, expected);
}

TEST_P(LookupLists, GiveTheRowThatWasTypedAtOnce) {
    const auto pick = pickNote([](ResultTable&) {
        QTest::keyClicks(focusedWidget(), QStringLiteral("2987"));
        QTest::keyClick(focusedWidget(), Qt::Key_Return);
    });

    EXPECT_EQ(shownPick(pick), "N-2987 (12987)");
}

TEST_P(LookupLists, GiveARowOfTheFirstOnesAndLeaveTheDatabaseFree) {
    const auto pick = pickNote([](ResultTable&) {
        QTest::keyClick(focusedWidget(), Qt::Key_Down);
        QTest::keyClick(focusedWidget(), Qt::Key_Return);
    });

    EXPECT_EQ(shownPick(pick), "DL-4 (4)");
    database_->Execute(
        {"MELVARKEDITORNASTAVENIUlozNastaveniOkna", {{"a_TYPEDITACE", std::int64_t{0}}, {"a_DATA", "x"}}, false});
    EXPECT_EQ(std::get<AnsiString>(database_->Query("select DATA from EDITOROKNO").Rows.at(0).at(0)), "x");
}

TEST_P(LookupLists, NameAColumnThatTheyLack) {
    try {
        manager_.LookupList("Kordan3:DODAK.Normal", "JMENO", "_ID", "");
        FAIL() << "opened";
    } catch (const EHostError& error) {
        EXPECT_EQ(error.Message(), "Seznam „Kordan3:DODAK.Normal“ nemá sloupec JMENO.");
    }
}

INSTANTIATE_TEST_SUITE_P(Engines, LookupLists, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& row) { return engineName(row.param); });

} // namespace

} // namespace refhost
