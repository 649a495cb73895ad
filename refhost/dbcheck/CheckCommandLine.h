#pragma once

#include "refhost/CompanyOptions.h"

#include <cstdint>
#include <string>
#include <vector>

namespace refhost {

/// The command line of the program that checks a database, read. Texts are UTF-8 as they came.
struct CheckCommandLine : CompanyOptions {
    std::string screen; ///< Of the document on which the procedures are tried; empty when they are not.
    std::int32_t document = 0;
    bool isConfirmed = false; ///< The trial is not asked about.
    bool json = false;
    bool version = false;
    bool help = false;
};

/// Reads the words behind the program's name. Throws CommandLineError.
CheckCommandLine parseCheckCommandLine(const std::vector<std::string>& words);

/// How the program is used, ready to be printed.
std::string checkUsageText();

} // namespace refhost
