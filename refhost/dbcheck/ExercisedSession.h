#pragma once

#include "refhost/database/Database.h"
#include "refhost/dbcheck/DatabaseContract.h"
#include "refhost/dbcheck/Finding.h"

#include <optional>
#include <string>
#include <vector>

namespace refhost {

/// One session of a database whose procedures are tried. Every call passes all parameters that the contract names, as
/// the editors do, and every answer is held against what the contract says that it brings.
class ExercisedSession {
public:
    /// `findings` takes what is wrong with the answers.
    ExercisedSession(const DatabaseContract& contract, Database& database, Findings& findings)
        : contract_(contract), database_(database), findings_(findings) {}

    /// What a call brought, or why it was refused.
    struct Answer {
        TCallResult Result;
        std::optional<EDatabaseError> Refusal;

        bool accepted() const { return !Refusal; }
        /// A value of the first set's first row, or of an output, as text; "-" for null and "" when there is no such
        /// row or column.
        std::string value(std::string_view name) const;
    };

    /// `procedure` without "MELVARKEDITOR"; parameters that are not named are null. A row of a save is waited for.
    /// Throws EDatabaseError only when the database cannot be reached.
    Answer call(const std::string& procedure, const std::vector<TDbParam>& parameters = {});

    /// The texts of a query's first column.
    std::vector<std::string> column(const std::string& sql);
    TResultTable query(const std::string& sql) { return database_.Query(sql); }

private:
    void checkAnswer(const std::string& name, const ProcedureDeclaration& expected, const TCallResult& result);

    const DatabaseContract& contract_;
    Database& database_;
    Findings& findings_;
};

/// A value as text; "-" for null.
std::string exercisedText(const TDbValue& value);

/// The texts one after the other, parted by "; ".
std::string joinedTexts(const std::vector<std::string>& texts);

/// An identifier or number as a parameter.
TDbValue exercisedId(std::int64_t id);

/// The whole name of a procedure.
std::string procedureName(const std::string& name);

} // namespace refhost
