#pragma once

#include "refhost/dbcheck/CheckProgram.h"
#include "tests/database/Engines.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace refhost {

/// A small change that breaks a healthy database, and what the check has to say of it.
struct Fault {
    const char* Name; ///< A sentence in camel case.
    Engine On;
    const char* Sql;    ///< Run in the database; empty when a script of the folder is what is wrong.
    const char* Script; ///< A script for the folder of procedures, or nullptr.
    const char* Procedure;
    std::vector<std::string> Sentences; ///< With "…" for the words of a database or a script's reader.
};

std::ostream& operator<<(std::ostream& stream, const Fault& fault);

/// A database of its own that was broken so.
class BrokenDatabase {
public:
    explicit BrokenDatabase(const Fault& fault);
    BrokenDatabase(const BrokenDatabase&) = delete;
    BrokenDatabase& operator=(const BrokenDatabase&) = delete;
    ~BrokenDatabase();

    /// How the program is told of it.
    const CheckCommandLine& commandLine() const { return commandLine_; }

private:
    CheckCommandLine commandLine_;
};

/// The address under which a test's database is checked: on the server as its administrator.
std::string checkedAddress(Engine engine, const std::string& url);

/// Runs statements in it, as its administrator.
void runIn(const std::string& address, const std::string& sql);

/// The sentences of findings, with "…" for the words of a database or a script's reader; a refusal's code when the
/// database is refused as a whole.
std::vector<std::string> sentencesOf(const Findings& findings);

} // namespace refhost
