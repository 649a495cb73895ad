#include "refhost/CommandLine.h"

#include "host/Package.h"
#include "host/ValueText.h"
#include "refhost/database/SchemaVersion.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace refhost {

namespace {

enum class Value { None, Needed, Optional };

/// A command: how it is asked for, what it works on and what the usage says about it.
struct CommandRow {
    Command command;
    const char* option;
    Value subject;
    const char* operands;
    bool needsDocument;
    const char* meaning;
};

constexpr std::array c_commands{
    CommandRow{Command::Execute, "--execute", Value::Needed, "PARAMS --document ID", true,
               "opens the item editor on one document;\nexit status 0 confirmed, 1 not"},
    CommandRow{Command::Call, "--call", Value::Optional, "PROCEDURE [NAME=VALUE ...]", false,
               "runs one procedure and prints its rows and outputs as JSON lines"},
    CommandRow{Command::Batch, "--batch", Value::None, "", false,
               "runs the calls of standard input, one JSON line each:\n{\"call\":NAME,\"params\":{NAME:VALUE,...}};\n"
               "--call PROCEDURE beside it serves the calls that name none"},
    CommandRow{Command::Query, "--query", Value::Needed, "SQL", false,
               "runs one read-only query and prints its rows as JSON lines"},
    CommandRow{Command::Documents, "--documents", Value::Needed, "SCREEN", false,
               "lists the documents of DODAK, DODOBJ or DODOBJVZOR as JSON lines"},
    CommandRow{Command::Show, "--show", Value::Needed, "SCREEN --document ID", true,
               "prints the stored lines of one document as JSON lines"},
    CommandRow{Command::CreateDatabase, "--create-database", Value::None, "[--empty | --lines N]", false,
               "fills an empty database with schema, procedures and sample data;\n"
               "N adds one document of each kind with N lines"},
    CommandRow{Command::UpgradeDatabase, "--upgrade-database", Value::None, "", false,
               "brings a database of an older version to this program's, after a copy\nof the file, "
               "and prints what it did as a JSON line"},
    CommandRow{Command::Version, "--version", Value::None, "", false,
               "prints the versions of the program, its contract and its databases"},
    CommandRow{Command::Help, "--help", Value::None, "", false, "prints this text"},
};

/// One procedure may stand beside a batch; any other two commands exclude each other.
constexpr bool standTogether(Command one, Command other) {
    return one == other || (one == Command::Call && other == Command::Batch) ||
           (one == Command::Batch && other == Command::Call);
}

/// An option that carries a number and belongs to some commands only.
struct NumberOptionRow {
    const char* option;
    const char* operand;
    std::int32_t CommandLine::*field;
    std::int32_t least;
    std::vector<Command> commands;
    const char* meaning;
};

const std::vector<NumberOptionRow>& numberOptions() {
    static const std::vector<NumberOptionRow> rows{
        // Record numbers are positive, but that is for the screen to say.
        {"--document",
         "ID",
         &CommandLine::document,
         std::numeric_limits<std::int32_t>::min(),
         {Command::Execute, Command::Show},
         "the document that a command works on"},
        {"--lines", "N", &CommandLine::lines, 0, {Command::CreateDatabase}, "lines of the additional documents"},
    };
    return rows;
}

/// An option that is there or not; it belongs to some commands only, or to all when none is named.
struct FlagOptionRow {
    const char* option;
    bool CommandLine::*field;
    std::vector<Command> commands;
    const char* excludes; ///< None for an option that goes with all others.
    const char* meaning;
};

const std::vector<FlagOptionRow>& flagOptions() {
    static const std::vector<FlagOptionRow> rows{
        {"--log-values", &CommandLine::logValues, {}, nullptr, "writes the values into the log, too"},
        {"--empty", &CommandLine::empty, {Command::CreateDatabase}, "--lines", "a company without sample data"},
    };
    return rows;
}

const CommandRow& rowOf(Command command) {
    return *std::find_if(c_commands.begin(), c_commands.end(),
                         [&](const CommandRow& row) { return row.command == command; });
}

CLI::Validator wholeNumber(std::int32_t least) {
    return CLI::Validator(
        [least](const std::string& value) -> std::string {
            const std::optional<std::int32_t> number = TextToInt(value);
            if (!number) {
                return "needs a whole number, not \"" + value + "\"";
            }
            return *number < least ? "must not be less than " + std::to_string(least) : "";
        },
        "");
}

[[noreturn]] void refuse(std::string_view option, std::string_view reason) {
    throw CommandLineError(std::string(option) + ": " + std::string(reason));
}

/// Declares the rows of the tables to the parser and takes what it found. Words may stand in any order.
class Reader {
public:
    Reader() : app_("Melvark's reference host: opens its document screens, or runs one command.", "melvark-host") {
        // Asking for help is a command like the others.
        app_.set_help_flag();
        // The values of a call have names that only the procedure knows.
        app_.allow_extras();
        app_.footer("Any error ends the program with exit status 2 and a message on the standard error output.");
        app_.get_formatter()->column_width(c_helpColumn);
        declareTexts();
        declareNumbers();
        declareFlags();
        declareCommands();
    }

    CommandLine read(const std::vector<std::string>& words) {
        // The parser takes its words from the back.
        std::vector<std::string> reversed(words.rbegin(), words.rend());
        try {
            app_.parse(std::move(reversed));
        } catch (const CLI::ParseError& error) {
            throw CommandLineError(error.what());
        }
        readCommand();
        for (const FlagOptionRow& row : flagOptions()) {
            result_.*row.field = isGiven(row.option);
        }
        std::ranges::for_each(app_.remaining(), [this](const std::string& word) { readArgument(word); });
        checkTogether();
        return std::move(result_);
    }

    std::string usage() const { return app_.help(); }

private:
    static constexpr std::size_t c_helpColumn = 36;

    void declareTexts() {
        declareCompanyOptions(
            app_, result_,
            {.database = "the company's database; without it the user's own,\nmade with sample data on first start",
             .user = "who works",
             .language = "the language of windows and messages"});
        addTextOption(app_, "--trace", result_.traceFile, "appends one JSON line for each service call")
            ->option_text("FILE")
            ->check(anyText());
        addTextOption(app_, "--log", result_.logFile,
                      "appends the same without values, with the time, and the calls of\ncommands, to a log that is "
                      "rotated; only its owner can read it")
            ->option_text("FILE")
            ->check(anyText());
    }

    void declareNumbers() {
        for (const NumberOptionRow& row : numberOptions()) {
            app_.add_option_function<std::string>(
                    row.option,
                    [this, field = row.field](const std::string& value) { result_.*field = TextToInt(value).value(); },
                    row.meaning)
                ->option_text(row.operand)
                ->check(wholeNumber(row.least));
        }
    }

    CLI::Option* addFlag(const char* name, const std::string& meaning) {
        return app_.add_flag(name, meaning)
            ->disable_flag_override()
            ->multi_option_policy(CLI::MultiOptionPolicy::Throw);
    }

    void declareFlags() {
        for (const FlagOptionRow& row : flagOptions()) {
            // Without a text of its own the usage would list what the flag excludes.
            CLI::Option* option = addFlag(row.option, row.meaning)->option_text(" ");
            if (row.excludes != nullptr) {
                option->excludes(app_.get_option(row.excludes));
            }
        }
    }

    void declareCommands() {
        for (const CommandRow& row : c_commands) {
            CLI::Option* option = row.subject == Value::None
                                      ? addFlag(row.option, row.meaning)
                                      : addTextOption(app_, row.option, result_.subject, row.meaning);
            if (row.subject == Value::Optional) {
                option->expected(0, 1);
            }
            if (row.needsDocument) {
                option->needs(app_.get_option("--document"));
            }
            // Without a text of its own the usage would list what the command excludes.
            option->option_text(*row.operands == '\0' ? " " : row.operands)->group("Commands");
            for (const CommandRow* earlier = c_commands.begin(); earlier->command != row.command; ++earlier) {
                if (!standTogether(earlier->command, row.command)) {
                    option->excludes(app_.get_option(earlier->option));
                }
            }
        }
    }

    bool isGiven(const char* option) const { return app_.count(option) > 0; }

    /// A batch stands behind the call that may be beside it.
    void readCommand() {
        for (const CommandRow& row : c_commands) {
            if (isGiven(row.option)) {
                result_.command = row.command;
            }
        }
    }

    void readArgument(const std::string& word) {
        const std::size_t equals = word.find('=');
        if (looksLikeOption(word) || equals == std::string::npos || equals == 0) {
            throw CommandLineError("unknown word: " + word);
        }
        result_.arguments.emplace_back(word.substr(0, equals), word.substr(equals + 1));
    }

    void checkTogether() const {
        if (result_.command == Command::Call && result_.subject.empty()) {
            refuse("--call", "needs a procedure");
        }
        if (!result_.arguments.empty() && result_.command != Command::Call) {
            throw CommandLineError("unknown word: " + result_.arguments.front().first +
                                   "=... (values belong to --call, those of a batch to its lines)");
        }
        checkBelonging(numberOptions());
        checkBelonging(flagOptions());
    }

    template <typename Rows>
    void checkBelonging(const Rows& rows) const {
        for (const auto& row : rows) {
            const bool isLimited = !row.commands.empty() && isGiven(row.option);
            if (isLimited && std::ranges::find(row.commands, result_.command) == row.commands.end()) {
                refuse(row.option, "belongs to " + namesOf(row.commands));
            }
        }
    }

    static std::string namesOf(const std::vector<Command>& commands) {
        std::string names;
        for (const Command command : commands) {
            names += (names.empty() ? "" : " or ") + std::string(rowOf(command).option);
        }
        return names;
    }

    CLI::App app_;
    CommandLine result_;
};

} // namespace

CommandLine parseCommandLine(const std::vector<std::string>& words) {
    return Reader().read(words);
}

std::string usageText() {
    return Reader().usage();
}

std::string programVersion() {
    return MELVARK_VERSION;
}

std::string versionText(const std::string& program) {
    return program + " " + programVersion() + "\ncontract " + std::to_string(c_ContractVersion) + "\ndatabase " +
           std::to_string(c_SchemaVersion) + "\n";
}

} // namespace refhost
