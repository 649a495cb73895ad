#include "refhost/database/PostgreSQLErrors.h"

#include "host/ValueText.h"
#include "refhost/database/RefusalTable.h"

#include <algorithm>

namespace refhost {

namespace {

/// Which row of the table of refusals an error of the server is told by. Each names the database.
struct Failure {
    std::string_view SqlState; ///< The server's code, or its first characters for a whole class.
    std::string_view Refusal;
};

constexpr Failure c_Failures[] = {
    {"40P01", "ML910"},        {"40001", "ML910"}, {"55P03", "ML910"}, {"53300", "ML910/users"}, {"25006", "ML911"},
    {"3D000", "ML915/server"}, {"08", "ML916"},    {"57P", "ML916"},   {"25P03", "ML916"},       {"28", "ML917"},
    {"53100", "ML923/server"}, {"23503", "ML925"}, {"2BP01", "ML929"}, {"42501", "ML924"},
};

constexpr std::string_view c_OtherFailure = "ML930";

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

EDatabaseError failure(std::string_view sqlState, std::string_view database, std::string details) {
    const auto* found = std::ranges::find_if(
        c_Failures, [sqlState](const Failure& candidate) { return sqlState.starts_with(candidate.SqlState); });
    return refusal(found == std::end(c_Failures) ? c_OtherFailure : found->Refusal, {std::string(database)},
                   std::move(details), TDatabaseCause::Failure);
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
    const bool isSeveral = sqlState_ == "42601" && place_.Function == "exec_parse_message"; // else a mistake in the one
    return sqlState_ == "25006" || isSeveral;
}

bool EPostgreSQLError::isMissingTable() const {
    return sqlState_ == "42P01";
}

bool EPostgreSQLError::isBrokenRule() const {
    return sqlState_.starts_with("23");
}

EPostgreSQLError statementError(const PGresult* result, std::string_view database, std::string_view statement) {
    const std::string sqlState = field(result, PG_DIAG_SQLSTATE);
    std::string words = field(result, PG_DIAG_MESSAGE_PRIMARY);
    const std::string more = details(sqlState, PQresultErrorMessage(result), statement);
    if (sqlState.starts_with("ML")) {
        const std::string detail = field(result, PG_DIAG_MESSAGE_DETAIL);
        return {aboutNamedRow(EDatabaseError(std::move(words), sqlState, more), detail), sqlState};
    }
    const EPostgreSQLError::Place place{field(result, PG_DIAG_SOURCE_FUNCTION), field(result, PG_DIAG_TABLE_NAME)};
    if (const auto* constraint =
            std::ranges::find(c_Constraints, field(result, PG_DIAG_CONSTRAINT_NAME), &Constraint::Name);
        constraint != std::end(c_Constraints)) {
        return {refusal(constraint->Refusal, {}, more), sqlState, place};
    }
    return {failure(sqlState, database, more), sqlState, place};
}

EPostgreSQLError openingError(std::string_view words, std::string_view database, std::string_view host) {
    const std::string sqlState = codeIn(words);
    const std::string more = details(sqlState, words, {});
    if (!sqlState.empty()) {
        return {failure(sqlState, database, more), sqlState};
    }
    return {refusal("ML916/server", {std::string(host)}, more, TDatabaseCause::Failure), std::string(c_LostLink)};
}

EPostgreSQLError missingPasswordError(std::string_view database) {
    return {failure(c_WrongPassword, database, details(c_WrongPassword, "no password was given", {})),
            std::string(c_WrongPassword)};
}

EPostgreSQLError lostLinkError(std::string_view database, std::string_view words, std::string_view statement) {
    return {failure(c_LostLink, database, details(c_LostLink, words, statement)), std::string(c_LostLink)};
}

} // namespace refhost
