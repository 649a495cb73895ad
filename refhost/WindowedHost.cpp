#include "refhost/WindowedHost.h"

#include "host/Exceptions.h"
#include "host/widgets/Guard.h"
#include "host/widgets/MessageBox.h"
#include "refhost/CompanyDatabase.h"
#include "refhost/HostTexts.h"
#include "refhost/Languages.h"
#include "refhost/ProblemReport.h"
#include "refhost/RunRecords.h"
#include "refhost/screens/DocumentDataSet.h"
#include "refhost/screens/MainWindow.h"
#include "refhost/screens/Screens.h"

#include <QApplication>

#include <iostream>

namespace refhost {

namespace {

constexpr const char* c_itemClass = "TMelvarkEditor";

} // namespace

WindowedHost::WindowedHost(const CommandLine& commandLine, Database& database, const TFormatSettings& settings,
                           const Languages& languages, RunRecords& records)
    : commandLine_(commandLine),
      database_(database),
      settings_(settings),
      languages_(languages),
      records_(records),
      engine_(database.engine()),
      errors_(languages, [this] { writeReport(); }),
      saves_(database, pendingSavesFolder(databaseDigest(database.address()))),
      progress_(languages),
      threaded_(saves_, database, progress_),
      services_({.connection = threaded_,
                 .databaseAddress = database.address(),
                 .settings = settings,
                 .languages = languages,
                 .trace = records.trace(),
                 .errors = errors_,
                 .clock = systemNow}),
      scope_(services_),
      manager_({.openRows = [&database](const AnsiString& sql) { return database.openRows(sql); },
                .settings = settings,
                .languages = languages,
                .trace = records.trace()}) {}

void WindowedHost::loadModule() {
    package_.emplace(findPackage(QApplication::applicationDirPath().toStdString()), languages_);
    item_ = package_->createItem(c_itemClass, services_.Classes(), &manager_);
}

void WindowedHost::writeReport() const {
    const std::string file = writeProblemReport(reportFolder(), problemReport({.commandLine = commandLine_,
                                                                               .engine = engine_,
                                                                               .hasModule = item_ != nullptr,
                                                                               .hasLog = records_.hasLog(),
                                                                               .calls = records_.recentCalls()}));
    tell(languages_.label(texts::reportWritten).arg(QString::fromStdString(file)).toStdString());
}

void WindowedHost::tell(const std::string& text) const {
    ApplicationMessageBox(text, languages_.text(texts::noteCaption), c_NoteFlags);
}

int WindowedHost::openMainWindow() {
    MainWindowParts parts{.connection = database_,
                          .settings = settings_,
                          .languages = languages_,
                          .user = database_.user(),
                          .database = databaseLabel(commandLine_),
                          .insertLines = {},
                          .moduleMissing = {},
                          .look = readWindowLook(windowLookFile()),
                          .writeReport = [this] { writeReport(); }};
    try {
        loadModule();
        parts.insertLines = [this](const std::string& params, TDataSet& dataSet) {
            return item_->Execute(params, &dataSet, nullptr);
        };
    } catch (const EHostError& error) {
        parts.moduleMissing = error.Message();
    }
    MainWindow window(std::move(parts));
    melvark::ConnectGuarded(&window, &MainWindow::closed, &window, [&window] {
        if (!writeWindowLook(windowLookFile(), window.look())) {
            std::cerr << "The window's place and widths cannot be kept.\n";
        }
    });
    QObject::connect(&window, &MainWindow::closed, qApp, &QCoreApplication::quit);
    window.start();
    window.show();
    return QApplication::exec();
}

int WindowedHost::executeOnce() {
    loadModule();
    const TResultTable table = readDocument(database_, screenOfParams(commandLine_.subject), commandLine_.document);
    DocumentDataSet dataSet(table, table.Rows.empty() ? std::nullopt : std::optional(0), settings_);
    return item_->Execute(commandLine_.subject, &dataSet, nullptr) ? 0 : 1;
}

} // namespace refhost
