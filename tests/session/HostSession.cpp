#include "tests/session/HostSession.h"

#include "refhost/database/Databases.h"
#include "tests/session/ContractTrace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace {

constexpr int c_LimitMs = 20000;
constexpr int c_Searches = 3;

QString hostProgram() {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/melvark-host");
}

std::vector<std::string> linesOf(const QByteArray& text) {
    std::vector<std::string> lines;
    for (const QByteArray& line : text.split('\n')) {
        if (!line.isEmpty()) {
            lines.push_back(line.toStdString());
        }
    }
    return lines;
}

[[noreturn]] void fail(const QString& what) {
    throw std::runtime_error(what.toStdString());
}

} // namespace

HostSession::HostSession(std::string database, QString user) : database_(std::move(database)), user_(std::move(user)) {
    host_.setProcessChannelMode(QProcess::SeparateChannels);
    // How one session leaves the window, and what it reports, is nothing to the next one.
    own_.insert(QStringLiteral("HOME"), folder_.path());
    own_.insert(QStringLiteral("XDG_CONFIG_HOME"), folder_.path());
}

HostSession::~HostSession() {
    if (host_.state() != QProcess::NotRunning) {
        kill();
    }
}

QStringList HostSession::withDatabase(const QStringList& arguments) const {
    return QStringList{QStringLiteral("--database"), QString::fromStdString(database_), QStringLiteral("--user"),
                       user_} +
           arguments;
}

void HostSession::useDisplay(const QString& name) {
    own_.insert(QStringLiteral("DISPLAY"), name);
}

QProcessEnvironment HostSession::environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(own_);
    return environment;
}

void HostSession::start(const QStringList& arguments) {
    host_.setProcessEnvironment(environment());
    host_.start(
        hostProgram(),
        withDatabase(QStringList{QStringLiteral("--trace"), folder_.filePath(QStringLiteral("trace"))} + arguments));
    if (!host_.waitForStarted(c_LimitMs)) {
        fail(QStringLiteral("the host did not start"));
    }
}

void HostSession::startEditor(const QString& params, int document, const QStringList& arguments) {
    start(arguments +
          QStringList{QStringLiteral("--execute"), params, QStringLiteral("--document"), QString::number(document)});
}

int HostSession::finish() {
    if (!host_.waitForFinished(c_LimitMs)) {
        fail(QStringLiteral("the host did not end"));
    }
    standardError_ = host_.readAllStandardError().toStdString();
    EXPECT_THAT(callsOutsideContract(trace()), testing::IsEmpty());
    return host_.exitStatus() == QProcess::NormalExit ? host_.exitCode() : -1;
}

void HostSession::kill() {
    host_.kill();
    host_.waitForFinished(c_LimitMs);
}

bool HostSession::isRunning() const {
    return host_.state() == QProcess::Running;
}

void HostSession::runTool(const QStringList& arguments) const {
    QProcess tool;
    tool.setProcessEnvironment(environment());
    tool.start(QStringLiteral("xdotool"), arguments);
    if (!tool.waitForFinished(c_LimitMs) || tool.exitCode() != 0) {
        fail(QStringLiteral("xdotool ") + arguments.join(u' ') + QStringLiteral(": ") +
             QString::fromUtf8(tool.readAllStandardError()));
    }
}

void HostSession::waitForWindow(const QString& title) {
    const QStringList search = {QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
                                QStringLiteral("--all"),  QStringLiteral("--pid"),  QString::number(host_.processId()),
                                QStringLiteral("--name"), u'^' + title + u'$',      QStringLiteral("windowactivate"),
                                QStringLiteral("--sync")};
    // A search fails when another window ends under it, so that it is asked again.
    for (int attempt = 1;; ++attempt) {
        try {
            return runTool(search);
        } catch (const std::runtime_error&) {
            if (attempt == c_Searches) {
                throw;
            }
        }
    }
}

void HostSession::type(const QString& text) {
    runTool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("50"), QStringLiteral("--"), text});
}

void HostSession::press(const QStringList& keys) {
    runTool(QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("50")} + keys);
}

void HostSession::runToolAt(QPoint place, const QStringList& arguments) const {
    runTool(QStringList{QStringLiteral("getactivewindow"), QStringLiteral("mousemove"), QStringLiteral("--window"),
                        QStringLiteral("%1"), QString::number(place.x()), QString::number(place.y())} +
            arguments);
}

void HostSession::click(QPoint place, int button) {
    runToolAt(place, {QStringLiteral("click"), QString::number(button)});
}

void HostSession::doubleClick(QPoint place) {
    runToolAt(place, {QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"),
                      QStringLiteral("--delay"), QStringLiteral("60"), QStringLiteral("1")});
}

void HostSession::drag(QPoint from, QPoint to) {
    constexpr int c_Steps = 5;
    runToolAt(from, {QStringLiteral("mousedown"), QStringLiteral("1")});
    for (int step = 1; step <= c_Steps; ++step) {
        runToolAt(from + (to - from) * step / c_Steps, {});
    }
    runTool({QStringLiteral("mouseup"), QStringLiteral("1")});
}

void HostSession::placeWindow(const QRect& place) {
    runTool({QStringLiteral("getactivewindow"), QStringLiteral("windowmove"), QStringLiteral("--sync"),
             QString::number(place.x()), QString::number(place.y()), QStringLiteral("windowsize"),
             QStringLiteral("--sync"), QString::number(place.width()), QString::number(place.height())});
}

void HostSession::waitForWindowWidth(int width) {
    const QByteArray wanted = "WIDTH=" + QByteArray::number(width) + '\n';
    const auto isSo = [&] {
        QProcess tool;
        tool.setProcessEnvironment(environment());
        tool.start(QStringLiteral("xdotool"),
                   {QStringLiteral("getactivewindow"), QStringLiteral("getwindowgeometry"), QStringLiteral("--shell")});
        tool.waitForFinished(c_LimitMs);
        return tool.readAllStandardOutput().contains(wanted);
    };
    if (!QTest::qWaitFor(isSo, c_LimitMs)) {
        fail(QStringLiteral("the window never was %1 wide").arg(width));
    }
}

QStringList HostSession::visibleWindows() const {
    QProcess tool;
    tool.setProcessEnvironment(environment());
    tool.start(QStringLiteral("xdotool"),
               {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--pid"),
                QString::number(host_.processId()), QStringLiteral("--name"), QString()});
    tool.waitForFinished(c_LimitMs);
    return QString::fromLatin1(tool.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

void HostSession::awaitMenu(const std::function<void()>& open, const QString& what) {
    const QStringList before = visibleWindows();
    open();
    const auto isThere = [&] {
        menu_ = visibleWindows();
        menu_.removeIf([&](const QString& window) { return before.contains(window); });
        return !menu_.isEmpty();
    };
    if (!QTest::qWaitFor(isThere, c_LimitMs)) {
        fail(QStringLiteral("no menu opened on ") + what);
    }
}

void HostSession::openMenu(const QString& key) {
    awaitMenu([&] { press({key}); }, key);
}

void HostSession::openMenuAt(QPoint place, int button) {
    awaitMenu([&] { click(place, button); },
              QStringLiteral("a click at %1,%2").arg(QString::number(place.x()), QString::number(place.y())));
}

void HostSession::pickFromMenu(QPoint place, int button, const QStringList& keys) {
    openMenuAt(place, button);
    press(keys);
    const auto isGone = [&] {
        const QStringList windows = visibleWindows();
        return std::ranges::none_of(menu_, [&](const QString& window) { return windows.contains(window); });
    };
    if (!QTest::qWaitFor(isGone, c_LimitMs)) {
        fail(QStringLiteral("the menu stayed open after ") + keys.join(u' '));
    }
}

void HostSession::pickFirstRow() {
    waitForWindow(QStringLiteral("Výběr ze seznamu"));
    press({QStringLiteral("Return")});
}

void HostSession::waitForTrace(const std::string& text, int count) {
    const auto isThere = [&] {
        const auto lines = trace();
        return std::ranges::count_if(lines, [&](const auto& line) { return line.find(text) != line.npos; }) >= count;
    };
    if (!QTest::qWaitFor(isThere, c_LimitMs)) {
        fail(QStringLiteral("the trace never had ") + QString::fromStdString(text));
    }
}

std::vector<std::string> HostSession::trace() const {
    QFile file(folder_.filePath(QStringLiteral("trace")));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    // Whether a row of a save is waited for is the engine's affair.
    static const std::regex time("(,\"answered\":false)?,\"ms\":[0-9.e+-]+");
    std::vector<std::string> lines = linesOf(file.readAll());
    for (std::string& line : lines) {
        line = std::regex_replace(line, time, "");
    }
    return lines;
}

std::vector<std::string> HostSession::ask(const QStringList& arguments) const {
    QProcess command;
    command.start(hostProgram(), withDatabase(arguments));
    if (!command.waitForFinished(c_LimitMs) || command.exitCode() != 0) {
        fail(QString::fromUtf8(command.readAllStandardError()));
    }
    return linesOf(command.readAllStandardOutput());
}

std::string HostSession::configuration(const std::string& file) const {
    std::ostringstream content;
    content << std::ifstream(folder_.path().toStdString() + "/" + file).rdbuf();
    return content.str();
}

void HostSession::configure(const std::string& file, const std::string& content) const {
    const std::filesystem::path path(folder_.path().toStdString() + "/" + file);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path) << content;
}

void HostSession::changeDatabase(const std::string& sql) const {
    refhost::openDatabase(database_, "dvorak", TFormatSettings::Czech(), refhost::OpenMode::Existing)->runScript(sql);
}
