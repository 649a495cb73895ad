#pragma once

#include "editors/DocumentRows.h"
#include "host/Identifier.h"
#include "host/Types.h"

#include <initializer_list>
#include <span>
#include <string_view>
#include <variant>

class TDataGrid;

/// A kind of document as data, and what the editors of all kinds do with it: bring lines, store them.
namespace melvark {

struct DocumentKind {
    int EditTypeNumber;        ///< Files the window's placement and, with the source's number, the column settings.
    const char* FirstNamePart; ///< Of the temporary file's name.
    const char* TitleKey;
    const char* Title;
    bool HasPrices;           ///< Whether the panel with the switch of the recalculation is shown.
    std::string_view IdParam; ///< How the procedures below name the document.
    const char* CheckProcedure;
    const char* RestoreProcedure; ///< Says whether unsaved work on the document may go on.
    const char* InsertProcedure;  ///< Stages one row.
    std::span<const RowParam> RowParams;
    const char* TakeOverProcedure; ///< The closing call.
};

/// What the clerk chose in the source dialog.
struct SourceChoice {
    int ID = c_NullValue;
    bool WithQuantities = true;
    bool WithPrices = true;
};

/// A parameter of a procedure that brings lines: an identifier, null for none, or a choice.
struct LinesParam {
    std::string_view Param;
    std::variant<int, bool> Value;
};

/// Fills the store with the lines that the procedure brings for the parameters, which are set in their order; see
/// FillStore. False, with the store as it was, when the call reports failure. Throws EDatabaseError.
bool FillLines(TDataGrid& store, const DocumentColumns& columns, const AnsiString& procedure,
               std::initializer_list<LinesParam> params, std::string_view skippedKey = {});

/// Stages every row and takes them over into the document `id`, naming the documents that they came from, null where
/// none was chosen. The database's row store was emptied before. Nothing is checked here. False as soon as a call
/// reports failure: nothing is taken over then. Throws EDatabaseError.
bool SaveLines(const DocumentKind& kind, const DocumentColumns& columns, const TDataGrid& store, int id,
               std::initializer_list<IdParam> sources);

} // namespace melvark
