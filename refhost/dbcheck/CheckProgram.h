#pragma once

#include "refhost/dbcheck/CheckCommandLine.h"
#include "refhost/dbcheck/Finding.h"

#include <iosfwd>

namespace refhost {

/// The streams of the program.
struct CheckStreams {
    std::istream& input;
    std::ostream& output;
    std::ostream& errors;
};

/// What is wrong with the structure of the database, found without writing. Throws EDatabaseError when the database
/// cannot be asked.
Findings inspect(const CheckCommandLine& commandLine);

/// Checks the database, prints what was found and returns the program's exit status: 0 it fits, 1 something is missing
/// or wrong, 2 it could not be checked, for the reason on `errors`.
int runCheck(const CheckCommandLine& commandLine, const CheckStreams& streams);

} // namespace refhost
