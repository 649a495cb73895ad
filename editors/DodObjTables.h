#pragma once

#include "editors/DocumentKind.h"
#include "editwin/model/Column.h"
#include "host/Types.h"

#include <string_view>
#include <vector>

class TDataGrid;

/// What makes the editor of supplier orders and order templates theirs: its columns, its units and the two kinds.
namespace melvark {

/// What the columns of a supplier order's lines are bound to. The lists outlive the columns.
struct DodObjColumnBindings {
    const std::vector<AnsiString>* Warehouses = nullptr; ///< Choices of "SKLAD".
    const std::vector<AnsiString>* Suppliers = nullptr;  ///< Choices of "DODAVATEL".
};

/// The 17 default columns of the lines of a supplier order or order template, in grid order; a column's place is its
/// data column. Captions and hints are in the user's language (needs a current host).
std::vector<RColumn> DodObjColumns(const DodObjColumnBindings& bindings);

/// Whether the column takes a value in the store row as far as the item is concerned: a quantity does only where the
/// item has the unit that it is counted in, every other column does.
bool HasItsUnit(const DocumentColumns& columns, const TDataGrid& store, std::string_view key, int row);

// The two share columns, sources and procedures.
extern const DocumentKind c_OrderKind;
extern const DocumentKind c_TemplateKind;

} // namespace melvark
