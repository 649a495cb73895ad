#include "host/widgets/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

using melvark::MoveWithinReach;
using melvark::WindowPlace;
using melvark::WindowPlacement;

namespace {

class WindowPlaceTest : public testing::Test {
protected:
    void SetUp() override {
        window_.setGeometry(50, 60, 500, 300);
        window_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    }

    QWidget window_;
    WindowPlace place_{window_};
};

TEST_F(WindowPlaceTest, IsTheRectangleWithoutTheFrame) {
    EXPECT_EQ(place_.Current(), (WindowPlacement{50, 60, 500, 300, false}));
}

TEST_F(WindowPlaceTest, OfAMaximisedWindowIsTheNormalRectangle) {
    window_.setWindowState(Qt::WindowMaximized);
    ASSERT_TRUE(QTest::qWaitFor([this] { return window_.width() > 500; }));
    EXPECT_EQ(place_.Current(), (WindowPlacement{50, 60, 500, 300, true}));
}

TEST_F(WindowPlaceTest, OfAMinimisedWindowThatWasMaximisedIsTheNormalRectangleNotMaximised) {
    window_.setWindowState(Qt::WindowMaximized);
    window_.setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    EXPECT_EQ(place_.Current(), (WindowPlacement{50, 60, 500, 300, false}));
}

TEST_F(WindowPlaceTest, AWindowIsMovedToWhereItIsWanted) {
    MoveWithinReach(window_, {.Left = 70, .Top = 90, .Width = 400, .Height = 250});
    EXPECT_EQ(window_.geometry(), QRect(70, 90, 400, 250));
}

TEST_F(WindowPlaceTest, AWindowKeepsItsOwnLimits) {
    window_.setMinimumSize(300, 200);
    window_.setMaximumSize(600, 400);
    MoveWithinReach(window_, {.Left = 70, .Top = 90, .Width = 10, .Height = 9000});
    EXPECT_EQ(window_.geometry(), QRect(70, 90, 300, 400));
}

TEST_F(WindowPlaceTest, AWindowThatWouldLieOnNoScreenComesToTheNearestOne) {
    MoveWithinReach(window_, {.Left = -9000, .Top = 90, .Width = 400, .Height = 250});
    EXPECT_EQ(window_.geometry(), QRect(QGuiApplication::primaryScreen()->availableGeometry().left(), 90, 400, 250));
}

} // namespace
