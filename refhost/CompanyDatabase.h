#pragma once

#include "host/FormatSettings.h"
#include "refhost/CommandLine.h"
#include "refhost/database/Database.h"

#include <memory>
#include <string>

namespace refhost {

/// The file of the user's own database, used when the command line names no other: in the user's data directory.
std::string defaultDatabaseFile();

/// Connects to the database that the command line names. The user's own one is created with the sample company when it
/// is not there yet. Throws EDatabaseError or EInOutError.
std::unique_ptr<Database> openCompanyDatabase(const CommandLine& commandLine, const TFormatSettings& settings);

/// Makes the sample company in an empty database, which may be a file that does not exist yet; `commandLine.lines`
/// above 0 adds one document of each kind with so many lines. Throws EDatabaseError when there is a schema already.
void createCompanyDatabase(const CommandLine& commandLine, const TFormatSettings& settings);

/// The database as people call it: the file's path, or the server's connection words without a password.
std::string databaseLabel(const CommandLine& commandLine);

} // namespace refhost
