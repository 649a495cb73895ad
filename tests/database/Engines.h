#pragma once

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

} // namespace refhost
