#include "refhost/lookup/LookupDialog.h"

#include "refhost/Languages.h"
#include "refhost/tables/ResultTable.h"
#include "tests/refhost/FocusedWidget.h"
#include "tests/refhost/ScreenRows.h"
#include "tests/refhost/TableRows.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace refhost {

namespace {

class LookupDialogTest : public testing::Test {
protected:
    void open(TResultTable rows) { open(rowsOf(std::move(rows))); }
    void open(std::shared_ptr<RowReader> rows) {
        dialog_ = std::make_unique<LookupDialog>(std::move(rows), "CISLO", "_ID", TFormatSettings::Czech(), languages_,
                                                 nullptr);
        dialog_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
    }

    static void type(const char* keys) { QTest::keyClicks(focusedWidget(), QString::fromUtf8(keys)); }
    static void press(Qt::Key key) { QTest::keyClick(focusedWidget(), key); }

    ResultTable& table() const { return *dialog_->findChild<ResultTable*>(QStringLiteral("lookupTable")); }
    QLineEdit& search() const { return *dialog_->findChild<QLineEdit*>(QStringLiteral("searchEdit")); }

    std::vector<std::string> numbers() const {
        std::vector<std::string> result;
        const QAbstractItemModel& model = *static_cast<const QTableView&>(table()).model();
        for (int row = 0; row < model.rowCount(); ++row) {
            result.push_back(model.index(row, 0).data().toString().toStdString());
        }
        return result;
    }

    Languages languages_{"cs"};
    std::unique_ptr<LookupDialog> dialog_;
};

using Numbers = std::vector<std::string>;

TEST_F(LookupDialogTest, OpensOnTheSearchLineWithTheFirstRowOfTheDisplayColumnsOrder) {
    open(deliveryNotes());

    EXPECT_TRUE(search().hasFocus());
    EXPECT_EQ(numbers(), (Numbers{"DL-9", "DL-10", "DL-11"}));
    EXPECT_EQ(table().currentKey(), "101");
}

TEST_F(LookupDialogTest, TypingFindsAndEnterPicks) {
    open(deliveryNotes());

    type("capek");
    EXPECT_EQ(numbers(), (Numbers{"DL-10"}));
    press(Qt::Key_Return);

    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
    ASSERT_TRUE(dialog_->pick());
    EXPECT_EQ(dialog_->pick()->Display, "DL-10");
    EXPECT_EQ(dialog_->pick()->Key, "102");
}

TEST_F(LookupDialogTest, TheArrowKeysMoveThroughTheRowsFromTheSearchLine) {
    open(deliveryNotes());

    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    press(Qt::Key_Enter);

    EXPECT_EQ(dialog_->pick()->Key, "102");
}

TEST_F(LookupDialogTest, EscapeEmptiesTheSearchFirstAndThenLeavesWithoutAPick) {
    open(deliveryNotes());
    type("capek");

    press(Qt::Key_Escape);
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(numbers().size(), 3u);

    press(Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_FALSE(dialog_->pick());
}

TEST_F(LookupDialogTest, ASearchThatMatchesNothingPicksNothing) {
    open(deliveryNotes());
    type("nikde");

    press(Qt::Key_Return);
    QTest::mouseClick(dialog_->findChild<QPushButton*>(QStringLiteral("pickButton")), Qt::LeftButton);

    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_FALSE(dialog_->pick());
}

TEST_F(LookupDialogTest, ADoubleClickPicks) {
    open(deliveryNotes());
    const QRect cell = table().visualRect(static_cast<QTableView&>(table()).model()->index(2, 0));

    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, cell.center());

    ASSERT_TRUE(dialog_->pick());
    EXPECT_EQ(dialog_->pick()->Key, "103");
}

TEST_F(LookupDialogTest, AClickOnAHeadingSortsAndKeepsTheCurrentRow) {
    open(deliveryNotes());
    press(Qt::Key_Down);
    QHeaderView& header = *table().horizontalHeader();
    const QPoint date(header.sectionViewportPosition(1) + 10, header.height() / 2);

    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, date);

    EXPECT_EQ(numbers(), (Numbers{"DL-10", "DL-11", "DL-9"})); // 31.12.2026, 15.1.2027, 1.2.2027
    EXPECT_EQ(table().currentKey(), "102");
}

TEST_F(LookupDialogTest, AltAndTheColumnsNumberSortAndTheSecondTimeTheOtherWayRound) {
    open(deliveryNotes());
    press(Qt::Key_Down);

    QTest::keyClick(focusedWidget(), Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(numbers(), (Numbers{"DL-10", "DL-11", "DL-9"})); // 31.12.2026, 15.1.2027, 1.2.2027
    EXPECT_EQ(table().currentKey(), "102");
    QTest::keyClick(focusedWidget(), Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(numbers(), (Numbers{"DL-9", "DL-11", "DL-10"}));
    QTest::keyClick(focusedWidget(), Qt::Key_9, Qt::AltModifier); // the list has no ninth column
    EXPECT_EQ(numbers(), (Numbers{"DL-9", "DL-11", "DL-10"}));
}

TEST_F(LookupDialogTest, TheSearchLineSortsByTheSameKeysAndKeepsItsText) {
    open(deliveryNotes());
    search().setFocus();
    QTest::keyClicks(&search(), QStringLiteral("DL"));

    QTest::keyClick(&search(), Qt::Key_2, Qt::AltModifier);

    EXPECT_EQ(numbers(), (Numbers{"DL-10", "DL-11", "DL-9"}));
    EXPECT_EQ(search().text(), u"DL");
}

TEST_F(LookupDialogTest, AHeadingTellsTheKeyThatSortsByIt) {
    open(deliveryNotes());
    const QAbstractItemModel& model = *static_cast<QTableView&>(table()).model();
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::ToolTipRole).toString(), u"Alt+2");
}

TEST_F(LookupDialogTest, AnEmptyListSaysSo) {
    TResultTable rows = deliveryNotes();
    rows.Rows.clear();
    open(rows);

    EXPECT_EQ(dialog_->findChild<QLabel*>(QStringLiteral("emptyLabel"))->text(),
              u"Seznam neobsahuje žádný vhodný záznam.");
    EXPECT_FALSE(dialog_->findChild<QPushButton*>(QStringLiteral("pickButton"))->isEnabled());
    press(Qt::Key_Return);
    EXPECT_TRUE(dialog_->isVisible());
}

TEST_F(LookupDialogTest, ThousandsOfRowsAreSearchedWithoutADelayThatAClerkNotices) {
    TResultTable rows = deliveryNotes();
    for (int index = 0; index < 10000; ++index) {
        auto row = rows.Rows.front();
        row[0] = std::int64_t{1000 + index};
        row[1] = "DL-" + std::to_string(1000 + index);
        rows.Rows.push_back(row);
    }
    open(rows);
    QElapsedTimer timer;
    timer.start();

    type("10999");

    EXPECT_EQ(numbers(), (Numbers{"DL-10999"}));
    // Five keys; a tenth of a second each is where waiting begins to be felt. The bound leaves room for a busy machine.
    EXPECT_LT(timer.elapsed(), 5 * 1000);
}

} // namespace

} // namespace refhost
