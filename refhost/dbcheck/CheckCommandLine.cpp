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
    app.add_option("--database", result.database, "the database that is checked")
        ->option_text("sqlite:FILE | postgresql:CONNINFO");
    app.add_option("--user", result.user, "whose settings the procedures of a file use")->option_text("NAME");
    app.add_option("--procedures", result.procedures,
                   "scripts there replace the procedures of an SQLite\ndatabase that bear their names")
        ->option_text("FOLDER");
    app.add_option("--locale", result.locale, "how numbers and dates are written")
        ->check(CLI::IsMember({"cs_CZ", "en_GB"}))
        ->option_text("cs_CZ | en_GB");
    app.add_option("--language", result.language, "the language of the findings")
        ->check(CLI::IsMember({"cs", "en"}))
        ->option_text("cs | en");
    CLI::Option* const document =
        app.add_option("--document", result.document, "the document that the trial writes to")->option_text("ID");
    CLI::Option* const trial =
        app.add_option("--exercise", result.screen,
                       "tries the procedures on an open document, after a\nquestion, and lists what it wrote")
            ->check(CLI::IsMember({"DODAK", "DODOBJ", "DODOBJVZOR"}))
            ->option_text("SCREEN --document ID")
            ->needs(document);
    document->needs(trial);
    app.add_flag("--yes", result.isConfirmed, "does not ask before the trial")->needs(trial);
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
