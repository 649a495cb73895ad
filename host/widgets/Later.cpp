#include "host/widgets/Later.h"

#include <QCoreApplication>
#include <QObject>

#include <utility>

namespace melvark {

namespace {

/// One call, which goes with its context.
class LaterCall : public QObject {
public:
    LaterCall(QObject* context, std::function<void()> call) : QObject(context), call_(std::move(call)) {}

    bool event(QEvent* event) override {
        if (event->type() != LaterCallEvent()) {
            return QObject::event(event);
        }
        deleteLater();
        const std::function<void()> call = std::move(call_); // which may end the context, and this object with it
        call();
        return true;
    }

private:
    std::function<void()> call_;
};

} // namespace

void CallLater(QObject* context, std::function<void()> call) {
    QCoreApplication::postEvent(new LaterCall(context, std::move(call)), new QEvent(LaterCallEvent()));
}

QEvent::Type LaterCallEvent() {
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

} // namespace melvark
