#include "tests/refhost/MainWindowFixture.h"
#include "tests/widgets/RealInput.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QScreen>
#include <QSplitter>

#include <gmock/gmock.h>

namespace refhost {

namespace {

/// The window is closed as its user closes it, what was left is kept, and another one is opened with it.
class MainWindowLookTest : public MainWindowFixture {
protected:
    void reopen() {
        QObject::connect(window_.get(), &MainWindow::closed, [this] { look_ = window_->look(); });
        ASSERT_TRUE(realinput::keyUntil(QStringLiteral("ctrl+q"), [this] { return !window_->isVisible(); }));
        window_.reset();
        open();
    }

    void goTo(const QString& screenKey, const char16_t* code) {
        ASSERT_TRUE(
            realinput::keyUntil(screenKey, [&, this] { return screen().objectName() == QString::fromUtf16(code); }));
    }

    /// The first column's texts from top to bottom.
    std::string numbers() const {
        std::string all;
        for (int row = 0; row < shownDocuments().rowCount(); ++row) {
            all += shownDocuments().index(row, 0).data().toString().toStdString() + ' ';
        }
        return all;
    }

    /// Two clicks at one place, one soon after the other, would be a double click.
    void clickHeading(int column, int place) const {
        const QHeaderView& header = *documents().horizontalHeader();
        realinput::click(*header.viewport(), {header.sectionViewportPosition(column) + place, header.height() / 2});
    }

    /// Drags the right edge of a column so much further.
    static void widen(const ResultTable& table, int column, int by) {
        const QHeaderView& header = *table.horizontalHeader();
        const QPoint edge(header.sectionViewportPosition(column) + header.sectionSize(column) - 2, header.height() / 2);
        const int before = table.columnWidth(column);
        realinput::dragTo(*header.viewport(), edge, edge + QPoint(by, 0));
        ASSERT_TRUE(QTest::qWaitFor([&] { return table.columnWidth(column) > before; }));
    }
};

TEST_F(MainWindowLookTest, OpensOnTheScreenThatWasLeftAndReadsNoOther) {
    open();
    goTo(QStringLiteral("ctrl+2"), u"DODOBJ");
    reopen();
    EXPECT_EQ(screen().objectName(), u"DODOBJ");
    EXPECT_TRUE(documents().hasFocus());
    EXPECT_EQ(documents().currentKey(), "9");

    window_.reset();
    host_.connection.takeCalls();
    window_ = std::make_unique<MainWindow>(parts());
    window_->start();
    EXPECT_THAT(host_.connection.takeCalls(),
                testing::ElementsAre("select * from SCREEN_DODOBJ_V order by _ID", linesQuery("DODOBJ", 9)));
}

TEST_F(MainWindowLookTest, KeepsTheOrderThatAClickOnAHeadingMade) {
    open();
    ASSERT_EQ(numbers(), "DL-9 DL-11 DL-10 ") << "the newest first";
    clickHeading(2, 12); // the supplier
    ASSERT_TRUE(QTest::qWaitFor([this] { return numbers() == "DL-10 DL-11 DL-9 "; }));
    reopen();
    EXPECT_EQ(numbers(), "DL-10 DL-11 DL-9 ");
    EXPECT_EQ(documents().currentKey(), "102") << "the first of them";

    clickHeading(2, 40); // the other way round
    ASSERT_TRUE(QTest::qWaitFor([this] { return numbers() == "DL-9 DL-11 DL-10 "; }));
    reopen();
    EXPECT_EQ(numbers(), "DL-9 DL-11 DL-10 ");
    EXPECT_EQ(documents().horizontalHeader()->sortIndicatorSection(), 2);
    EXPECT_EQ(documents().horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(MainWindowLookTest, KeepsTheOrderOfTheLinesByKey) {
    open();
    lines().setFocus();
    ASSERT_TRUE(realinput::keyUntil(QStringLiteral("alt+2"),
                                    [this] { return lines().horizontalHeader()->sortIndicatorSection() == 1; }));
    reopen();
    EXPECT_EQ(lines().horizontalHeader()->sortIndicatorSection(), 1);
    EXPECT_EQ(documents().horizontalHeader()->sortIndicatorSection(), 1) << "by date, as at first";
    EXPECT_EQ(documents().horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(MainWindowLookTest, KeepsTheWidthsOnceOneWasDragged) {
    open();
    widen(documents(), 1, 60);
    widen(lines(), 1, 45);
    std::vector<int> widths;
    for (int column = 0; column < 5; ++column) {
        widths.push_back(documents().columnWidth(column));
    }
    const int lineWidth = lines().columnWidth(1);

    reopen();

    for (int column = 0; column < 5; ++column) {
        EXPECT_EQ(documents().columnWidth(column), widths[static_cast<std::size_t>(column)]) << column;
    }
    EXPECT_EQ(lines().columnWidth(1), lineWidth);
    press(Qt::Key_Down);
    EXPECT_EQ(lines().columnWidth(1), lineWidth) << "another document's texts do not widen it";
}

TEST_F(MainWindowLookTest, WidthsThatNobodySetFollowTheTexts) {
    open();
    const int before = lines().columnWidth(1);
    TResultTable longer = linesOf(101);
    longer.Rows[0][3] = AnsiString("Mnohem delší název skladové položky");
    host_.connection.answerQuery(linesQuery("DODAK", 101), longer);
    reopen();
    EXPECT_GT(lines().columnWidth(1), before);
}

TEST_F(MainWindowLookTest, WhatAScreenLookedLikeThatWasNotVisitedSinceStays) {
    open();
    goTo(QStringLiteral("ctrl+2"), u"DODOBJ");
    widen(documents(), 0, 30);
    const int width = documents().columnWidth(0);
    goTo(QStringLiteral("ctrl+1"), u"DODAK");
    reopen();
    reopen();
    goTo(QStringLiteral("ctrl+2"), u"DODOBJ");
    EXPECT_EQ(documents().columnWidth(0), width);
}

TEST_F(MainWindowLookTest, AColumnThatIsGoneMakesNoDifference) {
    look_.screens["DODAK"].documents = {
        .sortColumn = "ZRUSENO", .sortOrder = Qt::AscendingOrder, .widths = {{"ZRUSENO", 90}}};
    open();
    EXPECT_EQ(numbers(), "DL-9 DL-11 DL-10 ");
    EXPECT_TRUE(window_->look().screens.at("DODAK").documents.widths.empty());
}

TEST_F(MainWindowLookTest, KeepsHowTheRoomWasShared) {
    open();
    auto* splitter = screen().findChild<QSplitter*>(QStringLiteral("splitter"));
    const QWidget& handle = *splitter->handle(1);
    realinput::dragTo(handle, handle.rect().center(), handle.rect().center() - QPoint(0, 80));
    const QList<int> left = splitter->sizes();
    ASSERT_EQ(window_->look().screens.at("DODAK").documentsHeight, left[0]) << "the pointer has moved it";
    reopen();
    EXPECT_EQ(screen().findChild<QSplitter*>(QStringLiteral("splitter"))->sizes(), left);
}

TEST_F(MainWindowLookTest, StandsWhereItWasLeftAndDoesNotCreep) {
    open();
    window_->setGeometry(140, 90, 820, 610);
    ASSERT_TRUE(QTest::qWaitFor([this] { return window_->geometry() == QRect(140, 90, 820, 610); }));
    for (int time = 0; time < 3; ++time) {
        reopen();
        EXPECT_TRUE(QTest::qWaitFor([this] { return window_->geometry() == QRect(140, 90, 820, 610); }))
            << window_->x() << ' ' << window_->y() << ' ' << window_->width() << ' ' << window_->height();
    }
}

TEST_F(MainWindowLookTest, AMaximisedOneComesBackMaximisedAndReturnsToItsNormalRectangle) {
    open();
    window_->setGeometry(140, 90, 820, 610);
    ASSERT_TRUE(QTest::qWaitFor([this] { return window_->geometry() == QRect(140, 90, 820, 610); }));
    window_->showMaximized();
    ASSERT_TRUE(QTest::qWaitFor([this] { return window_->isMaximized() && window_->width() > 1400; }));

    reopen();
    EXPECT_TRUE(QTest::qWaitFor([this] { return window_->isMaximized() && window_->width() > 1400; }));

    window_->showNormal();
    EXPECT_TRUE(QTest::qWaitFor([this] { return window_->geometry() == QRect(140, 90, 820, 610); }))
        << window_->x() << ' ' << window_->y() << ' ' << window_->width() << ' ' << window_->height();
}

TEST_F(MainWindowLookTest, APlaceThatNoScreenHasAnyMoreComesWithinReach) {
    look_.place = melvark::WindowPlacement{-7000, 5000, 820, 610, false};
    open();
    EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(window_->geometry()));
}

} // namespace

} // namespace refhost
