#pragma once

#include "editors/EditTypes.h"
#include "host/Types.h"

#include <span>
#include <string_view>
#include <vector>

/// What the editors of all kinds of document ask before their form can be built.
namespace melvark {

/// Why an edit type is refused, in the user's language (needs a current host).
AnsiString InvalidEditType(const AnsiString& editType);

/// The number of the edit type in its table. Throws `Error` when it is not exactly one of them.
template <class Error>
int RequireEditType(std::span<const std::string_view> table, const AnsiString& editType) {
    const int number = EditTypeNumber(table, editType);
    if (number == 0) {
        throw Error(InvalidEditType(editType));
    }
    return number;
}

/// The names of all warehouses, sorted by the database.
std::vector<AnsiString> FillSkladList();

/// Asks the database whether the document may be edited: true once the procedure has run, false when it reports
/// failure. A refusal throws EDatabaseError.
bool CheckMasterDocument(const AnsiString& procedure, std::string_view idParam, int id);

} // namespace melvark
