#include "refhost/CompanyOptions.h"

#include <CLI/CLI.hpp>
#include <pwd.h>
#include <unistd.h>
#include <vector>

namespace refhost {

namespace {

CLI::Validator noOption() {
    return CLI::Validator(
        [](const std::string& value) { return looksLikeOption(value) ? "needs a value" : std::string(); }, "");
}

CLI::Validator databaseName() {
    return CLI::Validator(
        [](const std::string& value) {
            const bool isKnown = value.starts_with("sqlite:") || value.starts_with("postgresql:");
            return isKnown ? std::string() : "begins with sqlite: or postgresql:";
        },
        "");
}

} // namespace

bool looksLikeOption(std::string_view word) {
    return word.starts_with("--");
}

CLI::Validator anyText() {
    return CLI::Validator([](const std::string& value) { return value.empty() ? "needs a value" : std::string(); }, "");
}

CLI::Option* addTextOption(CLI::App& app, const char* name, std::string& target, const char* meaning) {
    return app
        .add_option_function<std::string>(
            name, [&target](const std::string& value) { target = value; }, meaning)
        ->check(noOption());
}

void declareCompanyOptions(CLI::App& app, CompanyOptions& options, const CompanyMeanings& meanings) {
    struct Row {
        const char* option;
        std::string operand;
        std::string& target;
        const char* meaning;
        CLI::Validator allowed;
    };
    const std::vector<std::string> languages(c_languages.begin(), c_languages.end());
    const Row rows[] = {
        {"--database", "sqlite:FILE | postgresql:CONNINFO", options.database, meanings.database, databaseName()},
        {"--user", "NAME", options.user, meanings.user, anyText()},
        {"--locale", "cs_CZ | en_GB", options.locale, "how numbers and dates are written",
         CLI::IsMember({"cs_CZ", "en_GB"})},
        {"--language", CLI::detail::join(languages, " | "), options.language, meanings.language,
         CLI::IsMember(languages)},
        {"--procedures", "FOLDER", options.procedures,
         "scripts there replace the procedures of an SQLite\ndatabase that bear their names", anyText()},
    };
    for (const Row& row : rows) {
        addTextOption(app, row.option, row.target, row.meaning)->option_text(row.operand)->check(row.allowed);
    }
}

TFormatSettings formatSettingsOf(std::string_view locale) {
    return locale == "en_GB" ? TFormatSettings::English() : TFormatSettings::Czech();
}

std::string userOf(const CompanyOptions& options) {
    if (!options.user.empty()) {
        return options.user;
    }
    const passwd* entry = getpwuid(geteuid());
    return entry ? entry->pw_name : std::to_string(geteuid());
}

} // namespace refhost
