#include "tests/session/CrashableSession.h"

#include <QFile>
#include <QTest>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace {

constexpr int c_LimitMs = 20000;

/// Where the tests' main function has the desktop keep the state of programs.
std::filesystem::path stateFolder() {
    return std::filesystem::path(std::getenv("XDG_STATE_HOME")) / "melvark";
}

} // namespace

CrashableSession::CrashableSession(std::string database) : HostSession(std::move(database)) {
    std::filesystem::remove_all(stateFolder());
    const QString clock = clockFolder_.filePath(QStringLiteral("clock"));
    QFile file(clock);
    file.open(QIODevice::WriteOnly);
    file.write(QByteArray(sizeof(std::int64_t), '\0'));
    // Programs that are started from here take these over.
    qputenv("MELVARK_MOVED_CLOCK", clock.toUtf8());
    qputenv("LD_PRELOAD", MOVED_CLOCK_LIBRARY);
    qputenv("ASAN_OPTIONS", qgetenv("ASAN_OPTIONS") + ":verify_asan_link_order=0");
}

CrashableSession::~CrashableSession() {
    qunsetenv("LD_PRELOAD");
    qunsetenv("MELVARK_MOVED_CLOCK");
}

void CrashableSession::passAMinute(const std::string& file) {
    const std::int64_t minute = std::chrono::nanoseconds(std::chrono::seconds(61)).count();
    QFile clock(clockFolder_.filePath(QStringLiteral("clock")));
    clock.open(QIODevice::ReadWrite);
    std::int64_t offset = 0;
    clock.read(reinterpret_cast<char*>(&offset), sizeof(offset));
    offset += minute;
    clock.seek(0);
    clock.write(reinterpret_cast<const char*>(&offset), sizeof(offset));
    clock.close();
    press({QStringLiteral("Shift_L")}); // whoever sleeps looks at the clock when something happens
    waitForUnsavedWork({file});
}

std::vector<std::string> CrashableSession::unsavedWork() {
    std::vector<std::string> files;
    if (!std::filesystem::exists(stateFolder())) {
        return files;
    }
    for (const auto& entry : std::filesystem::recursive_directory_iterator(stateFolder())) {
        if (entry.is_regular_file() && entry.path().extension() != ".lock" && entry.path().extension() != ".save") {
            files.push_back(entry.path().filename());
        }
    }
    return files;
}

void CrashableSession::waitForUnsavedWork(const std::vector<std::string>& files) {
    if (!QTest::qWaitFor([&] { return unsavedWork() == files; }, c_LimitMs)) {
        throw std::runtime_error("the unsaved work never was " + files.front());
    }
}

void CrashableSession::dieAtAnswers() {
    qputenv("LD_PRELOAD", MOVED_CLOCK_LIBRARY ":" KILLED_AT_ANSWER_LIBRARY);
}

void CrashableSession::waitForDeath() {
    if (!QTest::qWaitFor([this] { return !isRunning(); }, c_LimitMs)) {
        throw std::runtime_error("the host never ended");
    }
    qputenv("LD_PRELOAD", MOVED_CLOCK_LIBRARY);
    crash();
}

void CrashableSession::crash() {
    kill();
    tracedBefore_ = trace().size();
}

std::vector<std::string> CrashableSession::traceSinceCrash() const {
    std::vector<std::string> lines = trace();
    lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(tracedBefore_));
    return lines;
}
