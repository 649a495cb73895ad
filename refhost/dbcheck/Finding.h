#pragma once

#include "host/Exceptions.h"

#include <optional>
#include <string>
#include <vector>

namespace refhost {

/// What may be wrong with a database. FindingTexts.h has the code and the sentence of each.
enum class FindingKind {
    CompanyMissing,
    ProcedureMissing,
    SavesUnidentified,
    ProcedureUnusable,
    ProcedureAmbiguous,
    ParameterMissing,
    ParameterType,
    ParameterNeeded,
    OutputMissing,
    OutputType,
    SetMissing,
    ColumnMissing,
    ColumnType,
    ViewUnusable,
    ViewColumnMissing,
    ViewColumnType,
    QueryUnusable,
    QueryOrder,
    FunctionUnusable,
    RoleMissing,
    RoleOutside,
    RoleMayNotCall,
    RoleMayNotRead,
    RoleMayWrite,
    MissingDocumentAccepted,
    AnswerWrong,
    DiscountAccepted,
    SaveNotBegun,
    SaveNotBegunChanges,
    SaveRefused,
    EmptySaveChanges,
    SavedLinesWrong,
    ClosingTwiceDoubles,
    BeginKeepsRows,
    UnknownItemAccepted,
    ClosedAfterRefusal,
    SavedInPart,
    GivenUpAccepted,
    SessionsMixed,
    SessionLost,
    TakenNameAccepted,
    SettingNotDeleted,
};

/// One thing that is not as the contract wants it.
struct Finding {
    FindingKind Kind;
    std::string Object; ///< The procedure, view, query, function or role.
    std::string Member; ///< The parameter, column or condition that it is about; empty for the whole.
    std::string Expected;
    std::string Found;
    /// What the database said, where that is what was found.
    std::optional<EDatabaseError> Error = std::nullopt;
};

using Findings = std::vector<Finding>;

} // namespace refhost
