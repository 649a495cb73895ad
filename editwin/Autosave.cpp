#include "editwin/Autosave.h"

#include "host/widgets/Guard.h"

#include <QTimer>

#include <chrono>
#include <utility>

namespace melvark {

Autosave::Autosave(QObject& form, std::function<void()> tick) : FTimer(new QTimer(&form)) {
    FTimer->setObjectName(QStringLiteral("AutosaveTimer"));
    FTimer->setInterval(std::chrono::minutes(1));
    FTimer->setTimerType(Qt::PreciseTimer); // others may be three seconds late
    ConnectGuarded(FTimer, &QTimer::timeout, FTimer, std::move(tick));
}

void Autosave::Enable() {
    if (!FTimer->isActive()) {
        FTimer->start();
    }
}

void Autosave::Disable() {
    FTimer->stop();
}

void Autosave::Run(const std::function<void()>& save) {
    try {
        save();
        FHasFailed = false;
    } catch (...) {
        if (!std::exchange(FHasFailed, true)) {
            throw;
        }
    }
}

} // namespace melvark
