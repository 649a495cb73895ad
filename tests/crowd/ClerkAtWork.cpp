#include "tests/crowd/ClerkAtWork.h"

#include "host/Exceptions.h"
#include "refhost/CommandLine.h"
#include "refhost/CompanyDatabase.h"
#include "refhost/Languages.h"
#include "refhost/RunRecords.h"
#include "refhost/Trace.h"
#include "refhost/WindowedHost.h"
#include "tests/crowd/ClerkTask.h"
#include "tests/crowd/Diary.h"
#include "tests/crowd/ModalClerk.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

namespace crowd {

namespace {

void pause(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// What a line of the trace, which has no values, says for the diary.
void note(DiaryPen& diary, const std::string& line) {
    const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
    if (object.contains(u"call")) {
        diary.called(object.value(u"call").toString().toStdString(), object.value(u"ms").toDouble());
    } else if (object.contains(u"error")) {
        diary.told(object.value(u"error").toString().toStdString());
    } else if (object.contains(u"box") || object.contains(u"message")) {
        diary.trouble("a message: " + line);
    }
}

} // namespace

int workAsClerk(const ClerkOrders& orders) {
    DiaryPen diary(orders.Folder / "diary");
    std::mt19937 random(orders.Seed * 1000 + static_cast<unsigned>(orders.Clerk));

    refhost::CommandLine commandLine{};
    commandLine.database = orders.Database;
    commandLine.command = refhost::Command::Execute;
    const refhost::Languages languages(commandLine.language);
    const TFormatSettings settings = refhost::formatSettingsOf(commandLine.locale);
    refhost::RunRecords records(commandLine);
    records.trace().addRecord(
        {.write = [&](const std::string& line) { note(diary, line); }, .values = refhost::Values::Hidden});
    try {
        const auto database = refhost::openCompanyDatabase(commandLine, settings, [](const auto&) {});
        refhost::WindowedHost host(commandLine, *database, settings, languages, records);
        for (const ClerkTask& task : readTasks(orders.Folder / "tasks")) {
            pause(static_cast<int>(500 + random() % 4000)); // he takes the next sheet of paper
            if (std::filesystem::exists(orders.Evening)) {
                return 0;
            }
            commandLine.subject = task.Params;
            commandLine.document = task.Document;
            ModalClerk clerk(task, quantityOf(orders.Clerk), random, diary);
            if (host.executeOnce() == 0) {
                diary.saved(task.Document);
            } else if (!clerk.hasGivenUp()) {
                diary.trouble("an editor was closed without a reason");
            }
        }
        diary.trouble("the clerk ran out of documents");
    } catch (const EHostError& error) {
        diary.trouble(error.Message());
    }
    return 1;
}

} // namespace crowd
