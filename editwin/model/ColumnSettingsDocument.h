#pragma once

#include "editwin/model/Column.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// The document that carries one shape of an editor's grid: order, texts, alignment, visibility, editability and width
/// of the columns, and the price-recalculation switch. It is stored under a name and read back onto the column list.
namespace melvark {

/// The document of the columns in their order, hidden ones included. `recalculation` is the state of the switch;
/// without a value (the editor shows no switch) the document says nothing of it.
AnsiString WriteColumnSettings(std::span<const RColumn> columns, std::optional<bool> recalculation);

/// What a document makes of an editor.
struct AppliedColumnSettings {
    std::vector<RColumn> Columns;      ///< The new active columns, as many as the default ones.
    std::optional<bool> Recalculation; ///< The switch; nothing when the document does not name it.
};

/// Reads a document onto the columns. `previous` are the active columns so far; only their data columns are kept, by
/// name. Everything that the document does not say is taken from `defaults`.
///
/// Columns that the document names come first, in its order, then the rest in built-in order. Unknown names, columns
/// without a name and foreign elements are skipped, as is a repeated name, **except the first repeat of the column
/// placed first**, which is placed once more. The list keeps its length: such a repeat pushes out the last of the rest,
/// and a name for which there is no room any more is skipped. A text that is empty, not well-formed or another document
/// gives the built-in layout.
///
/// An editor that shows no switch must ignore `Recalculation`.
AppliedColumnSettings ReadColumnSettings(std::string_view document, std::span<const RColumn> previous,
                                         std::span<const RColumn> defaults);

} // namespace melvark
