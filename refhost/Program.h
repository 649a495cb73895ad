#pragma once

#include "refhost/CommandLine.h"

namespace refhost {

class Languages;

/// Runs the command and returns the program's exit status: 0, 1 for an editor that was not confirmed, 2 for an error,
/// which stands on the standard error output (and in a window when the host could not be opened at all).
int runProgram(const CommandLine& commandLine, int& argc, char** argv);

/// The same in an application that is there already, which a command with windows needs.
int runCommand(const CommandLine& commandLine, const Languages& languages);

} // namespace refhost
