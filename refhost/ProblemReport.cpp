#include "refhost/ProblemReport.h"

#include "host/Exceptions.h"
#include "refhost/CommandLine.h"
#include "refhost/RecentCalls.h"
#include "refhost/database/RefusalTable.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>
#include <QStringList>
#include <QSysInfo>

namespace refhost {

namespace {

constexpr int c_mostReportsASecond = 100;

const char* toWord(bool isSo) {
    return isSo ? "yes" : "no";
}

std::string screens() {
    QStringList sizes;
    for (const QScreen* const screen : QGuiApplication::screens()) {
        const QSize size = screen->size();
        sizes.append(
            QStringLiteral("%1x%2 at %3").arg(size.width()).arg(size.height()).arg(screen->devicePixelRatio()));
    }
    return sizes.join(QStringLiteral(", ")).toStdString();
}

/// Several lines, the version of each part in one.
std::string versions() {
    return versionText("melvark-host") + "Qt " + qVersion() + "\n" + QSysInfo::prettyProductName().toStdString() +
           ", " + QSysInfo::currentCpuArchitecture().toStdString() + "\n" +
           QGuiApplication::platformName().toStdString() + ", screens " + screens() + "\n";
}

/// Writes the whole text into a file that was not there before.
bool writeNew(const QString& path, const std::string& text) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
        return false; // perhaps somebody else's by now
    }
    const auto size = static_cast<qint64>(text.size());
    if (file.write(text.data(), size) != size || !file.flush()) {
        file.remove();
        return false;
    }
    return true;
}

} // namespace

std::string problemReport(const ProblemFacts& facts) {
    std::string report = "Melvark, report on a problem, " +
                         QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString() + "\n\n" + versions();
    report += "engine " + facts.engine + "\n\nlocale " + facts.commandLine.locale + "\nlanguage " +
              facts.commandLine.language + "\nmodule " + toWord(facts.hasModule) + "\nreplaced procedures " +
              toWord(!facts.commandLine.procedures.empty()) + "\nlog " + toWord(facts.hasLog) + "\ntrace " +
              toWord(!facts.commandLine.traceFile.empty()) + "\n\nlast calls " +
              std::to_string(facts.calls.lines().size()) + "\n";
    for (const std::string& line : facts.calls.lines()) {
        report += line + '\n';
    }
    return report;
}

std::string reportFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return (QDir(documents).exists() ? documents : QDir::homePath()).toStdString();
}

std::string writeProblemReport(const std::string& folder, const std::string& report) {
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString name = QString::fromStdString(folder) + QStringLiteral("/melvark-report-") + now;
    for (int number = 1; number <= c_mostReportsASecond; ++number) {
        const QString path = name + (number == 1 ? QString() : u'-' + QString::number(number)) + QStringLiteral(".txt");
        if (QFile::exists(path)) {
            continue;
        }
        if (writeNew(path, report)) {
            return path.toStdString();
        }
        break;
    }
    throw refusal("ML936", {folder}, {}, TDatabaseCause::Failure);
}

} // namespace refhost
