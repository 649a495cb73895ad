#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

#include <gmock/gmock.h>
#include <map>

class WindowPlacement : public EditBoxTest {
protected:
    void storedIs(const AnsiString& document) {
        host.connection.procedure("MELVARKEDITORNASTAVENINactiNastaveniOkna").returns({{{"DATA"}, {{document}}}});
    }

    /// Where the form stands when it is centred at its design size, half pixels going toward zero.
    QRect centred() {
        const QSize screen = QGuiApplication::primaryScreen()->size();
        const QSize size(std::max(790, form->minimumWidth()), std::max(400, form->minimumHeight()));
        return QRect(QPoint((screen.width() - size.width()) / 2, (screen.height() - size.height()) / 2), size);
    }

    AnsiString lastSave() {
        const auto calls = host.connection.callsOf("MELVARKEDITORNASTAVENIUlozNastaveniOkna");
        return calls.empty() ? "" : calls.back();
    }
};

TEST_F(WindowPlacement, WithoutARecordTheFormIsCentredAtItsDesignSize) {
    make().move(50, 60); // else Qt centres a dialog by itself
    form->show();
    EXPECT_EQ(form->geometry(), centred());
}

TEST_F(WindowPlacement, AStoredRectangleIsTakenOver) {
    storedIs("<window><left>33</left><top>44</top><width>900</width><height>500</height><maximized>0</maximized>"
             "</window>");
    open();
    EXPECT_EQ(form->geometry(), QRect(33, 44, 900, 500));
}

TEST_F(WindowPlacement, ASizeBelowTheLeastGivesTheLeast) {
    storedIs("<window><left>31</left><top>42</top><width>100</width><height>50</height></window>");
    open();
    EXPECT_EQ(form->geometry(), QRect(QPoint(31, 42), centred().size()));
}

TEST_F(WindowPlacement, WhatTheDocumentDoesNotSayStaysCentred) {
    storedIs("<window><maximized>0</maximized></window>");
    open();
    EXPECT_EQ(form->geometry(), centred());
}

TEST_F(WindowPlacement, WithoutTheElementTheStateIsLeftAlone) {
    storedIs("<window><left>31</left></window>");
    make().setWindowState(Qt::WindowMaximized);
    form->LoadWindowSettings();
    EXPECT_EQ(form->windowState(), Qt::WindowMaximized);
    storedIs("<window><left>31</left><maximized>ne</maximized></window>");
    form->LoadWindowSettings();
    EXPECT_EQ(form->windowState(), Qt::WindowNoState) << "any other text";
}

TEST_F(WindowPlacement, ABadNumberKeepsTheCurrentValue) {
    storedIs("<window><left>vlevo</left><top>44</top><width>9e2</width><height>500</height></window>");
    open();
    EXPECT_EQ(form->geometry(), QRect(centred().left(), 44, centred().width(), 500));
}

TEST_F(WindowPlacement, ATitleBarThatLiesOnNoScreenMovesToTheNearestOne) {
    storedIs("<window><left>-5000</left><top>-4000</top><width>900</width><height>500</height></window>");
    open();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(form->x(), screen.left());
    EXPECT_EQ(form->width(), std::max(screen.width(), form->minimumWidth())) << "cut to it";
    EXPECT_GT(form->y(), screen.top()) << "below the room for the title bar";
    EXPECT_LT(form->y(), screen.top() + 60);
}

TEST_F(WindowPlacement, WhetherItsTitleBarCanBeReachedIsJudgedByTheSizeThatItGets) {
    make();
    const int left = 50 - std::max(790, form->minimumWidth());
    storedIs("<window><left>" + std::to_string(left) + "</left><top>44</top><width>10</width><height>500</height>" +
             "</window>");
    open();
    EXPECT_EQ(form->x(), left) << "fifty pixels of the least width show";
    EXPECT_EQ(form->width(), centred().width());
}

TEST_F(WindowPlacement, SenselessNumbersLeaveAWindowThatCanBeUsed) {
    for (const char* const number : {"99999999999", "2147483647", "-2147483648", "12px", "-5"}) {
        const AnsiString text = number;
        storedIs("<window><left>" + text + "</left><top>" + text + "</top><width>" + text + "</width><height>" + text +
                 "</height></window>");
        open();
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        EXPECT_TRUE(form->geometry().adjusted(0, -40, 0, 0).intersects(screen)) << number;
        EXPECT_GE(form->width(), 790) << number;
        EXPECT_LE(form->width(), std::max(screen.width(), form->minimumWidth())) << number;
        EXPECT_LE(form->height(), std::max(screen.height(), form->minimumHeight())) << number;
    }
}

TEST_F(WindowPlacement, AForeignOrDamagedDocumentLeavesTheFormCentred) {
    for (const char* const document : {"", "<okno><left>1</left></okno>", "<window><left>1</left>"}) {
        storedIs(document);
        open();
        EXPECT_EQ(form->geometry(), centred()) << document;
    }
}

TEST_F(WindowPlacement, ClosingStoresTheRectangleUnderTheEditTypeAlone) {
    open();
    form->setGeometry(50, 60, 1000, 600);
    settle();
    form->close();
    const AnsiString line = lastSave();
    EXPECT_THAT(line, testing::StartsWith("MELVARKEDITORNASTAVENIUlozNastaveniOkna(a_TYPEDITACE=30, a_DATA="));
    EXPECT_THAT(line, testing::HasSubstr("<window><left>50</left><top>60</top><width>1000</width><height>600</height>"
                                         "<maximized>0</maximized></window>"));
}

TEST_F(WindowPlacement, TwoEditorsOfOneTypeThatDifferInTheOffsetShareThePlace) {
    std::map<std::int64_t, AnsiString> kept;
    host.connection.procedure("MELVARKEDITORNASTAVENIUlozNastaveniOkna").answers([&](const TProcedureCall& call) {
        kept[std::get<std::int64_t>(call.Params.at(0).Value)] = std::get<AnsiString>(call.Params.at(1).Value);
        return TCallResult();
    });
    host.connection.procedure("MELVARKEDITORNASTAVENINactiNastaveniOkna").answers([&](const TProcedureCall& call) {
        const auto found = kept.find(std::get<std::int64_t>(call.Params.at(0).Value));
        TCallResult result;
        result.Sets = {{{"DATA"}, {{found == kept.end() ? TDbValue() : TDbValue(found->second)}}}};
        return result;
    });
    const auto use = [&](int editType, int offset) {
        form = std::make_unique<TestEditBox>(&manager, testColumns(log), editType, offset);
        form->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
    };
    use(30, 2);
    form->setGeometry(50, 60, 1000, 600);
    settle();
    form->close();
    use(30, 5);
    EXPECT_EQ(form->geometry(), QRect(50, 60, 1000, 600));
    form->close();
    use(31, 2);
    EXPECT_EQ(form->geometry(), centred()) << "another type";
}

// The window manager's answers take a maximised window through other states before it is down: how many, and with which
// geometry, differs from time to time. Here they are played one by one.
TEST_F(WindowPlacement, WhateverAMaximisedWindowPassesOnItsWayDownItsNormalRectangleIsStored) {
    open();
    form->setGeometry(50, 60, 1000, 600);
    form->setWindowState(Qt::WindowMaximized);
    settle();
    form->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    form->setWindowState(Qt::WindowNoState);
    form->setGeometry(0, 20, 1600, 980);
    form->setWindowState(Qt::WindowMinimized);
    ASSERT_EQ(form->normalGeometry(), QRect(0, 20, 1600, 980)) << "Qt takes the wide one for the normal one";
    form->close();
    EXPECT_THAT(lastSave(), testing::HasSubstr("<left>50</left><top>60</top><width>1000</width><height>600</height>"
                                               "<maximized>0</maximized>"));
}
