#pragma once

#include <string>

namespace refhost {

class RecentCalls;
struct CommandLine;

/// What a report on a problem is written from. Of the command line it takes the settings only.
struct ProblemFacts {
    const CommandLine& commandLine;
    std::string engine; ///< The database's engine and its version; never how to reach it.
    bool hasModule;
    bool hasLog;
    const RecentCalls& calls;
};

/// The report as text: versions, engine, settings, the last calls without values. It has no password, no connection
/// text, no name of a person or a file and nothing of what stands in cells, so that it may be sent to anybody.
std::string problemReport(const ProblemFacts& facts);

/// Where a user finds his reports: among his documents, or in his home when there is no folder for those.
std::string reportFolder();

/// Puts the report into a new file of the folder that only its owner can read, and returns the file's path. Throws
/// the refusal ML936, which names the folder, when that fails.
std::string writeProblemReport(const std::string& folder, const std::string& report);

} // namespace refhost
