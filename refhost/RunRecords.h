#pragma once

#include "refhost/LogChoice.h"
#include "refhost/LogFile.h"
#include "refhost/RecentCalls.h"
#include "refhost/Trace.h"

#include <optional>

namespace refhost {

struct CommandLine;
struct ErrorReport;

/// All that is written down of one run of the host: the trace that the command line asks for, the log if there is to be
/// one, and the last calls for a report on a problem, which never hold a value.
class RunRecords {
public:
    /// Opens the trace. Throws the refusal ML935 when that fails.
    explicit RunRecords(const CommandLine& commandLine);
    RunRecords(const RunRecords&) = delete;
    RunRecords& operator=(const RunRecords&) = delete;

    /// Begins the log with the program's version; one that cannot be written is told on the standard error output.
    void startLog(const LogChoice& choice);

    /// What a module asks the host for.
    Trace& trace() { return trace_; }
    /// What a command without windows asks the database for. That is no call of a module: only the log has it.
    Trace& commands() { return commands_; }
    const RecentCalls& recentCalls() const { return recentCalls_; }
    bool hasLog() const { return log_.has_value(); }

    /// What ended the run, which is no call of a module and not in the trace.
    void failed(const ErrorReport& report);

private:
    RecentCalls recentCalls_;
    std::optional<LogFile> log_;
    Trace trace_;
    Trace commands_;
};

} // namespace refhost
