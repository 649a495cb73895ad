#pragma once

#include "editors/DocumentKind.h"
#include "editwin/model/Column.h"
#include "host/Types.h"

#include <vector>

/// What makes a delivery note's editor one of delivery notes: its columns and its kind.
namespace melvark {

/// What the columns of a delivery note's lines are bound to. The lists outlive the columns.
struct DodakColumnBindings {
    bool LocalVat = false;                               ///< Whether the local-VAT columns may be shown.
    const std::vector<AnsiString>* Warehouses = nullptr; ///< Choices of "SKLAD".
    const std::vector<AnsiString>* VatRates = nullptr;   ///< Choices of "DPH".
    TColumnCallback Recalculate;                         ///< After a changed quantity or price.
    TColumnCallback CheckDiscount;                       ///< After a changed discount.
};

/// The 26 default columns of a delivery note's lines, in grid order; a column's place is its data column. Captions and
/// hints are in the user's language (needs a current host).
std::vector<RColumn> DodakColumns(const DodakColumnBindings& bindings);

extern const DocumentKind c_DodakKind;

} // namespace melvark
