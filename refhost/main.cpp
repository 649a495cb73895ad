#include "refhost/CommandLine.h"
#include "refhost/Program.h"

#include <iostream>

int main(int argc, char** argv) {
    refhost::CommandLine commandLine;
    try {
        commandLine = refhost::parseCommandLine({argv + 1, argv + argc});
    } catch (const refhost::CommandLineError& error) {
        std::cerr << "melvark-host: " << error.what() << "\n\n" << refhost::usageText();
        return 2;
    }
    if (commandLine.command == refhost::Command::Help) {
        std::cout << refhost::usageText();
        return 0;
    }
    if (commandLine.command == refhost::Command::Version) {
        std::cout << refhost::versionText("melvark-host");
        return 0;
    }
    return refhost::runProgram(commandLine, argc, argv);
}
