#pragma once

#include "editors/DocumentKind.h"
#include "editors/DocumentOpening.h"
#include "editwin/model/Column.h"
#include "host/Types.h"

#include <string_view>
#include <vector>

class TDataGrid;

/// What makes the editor of supplier orders and order templates theirs: how it opens, with its 17 columns, its units
/// and the two kinds.
namespace melvark {

/// What the columns of the lines of a supplier order or order template are bound to.
struct DodObjBindings {
    std::vector<AnsiString> Warehouses{}; ///< Choices of "SKLAD".
    std::vector<AnsiString> Suppliers{};  ///< Choices of "DODAVATEL".
};

/// Whether the column takes a value in the store row as far as the item is concerned: a quantity does only where the
/// item has the unit that it is counted in, every other column does.
bool HasItsUnit(const DocumentColumns& columns, const TDataGrid& store, std::string_view key, int row);

// The two share opening, columns, sources and procedures.
extern const OpeningTable<DodObjBindings> c_DodObjOpening;
extern const DocumentKind c_OrderKind;
extern const DocumentKind c_TemplateKind;

} // namespace melvark
