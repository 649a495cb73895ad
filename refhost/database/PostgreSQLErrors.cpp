#include "refhost/database/PostgreSQLErrors.h"

#include "host/ValueText.h"
#include "refhost/database/RefusalTable.h"

#include <algorithm>

namespace refhost {

namespace {

struct Sentence {
    std::string_view SqlState; ///< The server's code, or its first two characters for a whole class.
    const char* Refusal;
    const char* Before; ///< Stands before the database's name,
    const char* After;  ///< and this after it.
};

constexpr Sentence c_Sentences[] = {
    {"40P01", "ML910", "Databázi „", "“ právě používá někdo jiný. Zkuste to za chvíli znovu."},
    {"40001", "ML910", "Databázi „", "“ právě používá někdo jiný. Zkuste to za chvíli znovu."},
    {"55P03", "ML910", "Databázi „", "“ právě používá někdo jiný. Zkuste to za chvíli znovu."},
    {"53300", "ML910", "Databázi „", "“ používá příliš mnoho uživatelů. Zkuste to za chvíli znovu."},
    {"25006", "ML911", "Databáze „", "“ je jen pro čtení. Připojte se k databázi, do které se smí zapisovat."},
    {"3D000", "ML915", "Databáze „", "“ na serveru není. Zkontrolujte její název, nebo ji nejprve vytvořte."},
    {"08", "ML916", "Spojení s databází „", "“ se přerušilo. Ověřte, co se stihlo uložit, a zkuste to znovu."},
    {"57P", "ML916", "Spojení s databází „", "“ se přerušilo. Ověřte, co se stihlo uložit, a zkuste to znovu."},
    {"28", "ML917", "Databáze „", "“ odmítla přihlášení. Zkontrolujte jméno a heslo."},
    {"53100", "ML923", "Pro databázi „", "“ není na disku serveru místo. Obraťte se na správce."},
    {"23503", "ML925", "V databázi „", "“ už není něco, na co se změna odvolává. Načtěte data znovu."},
    {"2BP01", "ML929", "V databázi „",
     "“ závisí na pohledech nebo funkcích něco vlastního. Odstraňte to a převod zopakujte."},
    {"42501", "ML924", "V databázi „", "“ k tomu nemáte oprávnění. Požádejte o ně správce."},
};

constexpr Sentence c_Other{"", "ML930", "Databáze „", "“ nemohla příkaz provést. Obraťte se na správce."};
/// A constraint of the tables whose violation is a refusal, and its key.
struct Constraint {
    std::string_view Name;
    std::string_view Refusal;
};

constexpr Constraint c_Constraints[] = {
    {"dodcenik_prekryv", "ML901"},
};

constexpr std::string_view c_LostLink = "08006";
constexpr std::string_view c_WrongPassword = "28P01";

EDatabaseError sentence(std::string_view sqlState, std::string_view database, const std::string& details) {
    const auto* found = std::ranges::find_if(
        c_Sentences, [sqlState](const Sentence& candidate) { return sqlState.starts_with(candidate.SqlState); });
    const Sentence& chosen = found == std::end(c_Sentences) ? c_Other : *found;
    return EDatabaseError(std::string(chosen.Before).append(database) + chosen.After, chosen.Refusal, details,
                          TDatabaseCause::Failure);
}

std::string details(std::string_view sqlState, std::string_view words, std::string_view statement) {
    std::string text = "PostgreSQL ";
    text.append(sqlState).append(": ").append(words);
    if (!statement.empty()) {
        text.append("\n").append(statement);
    }
    return text;
}

std::string field(const PGresult* result, int code) {
    const char* text = PQresultErrorField(result, code);
    return text == nullptr ? std::string() : std::string(text);
}

/// The same refusal about the row that its detail names: "row 2" and nothing else, as our function refuse_line says it.
EDatabaseError aboutNamedRow(EDatabaseError refusal, std::string_view detail) {
    constexpr std::string_view c_Word = "row ";
    const auto row = detail.starts_with(c_Word) ? TextToInt(detail.substr(c_Word.size())) : std::nullopt;
    return row && *row >= 0 ? refusal.AboutRow(*row) : refusal;
}

/// The server's code in the words of a refused opening, which are all that the client library keeps of it:
/// "FATAL:  28P01: password …" in any language.
std::string codeIn(std::string_view words) {
    constexpr std::size_t c_Length = 5;
    const auto isCodeCharacter = [](char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z'); };
    for (std::size_t start = words.find(":  "); start != std::string_view::npos; start = words.find(":  ", start + 1)) {
        const std::string_view candidate = words.substr(start + 3, c_Length);
        if (candidate.size() == c_Length && std::ranges::all_of(candidate, isCodeCharacter) &&
            words.substr(start + 3 + c_Length).starts_with(": ")) {
            return std::string(candidate);
        }
    }
    return {};
}

} // namespace

EPostgreSQLError::~EPostgreSQLError() = default;

bool EPostgreSQLError::isConflict() const {
    return sqlState_ == "40P01" || sqlState_ == "40001";
}

bool EPostgreSQLError::isNoReadingStatement() const {
    const bool isSeveral = sqlState_ == "42601" && place_ == "exec_parse_message"; // else a mistake in the one
    return sqlState_ == "25006" || isSeveral;
}

EPostgreSQLError statementError(const PGresult* result, std::string_view database, std::string_view statement) {
    const std::string sqlState = field(result, PG_DIAG_SQLSTATE);
    std::string words = field(result, PG_DIAG_MESSAGE_PRIMARY);
    const std::string more = details(sqlState, PQresultErrorMessage(result), statement);
    if (sqlState.starts_with("ML")) {
        const std::string detail = field(result, PG_DIAG_MESSAGE_DETAIL);
        return {aboutNamedRow(EDatabaseError(std::move(words), sqlState, more), detail), sqlState};
    }
    if (const auto* constraint =
            std::ranges::find(c_Constraints, field(result, PG_DIAG_CONSTRAINT_NAME), &Constraint::Name);
        constraint != std::end(c_Constraints)) {
        return {refusal(constraint->Refusal, {}, more), sqlState};
    }
    return {sentence(sqlState, database, more), sqlState, field(result, PG_DIAG_SOURCE_FUNCTION)};
}

EPostgreSQLError openingError(std::string_view words, std::string_view database, std::string_view host) {
    const std::string sqlState = codeIn(words);
    const std::string more = details(sqlState, words, {});
    if (!sqlState.empty()) {
        return {sentence(sqlState, database, more), sqlState};
    }
    return {EDatabaseError("Server databáze „" + std::string(host) +
                               "“ není dostupný. Zkontrolujte jeho adresu a zda běží.",
                           "ML916", more, TDatabaseCause::Failure),
            std::string(c_LostLink)};
}

EPostgreSQLError missingPasswordError(std::string_view database) {
    return {sentence(c_WrongPassword, database, details(c_WrongPassword, "no password was given", {})),
            std::string(c_WrongPassword)};
}

EPostgreSQLError lostLinkError(std::string_view database, std::string_view words, std::string_view statement) {
    return {sentence(c_LostLink, database, details(c_LostLink, words, statement)), std::string(c_LostLink)};
}

} // namespace refhost
