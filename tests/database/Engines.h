#pragma once

#include "host/FormatSettings.h"
#include "refhost/database/Database.h"

#include <memory>
#include <string>

namespace refhost {

/// The engines that the tests of the database run on, each test on both.
enum class Engine { SQLite, PostgreSQL };

std::string engineName(Engine engine);

/// A database of its own, with the schema and nothing in it, of the user "novakova" with Czech formats. It disappears
/// with the test program. Throws EDatabaseError.
std::unique_ptr<Database> newDatabase(Engine engine);

/// The address of a file that is not there yet; it disappears with the test program.
std::string newSQLiteUrl();

/// The address of such a database, for tests that open it more than once.
std::string newDatabaseUrl(Engine engine);
/// That address as a program takes it that is told of no other user than this one: on the server his role is made, with
/// the right to prepare a test's data too.
std::string addressAs(const std::string& url, const std::string& user);
/// One more connection to it, as any user likewise.
std::unique_ptr<Database> openAs(const std::string& url, const std::string& user,
                                 const TFormatSettings& settings = TFormatSettings::Czech());

} // namespace refhost
