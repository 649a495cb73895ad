#include "editwin/Autosave.h"

#include "host/widgets/Guard.h"

#include <QTimer>

#include <chrono>

namespace melvark {

Autosave::Autosave(QObject& form, std::function<void()> save) : FTimer(new QTimer(&form)) {
    FTimer->setObjectName(QStringLiteral("AutosaveTimer"));
    FTimer->setInterval(std::chrono::minutes(1));
    ConnectGuarded(FTimer, &QTimer::timeout, FTimer, std::move(save));
}

void Autosave::Enable() {
    if (!FTimer->isActive()) {
        FTimer->start();
    }
}

void Autosave::Disable() {
    FTimer->stop();
}

} // namespace melvark
