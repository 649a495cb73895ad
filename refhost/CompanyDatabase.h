#pragma once

#include "host/FormatSettings.h"
#include "refhost/CommandLine.h"
#include "refhost/database/Database.h"
#include "refhost/database/UpgradeReport.h"

#include <functional>
#include <memory>
#include <string>

namespace refhost {

/// The file of the user's own database, used when the command line names no other: in the user's data directory.
std::string defaultDatabaseFile();

/// Hears of an upgrade that opening a database brought about.
using UpgradeListener = std::function<void(const UpgradeReport&)>;

/// Connects to the database that the command line names. The user's own one is created with the sample company when it
/// is not there yet, and upgraded when it is of an older version: nobody else looks after it. Throws EDatabaseError.
std::unique_ptr<Database> openCompanyDatabase(const CommandLine& commandLine, const TFormatSettings& settings,
                                              const UpgradeListener& upgraded);

/// Makes a company in an empty database, which may be a file that does not exist yet: the sample, to which
/// `commandLine.lines` above 0 adds one document of each kind with so many lines, or nothing when it is to be empty.
/// All in one transaction. Throws EDatabaseError when there is a schema already.
void createCompanyDatabase(const CommandLine& commandLine, const TFormatSettings& settings);

/// Brings the database to this program's version. Throws EDatabaseError with nothing changed.
UpgradeReport upgradeCompanyDatabase(const CommandLine& commandLine);

/// The database as people call it: the file's path, or the server's connection words without a password.
std::string databaseLabel(const CompanyOptions& options);

} // namespace refhost
