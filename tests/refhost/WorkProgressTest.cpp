#include "refhost/WorkProgress.h"

#include "host/widgets/Later.h"
#include "refhost/Languages.h"
#include "refhost/ProgressWindow.h"
#include "tests/refhost/FocusedWidget.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <gtest/gtest.h>

namespace refhost {
namespace {

using namespace std::chrono_literals;
using Clock = CallThread::Clock;

/// A window with the second of two edits focused, whose program waits for the database.
class WorkProgressTest : public testing::Test {
protected:
    WorkProgressTest() {
        auto* layout = new QVBoxLayout(&window_);
        layout->addWidget(new QLineEdit(&window_));
        layout->addWidget(edit_);
        window_.show();
        edit_->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
        EXPECT_EQ(focusedWidget(), edit_);
    }

    /// As often as whoever waits for the database would, until something is so.
    bool lookUntil(const std::function<bool()>& isSo, const LongWork& work = {}) {
        const auto end = Clock::now() + 10s;
        while (!isSo() && Clock::now() < end) {
            wantsStop_ = progress_.look(work);
        }
        return isSo();
    }
    bool lookUntilActive(const LongWork& work = {}) {
        return lookUntil([] { return shown() != nullptr && shown()->isActiveWindow(); }, work);
    }
    void lookFor(std::chrono::milliseconds time) {
        const auto end = Clock::now() + time;
        lookUntil([&] { return Clock::now() >= end; });
    }
    static ProgressWindow* shown() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* const window = qobject_cast<ProgressWindow*>(widget); window && window->isVisible()) {
                return window;
            }
        }
        return nullptr;
    }
    static QPushButton& stopButton() { return *shown()->findChild<QPushButton*>(QStringLiteral("stopButton")); }
    static QString text() { return shown()->findChild<QLabel*>(QStringLiteral("progressText"))->text(); }
    /// What the user does while Qt's events are delivered, and nobody else delivers them.
    void meanwhile(const std::function<void()>& action, const LongWork& work = {}) {
        bool isDone = false;
        QMetaObject::invokeMethod(
            qApp,
            [&] {
                action();
                isDone = true;
            },
            Qt::QueuedConnection);
        EXPECT_TRUE(lookUntil([&] { return isDone; }, work));
        wantsStop_ = progress_.look(work);
    }
    /// A key that the window system brings for a window, whichever widget gets it.
    static void press(QWidget& window, Qt::Key key) { QTest::keyClick(window.windowHandle(), key); }

    Languages languages_{"cs"};
    QWidget window_;
    QLineEdit* edit_ = new QLineEdit(&window_);
    WorkProgress progress_{languages_};
    bool wantsStop_ = false;
};

TEST_F(WorkProgressTest, TheFirstLookIsASecondAfterTheBeginningOfTheWork) {
    const auto before = Clock::now();
    progress_.goesOn();
    const auto after = Clock::now();
    const auto first = progress_.nextLook();
    EXPECT_GE(first, before + 1s);
    EXPECT_LE(first, after + 1s);
    progress_.goesOn();
    EXPECT_EQ(progress_.nextLook(), first) << "it is the same work";
    progress_.ends();
    progress_.goesOn();
    EXPECT_GT(progress_.nextLook(), first) << "it is another work";
    EXPECT_EQ(shown(), nullptr);
}

TEST_F(WorkProgressTest, TellsWhatGoesOnAndIsGoneWithTheWork) {
    progress_.goesOn();
    ASSERT_TRUE(lookUntilActive());
    EXPECT_EQ(shown()->windowTitle(), u"Prosím čekejte");
    EXPECT_EQ(text(), u"Databáze ještě pracuje.");
    EXPECT_TRUE(stopButton().hasFocus());
    progress_.look({.RowsSent = 1234});
    EXPECT_EQ(text(), u"Ukládají se řádky, odesláno: 1234");
    progress_.look({.RowsSent = 1234, .MayStop = false});
    EXPECT_EQ(text(), u"Doklad se ukládá. To už nejde zastavit.");
    EXPECT_FALSE(wantsStop_);
    progress_.ends();
    EXPECT_EQ(shown(), nullptr);
}

TEST_F(WorkProgressTest, KeysForOtherWindowsDoNothingWhileItIsShownAndWorkAgainAfterwards) {
    press(window_, Qt::Key_A);
    progress_.goesOn();
    ASSERT_TRUE(lookUntilActive());
    meanwhile([this] {
        press(window_, Qt::Key_B);
        QTest::mouseClick(window_.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    });
    EXPECT_EQ(QApplication::activeWindow(), shown());
    EXPECT_EQ(edit_->text(), u"a");
    progress_.ends();
    EXPECT_EQ(QApplication::focusWidget(), edit_) << "the focus comes back by itself, to where it was";
    press(window_, Qt::Key_C);
    EXPECT_EQ(edit_->text(), u"ac");
}

TEST_F(WorkProgressTest, EscapeStops) {
    progress_.goesOn();
    ASSERT_TRUE(lookUntilActive());
    meanwhile([] { press(*shown(), Qt::Key_Escape); });
    EXPECT_TRUE(wantsStop_);
    EXPECT_EQ(text(), u"Zastavuje se…");
    EXPECT_FALSE(stopButton().isEnabled());
}

TEST_F(WorkProgressTest, EnterOnTheButtonStops) {
    progress_.goesOn();
    ASSERT_TRUE(lookUntilActive());
    meanwhile([] { press(*shown(), Qt::Key_Return); });
    EXPECT_TRUE(wantsStop_);
}

TEST_F(WorkProgressTest, AClickOnTheButtonStops) {
    progress_.goesOn();
    ASSERT_TRUE(lookUntilActive());
    meanwhile([] {
        const QPoint place = stopButton().mapTo(shown(), stopButton().rect().center());
        QTest::mouseClick(shown()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    });
    EXPECT_TRUE(wantsStop_);
}

TEST_F(WorkProgressTest, TheCloseBoxStopsAndTheWindowStaysUntilTheWorkHasEnded) {
    progress_.goesOn();
    ASSERT_TRUE(lookUntilActive());
    meanwhile([] { shown()->close(); });
    EXPECT_TRUE(wantsStop_);
    ASSERT_NE(shown(), nullptr);
    progress_.look({.RowsSent = 5, .MayStop = false});
    EXPECT_EQ(text(), u"Zastavuje se…") << "what was begun has to be put in order yet";
}

TEST_F(WorkProgressTest, NothingStopsAClosingCall) {
    const LongWork closing{.RowsSent = 5, .MayStop = false};
    progress_.goesOn();
    ASSERT_TRUE(lookUntilActive(closing));
    EXPECT_FALSE(stopButton().isEnabled());
    meanwhile(
        [] {
            press(*shown(), Qt::Key_Escape);
            press(*shown(), Qt::Key_Return);
            shown()->close();
        },
        closing);
    EXPECT_FALSE(wantsStop_);
    ASSERT_NE(shown(), nullptr);
    EXPECT_EQ(text(), u"Doklad se ukládá. To už nejde zastavit.");
}

TEST_F(WorkProgressTest, ATimerOfAnotherWindowWaitsAndTicksOnceAfterTheWork) {
    int ticks = 0;
    QTimer timer(edit_);
    timer.setInterval(300);
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] { ++ticks; });
    progress_.goesOn();
    ASSERT_TRUE(lookUntilActive());
    timer.start();
    lookFor(700ms);
    progress_.ends();
    EXPECT_EQ(ticks, 0) << "not inside the call that has ended";
    QCoreApplication::sendPostedEvents(&timer);
    EXPECT_EQ(ticks, 1);
}

TEST_F(WorkProgressTest, WhatAFormWantedToDoLaterWaitsAndIsDoneInItsOrderAfterTheWork) {
    std::string done;
    progress_.goesOn();
    ASSERT_TRUE(lookUntilActive());
    melvark::CallLater(edit_, [&] { done += "open the cell, "; });
    melvark::CallLater(qApp, [&] { done += "show the error"; });
    lookFor(100ms);
    progress_.ends();
    EXPECT_EQ(done, "") << "not inside the call that has ended";
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(done, "open the cell, show the error");
}

TEST_F(WorkProgressTest, AFormThatIsGoneAfterTheWorkDoesNothingLater) {
    bool isDone = false;
    auto form = std::make_unique<QWidget>();
    progress_.goesOn();
    ASSERT_TRUE(lookUntilActive());
    melvark::CallLater(form.get(), [&] { isDone = true; });
    lookFor(100ms);
    form.reset();
    progress_.ends();
    QCoreApplication::sendPostedEvents();
    EXPECT_FALSE(isDone);
}

TEST_F(WorkProgressTest, AWorkThatNobodyGoesOnWithBlocksNoWindow) {
    progress_.goesOn();
    ASSERT_TRUE(lookUntilActive());
    lookFor(100ms);
    EXPECT_NE(shown(), nullptr) << "its own turns are no idleness";
    EXPECT_TRUE(QTest::qWaitFor([] { return shown() == nullptr; }));
}

TEST_F(WorkProgressTest, TheBarMoves) {
    progress_.goesOn();
    ASSERT_TRUE(lookUntilActive());
    lookFor(100ms);
    const QImage before = shown()->grab().toImage();
    EXPECT_TRUE(lookUntil([&] { return shown()->grab().toImage() != before; }));
}

} // namespace
} // namespace refhost
