#include "host/widgets/Guard.h"

#include "host/Exceptions.h"
#include "tests/support/RecordingHost.h"

#include <QAction>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>
#include <memory>

using namespace melvark;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class Receiver : public QObject {
public:
    void take(const QString& text) { taken = text; }
    void refuse() { throw Exception("Odmítnuto"); }

    QString taken;
};

class GuardTest : public testing::Test {
protected:
    RecordingHost host;
    TScopedHost scope{host};
};

} // namespace

TEST_F(GuardTest, AnErrorGoesToTheHostsErrorDisplay) {
    EXPECT_FALSE(Guarded([] { throw Exception("Spojení bylo ztraceno"); }));
    EXPECT_THAT(host.errors(), ElementsAre("Spojení bylo ztraceno"));
}

TEST_F(GuardTest, WorkWithoutAnErrorIsOnlyRun) {
    bool ran = false;
    EXPECT_TRUE(Guarded([&] { ran = true; }));
    EXPECT_TRUE(ran);
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(GuardTest, WhatIsNoStandardExceptionIsReportedToo) {
    EXPECT_FALSE(Guarded([] { throw 1; }));
    EXPECT_EQ(host.errors().size(), 1u);
}

TEST(GuardWithoutHost, TheErrorIsWrittenToStandardError) {
    testing::internal::CaptureStderr();
    EXPECT_FALSE(Guarded([] { throw Exception("Bez hostitele"); }));
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("Bez hostitele"));
}

TEST_F(GuardTest, AMemberFunctionGetsTheSignalsArguments) {
    QLineEdit edit;
    Receiver receiver;
    ConnectGuarded(&edit, &QLineEdit::textChanged, &receiver, &Receiver::take);
    edit.setText(QStringLiteral("12,5"));
    EXPECT_EQ(receiver.taken, QStringLiteral("12,5"));
}

TEST_F(GuardTest, AHandlerMayLeaveTheArgumentsOut) {
    QAction action;
    int calls = 0;
    ConnectGuarded(&action, &QAction::triggered, &action, [&calls] { ++calls; });
    action.trigger();
    EXPECT_EQ(calls, 1);
}

TEST_F(GuardTest, AnErrorInASlotDoesNotLeaveIt) {
    QLineEdit edit;
    Receiver receiver;
    ConnectGuarded(&edit, &QLineEdit::textChanged, &receiver, &Receiver::refuse);
    edit.setText(QStringLiteral("x"));
    EXPECT_THAT(host.errors(), ElementsAre("Odmítnuto"));
}

TEST_F(GuardTest, AnErrorInATimerLeavesTheEventLoopRunning) {
    QTimer timer;
    int calls = 0;
    ConnectGuarded(&timer, &QTimer::timeout, &timer, [&calls] {
        ++calls;
        throw Exception("Soubor nelze zapsat");
    });
    timer.start(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return calls >= 2; }));
    EXPECT_THAT(host.errors(), testing::Contains("Soubor nelze zapsat"));
}

TEST_F(GuardTest, AConnectionEndsWithItsReceiver) {
    QLineEdit edit;
    int calls = 0;
    auto receiver = std::make_unique<QObject>();
    ConnectGuarded(&edit, &QLineEdit::textChanged, receiver.get(), [&calls] { ++calls; });
    edit.setText(QStringLiteral("a"));
    receiver.reset();
    edit.setText(QStringLiteral("b"));
    EXPECT_EQ(calls, 1);
}
