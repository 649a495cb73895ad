#include "refhost/CommandLine.h"
#include "refhost/dbcheck/CheckProgram.h"

#include <iostream>

int main(int argc, char** argv) {
    refhost::CheckCommandLine commandLine;
    try {
        commandLine = refhost::parseCheckCommandLine({argv + 1, argv + argc});
    } catch (const refhost::CommandLineError& error) {
        std::cerr << "melvark-dbcheck: " << error.what() << "\n\n" << refhost::checkUsageText();
        return 2;
    }
    if (commandLine.help) {
        std::cout << refhost::checkUsageText();
        return 0;
    }
    if (commandLine.version) {
        std::cout << refhost::versionText("melvark-dbcheck");
        return 0;
    }
    return refhost::runCheck(commandLine, {.input = std::cin, .output = std::cout, .errors = std::cerr});
}
