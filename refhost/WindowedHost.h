#pragma once

#include "host/FormatSettings.h"
#include "host/LibraryItem.h"
#include "refhost/CommandLine.h"
#include "refhost/ErrorDialog.h"
#include "refhost/HostApplication.h"
#include "refhost/HostLibraryManager.h"
#include "refhost/IdentifiedSaves.h"
#include "refhost/PackageLoader.h"
#include "refhost/WorkProgress.h"
#include "refhost/database/ThreadedConnection.h"

#include <memory>
#include <optional>
#include <string>

namespace refhost {

class Database;
class Languages;
class RunRecords;

/// The running host of the commands with windows: installs its services, loads the module, and opens the main window or
/// the item editor alone. Qt's application object exists before it and outlives it.
class WindowedHost {
public:
    WindowedHost(const CommandLine& commandLine, Database& database, const TFormatSettings& settings,
                 const Languages& languages, RunRecords& records);

    /// Tells the user something before the first window.
    void tell(const std::string& text) const;

    /// Shows the main window until it is closed. A module that is missing or broken is told there, and the host stays
    /// usable without it.
    int openMainWindow();

    /// Calls the library item once on one document, without the main window. Returns the exit status: 0 when it
    /// returned true, 1 when false. Throws what leaves the item, and EHostError when the module cannot be loaded.
    int executeOnce();

private:
    /// Throws EHostError, naming the reason, when the module cannot be loaded.
    void loadModule();
    /// Writes a report on a problem and tells the user where it lies.
    void writeReport() const;

    const CommandLine& commandLine_;
    Database& database_;
    TFormatSettings settings_;
    const Languages& languages_;
    RunRecords& records_;
    std::string engine_; ///< Asked for while the server is there.
    DialogErrorDisplay errors_;
    IdentifiedSaves saves_;
    WorkProgress progress_;
    ThreadedConnection threaded_;
    HostApplication services_;
    TScopedHost scope_;
    HostLibraryManager manager_;
    std::optional<Package> package_;
    std::unique_ptr<TLibraryItem> item_;
};

} // namespace refhost
