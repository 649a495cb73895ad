// A lookup list that is shown before all its rows are there.

#include "host/Exceptions.h"
#include "refhost/Languages.h"
#include "refhost/lookup/LookupDialog.h"
#include "refhost/tables/ResultModel.h"
#include "refhost/tables/ResultTable.h"
#include "tests/refhost/FocusedWidget.h"
#include "tests/refhost/ScreenRows.h"
#include "tests/refhost/TableRows.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace refhost {

namespace {

constexpr int c_Rows = 3500;
constexpr int c_FirstRows = 1000;

/// Notes "DL-1000" to "DL-4499" with ids of the same numbers, on days of which the last one is the earliest.
TResultTable manyNotes() {
    TResultTable notes = deliveryNotes();
    const std::vector<TDbValue> pattern = notes.Rows.front();
    notes.Rows.clear();
    for (int i = 0; i < c_Rows; ++i) {
        std::vector<TDbValue> row = pattern;
        row[0] = std::int64_t{1000 + i};
        row[1] = "DL-" + std::to_string(1000 + i);
        row[2] = "1.1." + std::to_string(9999 - i);
        notes.Rows.push_back(row);
    }
    return notes;
}

class LongLookupList : public testing::Test {
protected:
    /// What is behind the first portion comes when the test waits, and not between the keys that it sends.
    void open() {
        const auto beforeFetch = [this](std::size_t fetched) {
            fetched_ = fetched;
            if (breaksAt_ <= fetched) {
                throw EDatabaseError("Spojení se ztratilo.", "ML915");
            }
        };
        dialog_ = std::make_unique<LookupDialog>(std::make_shared<TableRows>(manyNotes(), beforeFetch), "CISLO", "_ID",
                                                 TFormatSettings::Czech(), languages_, nullptr);
        dialog_->show();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&search(), key, modifiers); }
    void type(const char* keys) { QTest::keyClicks(&search(), QString::fromUtf8(keys)); }
    void waitForAll() {
        ASSERT_TRUE(QTest::qWaitFor([&] { return table().result().rowCount() == c_Rows; }));
    }

    ResultTable& table() const { return *dialog_->findChild<ResultTable*>(QStringLiteral("lookupTable")); }
    QLineEdit& search() const { return *dialog_->findChild<QLineEdit*>(QStringLiteral("searchEdit")); }
    std::string count() const {
        return dialog_->findChild<QLabel*>(QStringLiteral("countLabel"))->text().toStdString();
    }
    std::string number(int shownRow) const {
        return table().QTableView::model()->index(shownRow, 0).data().toString().toStdString();
    }

    Languages languages_{"cs"};
    std::size_t fetched_ = 0;
    std::size_t breaksAt_ = c_Rows + 1;
    std::unique_ptr<LookupDialog> dialog_;
};

TEST_F(LongLookupList, IsShownWithItsFirstRowsAndSaysThatMoreCome) {
    open();

    EXPECT_EQ(fetched_, 0U);
    EXPECT_EQ(table().shownRowCount(), c_FirstRows);
    EXPECT_EQ(number(0), "DL-1000");
    EXPECT_EQ(count(), "1000 z 1000, další se načítají…");
}

TEST_F(LongLookupList, FillsItselfAndLeavesRowAndViewWhereTheyAre) {
    open();
    for (int i = 0; i < 7; ++i) {
        press(Qt::Key_PageDown);
    }
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    const std::string key = table().currentKey();
    const QScrollBar& bar = *table().verticalScrollBar();
    const int scrolled = bar.value();
    ASSERT_NE(key, "1000");
    ASSERT_GT(scrolled, 0);
    ASSERT_EQ(table().result().rowCount(), c_FirstRows);

    waitForAll();

    EXPECT_EQ(table().currentKey(), key);
    EXPECT_EQ(bar.value(), scrolled);
    EXPECT_EQ(count(), "3500 z 3500");
    EXPECT_EQ(number(c_Rows - 1), "DL-4499");
}

TEST_F(LongLookupList, FillsItselfAndLeavesAViewThatTheWheelTookAwayFromItsRow) {
    open();
    press(Qt::Key_Down);
    const std::string key = table().currentKey();
    const QScrollBar& bar = *table().verticalScrollBar();
    for (int i = 0; i < 20; ++i) {
        const QPoint place = table().viewport()->rect().center();
        QWheelEvent wheel(place, table().viewport()->mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(table().viewport(), &wheel);
    }
    const int scrolled = bar.value();
    ASSERT_GT(scrolled, bar.pageStep()) << "the row is still to be seen";
    ASSERT_EQ(table().result().rowCount(), c_FirstRows);

    waitForAll();

    EXPECT_EQ(table().currentKey(), key);
    EXPECT_EQ(bar.value(), scrolled);
}

TEST_F(LongLookupList, ASearchFindsWhatHadNotBeenRead) {
    open();

    type("4321");

    EXPECT_EQ(table().shownRowCount(), 1);
    EXPECT_EQ(table().currentKey(), "4321");
    EXPECT_EQ(count(), "1 z 3500");
    press(Qt::Key_Return);
    EXPECT_EQ(shownPick(dialog_->pick()), "DL-4321 (4321)");
}

TEST_F(LongLookupList, ASearchThatIsPastedFindsWhatHadNotBeenRead) {
    open();

    search().setText(QStringLiteral("4321"));

    EXPECT_EQ(table().currentKey(), "4321");
}

TEST_F(LongLookupList, AKeyThatSortsSortsAllRows) {
    open();

    press(Qt::Key_2, Qt::AltModifier);

    EXPECT_EQ(number(0), "DL-4499");
    EXPECT_EQ(number(c_Rows - 1), "DL-1000");
}

TEST_F(LongLookupList, AHeadingThatIsClickedSortsAllRows) {
    open();
    QHeaderView& header = *table().horizontalHeader();
    const QPoint date(header.sectionViewportPosition(1) + 10, header.height() / 2);

    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, date);
    QCoreApplication::sendPostedEvents(); // before the rest comes by itself

    EXPECT_EQ(number(0), "DL-4499");
}

TEST_F(LongLookupList, TheEndIsThatOfTheWholeList) {
    open();

    QTest::keyClick(&table(), Qt::Key_End, Qt::ControlModifier);

    EXPECT_EQ(table().currentKey(), "4499");
}

TEST_F(LongLookupList, WhoReachesTheLastOfTheFirstRowsGoesOn) {
    open();
    ASSERT_TRUE(table().selectKey("1999"));

    QCoreApplication::sendPostedEvents(); // before the rest comes by itself
    press(Qt::Key_Down);

    EXPECT_EQ(table().currentKey(), "2000");
}

TEST_F(LongLookupList, OneOfTheFirstRowsIsPickedWithoutWaiting) {
    open();
    press(Qt::Key_Down);
    press(Qt::Key_Return);

    EXPECT_EQ(fetched_, 0U);
    EXPECT_EQ(shownPick(dialog_->pick()), "DL-1001 (1001)");
}

TEST_F(LongLookupList, ThatIsLeftReadsNoFurther) {
    open();
    press(Qt::Key_Escape);
    QTest::qWait(20);

    EXPECT_EQ(fetched_, 0U);
}

TEST_F(LongLookupList, WhoseReadingBreaksOffIsClosedAndTellsTheError) {
    breaksAt_ = 2000;
    open();

    ASSERT_TRUE(QTest::qWaitFor([&] { return !dialog_->isVisible(); }));

    EXPECT_THROW(dialog_->pick(), EDatabaseError);
}

TEST_F(LongLookupList, WhoseReadingBreaksOffUnderASearchIsClosedAndTellsTheError) {
    breaksAt_ = 2000;
    open();

    type("4");

    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_THROW(dialog_->pick(), EDatabaseError);
}

} // namespace

} // namespace refhost
