#pragma once

#include "refhost/Trace.h"

#include <optional>
#include <string>

namespace refhost {

struct CommandLine;
class JsonObject;

/// Which log is written.
struct LogChoice {
    std::string file;
    Values values = Values::Hidden;

    bool operator==(const LogChoice&) const = default;
};

/// The log that the command line asks for, else the settings: the group "log" of HostSettings, with "enabled", "file"
/// and "values". Nothing when neither does.
std::optional<LogChoice> chosenLog(const CommandLine& commandLine);

/// Where the log lies when the settings name no other place: in the user's directory for the state of programs.
std::string defaultLogFile();

/// The first members of each line of a log: the moment with its zone and the process.
void stampLogLine(JsonObject& line);

} // namespace refhost
