#include "tests/session/SecondDisplay.h"

#include <stdexcept>

namespace {

constexpr int c_LimitMs = 40000;

} // namespace

SecondDisplay::SecondDisplay() {
    // The display lives as long as the command on it, which waits for the end of its input.
    runner_.start(QStringLiteral(RUN_ON_DISPLAY),
                  {QStringLiteral("sh"), QStringLiteral("-c"), QStringLiteral("echo $DISPLAY; read -r end")});
    while (!runner_.canReadLine()) {
        if (!runner_.waitForReadyRead(c_LimitMs)) {
            throw std::runtime_error("there is no second display");
        }
    }
    name_ = QString::fromLatin1(runner_.readLine()).trimmed();
}

SecondDisplay::~SecondDisplay() {
    runner_.closeWriteChannel();
    runner_.waitForFinished(c_LimitMs);
}
