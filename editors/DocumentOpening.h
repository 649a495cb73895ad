#pragma once

#include "editors/ColumnTable.h"
#include "editors/EditTypes.h"
#include "editwin/model/Column.h"
#include "host/Identifier.h"
#include "host/LiveData.h"
#include "host/Types.h"

#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

/// What the editors of all kinds of document ask before their form can be built.
namespace melvark {

/// What an editor knows of its document before its form is built.
struct DocumentOpening {
    int SourceNumber = 0;         ///< Of the edit type in its table.
    AnsiString EditType;          ///< Where the lines come from.
    int DocumentID = c_NullValue; ///< The document that is edited.
    AnsiString UserName;
    std::shared_ptr<const void> Bindings; ///< What the columns are bound to; lives as long as they do.
    std::vector<RColumn> Columns;
};

/// How the editors of a kind of document open. `Bindings` are what their columns are bound to.
template <class Bindings>
struct OpeningTable {
    std::span<const std::string_view> EditTypes;
    const char* Procedure; ///< Tells the user, and what else Init reads of it.
    /// Reads the flags and the lists of choices; the procedure's first result set is open.
    void (*Init)(TLiveStoredProc& initialisation, Bindings& bindings);
    std::span<const ColumnRow<Bindings>> Columns;
};

/// Why an edit type is refused, in the user's language (needs a current host).
AnsiString InvalidEditType(const AnsiString& editType);

/// Checks the edit type, then asks the database for the user and for what the columns are bound to; the callbacks come
/// in with `bindings`. Throws `Error` for an edit type that is not exactly one of the table's, before the database is
/// asked; EDatabaseError.
template <class Error, class Bindings>
DocumentOpening OpenDocument(const OpeningTable<Bindings>& table, const AnsiString& editType, int documentId,
                             Bindings bindings = {}) {
    const int number = EditTypeNumber(table.EditTypes, editType);
    if (number == 0) {
        throw Error(InvalidEditType(editType));
    }
    const auto bound = std::make_shared<Bindings>(std::move(bindings));
    TLiveStoredProc initialisation(table.Procedure);
    initialisation.Exec(true);
    const AnsiString user = initialisation.FieldByName("UZIVATEL").AsString();
    table.Init(initialisation, *bound);
    return {.SourceNumber = number,
            .EditType = editType,
            .DocumentID = documentId,
            .UserName = user,
            .Bindings = bound,
            .Columns = LoadDefaultColumnsSettings(table.Columns, *bound)};
}

/// The names of all warehouses, sorted by the database.
std::vector<AnsiString> FillSkladList();

/// Asks the database whether the document may be edited: true once the procedure has run, false when it reports
/// failure. A refusal throws EDatabaseError.
bool CheckMasterDocument(const AnsiString& procedure, std::string_view idParam, int id);

} // namespace melvark
