#include "refhost/LogChoice.h"

#include "host/StateFolder.h"
#include "refhost/CommandLine.h"
#include "refhost/HostSettings.h"
#include "refhost/Json.h"

#include <QStandardPaths>

#include <array>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <unistd.h>

namespace refhost {

namespace {

QString homeFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
}

/// A setting serves all users, so that "~/" is the home of each of them.
std::string filed(const QString& named) {
    if (named.isEmpty()) {
        return defaultLogFile();
    }
    return (named.startsWith(u"~/") ? homeFolder() + named.mid(1) : named).toStdString();
}

} // namespace

std::string defaultLogFile() {
    return melvark::StateFolder() + "/host.log";
}

std::optional<LogChoice> chosenLog(const CommandLine& commandLine) {
    const HostSettings settings;
    const bool isWithValues = commandLine.logValues || settings.value(QStringLiteral("log/values")).toBool();
    const Values values = isWithValues ? Values::Shown : Values::Hidden;
    if (!commandLine.logFile.empty()) {
        return LogChoice{.file = commandLine.logFile, .values = values};
    }
    if (commandLine.logValues || settings.value(QStringLiteral("log/enabled")).toBool()) {
        return LogChoice{.file = filed(settings.value(QStringLiteral("log/file")).toString()), .values = values};
    }
    return std::nullopt;
}

void stampLogLine(JsonObject& line) {
    using std::chrono::system_clock;
    const system_clock::time_point now = system_clock::now();
    const std::time_t second = system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&second, &local);
    std::array<char, 32> day{};
    std::array<char, 8> zone{};
    std::strftime(day.data(), day.size(), "%Y-%m-%dT%H:%M:%S", &local);
    std::strftime(zone.data(), zone.size(), "%z", &local);
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
    const std::string fraction = std::to_string(1000 + milliseconds).substr(1);
    line.add("at", std::string(day.data()) + "." + fraction + zone.data()).add("process", std::int64_t{getpid()});
}

} // namespace refhost
