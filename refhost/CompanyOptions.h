#pragma once

#include "host/FormatSettings.h"

#include <array>
#include <string>
#include <string_view>

namespace CLI {
class App;
class Option;
class Validator;
} // namespace CLI

namespace refhost {

/// The languages that a program can be told to speak. The first is built in; each other one has its three catalogues in
/// refhost/languages.
inline constexpr std::array<const char*, 2> c_languages{"cs", "en"};

/// Which company a program works with, and how: what all programs are told by the same options. Texts are UTF-8 as they
/// came.
struct CompanyOptions {
    std::string database; ///< "sqlite:FILE" or "postgresql:CONNINFO"; empty when none was named.
    std::string user;     ///< Empty for the system's user.
    std::string locale = "cs_CZ";
    std::string language = c_languages.front();
    std::string procedures; ///< A folder whose scripts replace procedures of the embedded engine; empty for none.
};

/// What the usage says where the programs differ.
struct CompanyMeanings {
    const char* database;
    const char* user;
    const char* language;
};

/// Declares the options to the parser, which writes what it finds into `options`.
void declareCompanyOptions(CLI::App& app, CompanyOptions& options, const CompanyMeanings& meanings);

/// Declares an option that carries one text; a value that was forgotten does not swallow the option behind it.
CLI::Option* addTextOption(CLI::App& app, const char* name, std::string& target, const char* meaning);
bool looksLikeOption(std::string_view word);
/// Refuses an empty text.
CLI::Validator anyText();

/// How the locale that an option names writes numbers and dates.
TFormatSettings formatSettingsOf(std::string_view locale);

/// Who works: the user that the options name, else the system's.
std::string userOf(const CompanyOptions& options);

} // namespace refhost
