#include "refhost/dbcheck/CheckCommandLine.h"

#include "refhost/CommandLine.h"

#include <CLI/CLI.hpp>

namespace refhost {

namespace {

constexpr std::size_t c_HelpColumn = 44;
constexpr const char* c_Name = "melvark-dbcheck";
constexpr const char* c_Purpose = "Checks whether a database fits Melvark. Without --exercise nothing is written.";

/// Declares the options to the parser, which writes what it finds into the result.
void declare(CLI::App& app, CheckCommandLine& result) {
    app.set_help_flag();
    app.get_formatter()->column_width(c_HelpColumn);
    app.footer("Exit status: 0 it fits, 1 something is missing or wrong, 2 it could not be checked.");
    declareCompanyOptions(app, result,
                          {.database = "the database that is checked",
                           .user = "whose settings the procedures of a file use",
                           .language = "the language of the findings"});
    CLI::Option* const document =
        app.add_option("--document", result.document, "the document that the trial writes to")->option_text("ID");
    CLI::Option* const trial =
        app.add_option("--exercise", result.screen,
                       "tries the procedures on an open document, after a\nquestion, and lists what it wrote")
            ->check(CLI::IsMember({"DODAK", "DODOBJ", "DODOBJVZOR"}))
            ->option_text("SCREEN --document ID")
            ->needs(document);
    document->needs(trial);
    app.add_flag("--yes", result.isConfirmed, "does not ask before the trial")->needs(trial)->option_text(" ");
    app.add_flag("--json", result.json, "prints one JSON object");
    app.add_flag("--version", result.version, "prints the versions of the program, its contract and its databases");
    app.add_flag("--help", result.help, "prints this text");
}

} // namespace

CheckCommandLine parseCheckCommandLine(const std::vector<std::string>& words) {
    CLI::App app(c_Purpose, c_Name);
    CheckCommandLine result;
    declare(app, result);
    // The parser takes its words from the back.
    std::vector<std::string> reversed(words.rbegin(), words.rend());
    try {
        app.parse(std::move(reversed));
    } catch (const CLI::ParseError& error) {
        throw CommandLineError(error.what());
    }
    if (result.database.empty() && !result.help && !result.version) {
        throw CommandLineError("--database: needs a value");
    }
    return result;
}

std::string checkUsageText() {
    CLI::App app(c_Purpose, c_Name);
    CheckCommandLine result;
    declare(app, result);
    return app.help();
}

} // namespace refhost
