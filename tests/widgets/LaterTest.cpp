#include "host/widgets/Later.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTest>

#include <gmock/gmock.h>
#include <memory>
#include <string>

using melvark::CallLater;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class CallLaterTest : public testing::Test {
protected:
    void deliver() { QCoreApplication::sendPostedEvents(); }
    void note(const std::string& what) {
        CallLater(&context, [this, what] { done.push_back(what); });
    }

    QObject context;
    std::vector<std::string> done;
};

/// Keeps the calls from their receivers, as a host does while a form waits.
class Holder : public QObject {
public:
    Holder() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != melvark::LaterCallEvent()) {
            return false;
        }
        held = watched;
        return true;
    }

    QPointer<QObject> held;
};

} // namespace

TEST_F(CallLaterTest, RunsFromTheEventLoopInTheOrderOfTheWishes) {
    note("first");
    QMetaObject::invokeMethod(
        &context, [this] { done.emplace_back("Qt's own"); }, Qt::QueuedConnection);
    note("last");
    EXPECT_THAT(done, IsEmpty());
    deliver();
    EXPECT_THAT(done, ElementsAre("first", "Qt's own", "last"));
    deliver();
    EXPECT_THAT(done, ElementsAre("first", "Qt's own", "last")) << "once each";
}

TEST_F(CallLaterTest, RunsNothingForAContextThatIsGone) {
    auto gone = std::make_unique<QObject>();
    CallLater(gone.get(), [this] { done.emplace_back("for nobody"); });
    gone.reset();
    deliver();
    EXPECT_THAT(done, IsEmpty());
}

TEST_F(CallLaterTest, MayEndItsContext) {
    auto* const ended = new QObject;
    CallLater(ended, [this, ended] {
        delete ended;
        done.emplace_back("ended it");
    });
    deliver();
    EXPECT_THAT(done, ElementsAre("ended it"));
}

TEST_F(CallLaterTest, LeavesNothingInItsContext) {
    note("something");
    deliver();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(context.children().isEmpty());
}

TEST_F(CallLaterTest, RunsWhenAHostThatHeldItsEventPostsItAgain) {
    const auto holder = std::make_unique<Holder>();
    note("something");
    deliver();
    ASSERT_NE(holder->held, nullptr);
    EXPECT_THAT(done, IsEmpty());
    qApp->removeEventFilter(holder.get());
    QCoreApplication::postEvent(holder->held, new QEvent(melvark::LaterCallEvent()));
    deliver();
    EXPECT_THAT(done, ElementsAre("something"));
}
