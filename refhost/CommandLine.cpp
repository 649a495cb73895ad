#include "refhost/CommandLine.h"

#include "host/ValueText.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <string_view>

namespace refhost {

namespace {

enum class Value { None, Needed, Optional };

/// A command of the table: how it is asked for and which further options belong to it.
struct CommandRow {
    Command command;
    std::string_view option;
    Value subject;
    bool needsDocument;
};

constexpr std::array c_commands{
    CommandRow{Command::Execute, "--execute", Value::Needed, true},
    CommandRow{Command::Call, "--call", Value::Optional, false},
    CommandRow{Command::Query, "--query", Value::Needed, false},
    CommandRow{Command::Documents, "--documents", Value::Needed, false},
    CommandRow{Command::Show, "--show", Value::Needed, true},
    CommandRow{Command::CreateDatabase, "--create-database", Value::None, false},
    CommandRow{Command::Help, "--help", Value::None, false},
};

/// An option that carries one text.
struct TextOptionRow {
    std::string_view option;
    std::string CommandLine::*field;
};

constexpr std::array c_textOptions{
    TextOptionRow{"--database", &CommandLine::database}, TextOptionRow{"--user", &CommandLine::user},
    TextOptionRow{"--locale", &CommandLine::locale},     TextOptionRow{"--language", &CommandLine::language},
    TextOptionRow{"--trace", &CommandLine::traceFile},
};

/// An option that carries a number.
struct NumberOptionRow {
    std::string_view option;
    std::int32_t CommandLine::*field;
};

constexpr std::array c_numberOptions{
    NumberOptionRow{"--document", &CommandLine::document},
    NumberOptionRow{"--lines", &CommandLine::lines},
};

template <typename Rows>
auto findRow(const Rows& rows, std::string_view option) -> const typename Rows::value_type* {
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const auto& each) { return each.option == option; });
    return row == rows.end() ? nullptr : &*row;
}

bool looksLikeOption(std::string_view word) {
    return word.starts_with("--");
}

[[noreturn]] void refuse(std::string_view option, std::string_view reason) {
    throw CommandLineError(std::string(option) + " " + std::string(reason));
}

/// Takes the words one after the other; what belongs together is checked at the end, so that order does not matter.
class Reader {
public:
    explicit Reader(const std::vector<std::string>& words) : words_(words) {}

    CommandLine read() {
        while (position_ < words_.size()) {
            readWord(words_[position_++]);
        }
        checkTogether();
        return std::move(result_);
    }

private:
    void readWord(const std::string& word) {
        if (looksLikeOption(word) && !given_.insert(word).second) {
            refuse(word, "is given twice");
        }
        if (const auto* commandRow = findRow(c_commands, word)) {
            readCommand(*commandRow);
        } else if (const auto* textRow = findRow(c_textOptions, word)) {
            result_.*(textRow->field) = readNonEmpty(textRow->option);
        } else if (const auto* numberRow = findRow(c_numberOptions, word)) {
            result_.*(numberRow->field) = readNumber(numberRow->option);
        } else if (word != "--batch") {
            readArgument(word);
        }
    }

    void readCommand(const CommandRow& row) {
        if (command_) {
            refuse(row.option, "cannot be combined with " + std::string(command_->option));
        }
        command_ = &row;
        result_.command = row.command;
        if (row.subject == Value::Needed || (row.subject == Value::Optional && hasValue())) {
            result_.subject = readValue(row.option);
        }
    }

    bool hasValue() const { return position_ < words_.size() && !looksLikeOption(words_[position_]); }

    std::string readValue(std::string_view option) {
        if (!hasValue()) {
            refuse(option, "needs a value");
        }
        return words_[position_++];
    }

    std::string readNonEmpty(std::string_view option) {
        std::string value = readValue(option);
        if (value.empty()) {
            refuse(option, "needs a value");
        }
        return value;
    }

    std::int32_t readNumber(std::string_view option) {
        const std::string text = readValue(option);
        const std::optional<std::int32_t> number = TextToInt(text);
        if (!number) {
            refuse(option, "needs a whole number, not \"" + text + "\"");
        }
        return *number;
    }

    void readArgument(const std::string& word) {
        const std::size_t equals = word.find('=');
        if (looksLikeOption(word) || equals == std::string::npos || equals == 0) {
            throw CommandLineError("unknown word: " + word);
        }
        result_.arguments.emplace_back(word.substr(0, equals), word.substr(equals + 1));
    }

    bool isGiven(std::string_view option) const { return given_.contains(option); }

    void checkTogether() {
        if (isGiven("--batch")) {
            checkBatch();
        } else if (result_.command == Command::Call && result_.subject.empty()) {
            refuse("--call", "needs a procedure");
        }
        if (!result_.arguments.empty() && result_.command != Command::Call) {
            throw CommandLineError("unknown word: " + result_.arguments.front().first +
                                   "=... (values belong to --call)");
        }
        if (command_ && command_->needsDocument && !isGiven("--document")) {
            refuse(command_->option, "needs --document");
        }
        if (isGiven("--document") && !(command_ && command_->needsDocument)) {
            refuse("--document", "belongs to --execute or --show");
        }
        checkLines();
        checkWords();
    }

    /// The calls of a batch come from standard input; a procedure named beside it serves the calls that name none.
    void checkBatch() {
        if (command_ && result_.command != Command::Call) {
            refuse("--batch", "belongs to --call");
        }
        if (!result_.arguments.empty()) {
            refuse("--batch", "reads its values from standard input");
        }
        result_.command = Command::Batch;
    }

    void checkLines() const {
        if (isGiven("--lines") && result_.command != Command::CreateDatabase) {
            refuse("--lines", "belongs to --create-database");
        }
        if (result_.lines < 0) {
            refuse("--lines", "must not be negative");
        }
    }

    void checkWords() const {
        if (isGiven("--database") && !result_.database.starts_with("sqlite:") &&
            !result_.database.starts_with("postgresql:")) {
            refuse("--database", "begins with sqlite: or postgresql:");
        }
        if (result_.locale != "cs_CZ" && result_.locale != "en_GB") {
            refuse("--locale", "is cs_CZ or en_GB");
        }
        if (result_.language != "cs" && result_.language != "en") {
            refuse("--language", "is cs or en");
        }
    }

    const std::vector<std::string>& words_;
    std::size_t position_ = 0;
    CommandLine result_;
    const CommandRow* command_ = nullptr;
    std::set<std::string, std::less<>> given_;
};

} // namespace

CommandLine parseCommandLine(const std::vector<std::string>& words) {
    return Reader(words).read();
}

std::string usageText() {
    return R"(usage: melvark-host [--database sqlite:FILE | postgresql:CONNINFO] [--user NAME] [--locale cs_CZ | en_GB]
                    [--language cs | en] [--trace FILE] [COMMAND]

Without a command the host opens with its three document screens. Commands:
  --execute PARAMS --document ID   opens the item editor on one document; exit status 0 confirmed, 1 not
  --call PROCEDURE [NAME=VALUE ...]
                                   runs one procedure and prints its rows and outputs as JSON lines
  --call --batch                   runs the calls of standard input, one JSON line each:
                                   {"call":NAME,"params":{NAME:VALUE,...}}
  --query SQL                      runs one read-only query and prints its rows as JSON lines
  --documents SCREEN               lists the documents of DODAK, DODOBJ or DODOBJVZOR as JSON lines
  --show SCREEN --document ID      prints the stored lines of one document as JSON lines
  --create-database [--lines N]    fills an empty database with schema, procedures and sample data;
                                   N adds one document of each kind with N lines
  --help                           prints this text

Any error ends the program with exit status 2 and a message on the standard error output.
)";
}

} // namespace refhost
