#pragma once

#include "refhost/CompanyOptions.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace refhost {

/// What the program was started for.
enum class Command {
    OpenHost,
    Execute,
    Call,
    Batch,
    Query,
    Documents,
    Show,
    CreateDatabase,
    UpgradeDatabase,
    Version,
    Help
};

/// The command line, read and checked. Texts are UTF-8 as they came.
struct CommandLine : CompanyOptions {
    Command command = Command::OpenHost;
    std::string traceFile; ///< Empty for no trace.
    std::string logFile;   ///< Empty when the settings are to say.
    bool logValues = false;
    std::string subject; ///< What the command works on: parameters, procedure, SQL text or screen.
    std::vector<std::pair<std::string, std::string>> arguments; ///< NAME=VALUE of a call, in order.
    std::int32_t document = 0;
    std::int32_t lines = 0;
    bool empty = false; ///< A new company without the sample.
};

/// The command line makes no sense; the message says which word and why, in the language of the options.
class CommandLineError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads the words behind the program's name. Throws CommandLineError.
CommandLine parseCommandLine(const std::vector<std::string>& words);

/// How the program is used, ready to be printed. Options and their explanations are English like the options
/// themselves: they are for scripts and administrators, not for clerks.
std::string usageText();

/// The version of the programs.
std::string programVersion();

/// A program's name and version, that of the contract that modules must have, and that of the databases that fit.
std::string versionText(const std::string& program);

} // namespace refhost
