#pragma once

#include "editors/DocumentKind.h"
#include "editors/DocumentOpening.h"
#include "editwin/model/Column.h"
#include "host/Types.h"

#include <vector>

/// What makes a delivery note's editor one of delivery notes: how it opens, with its 26 columns, and its kind.
namespace melvark {

/// What the columns of a delivery note's lines are bound to.
struct DodakBindings {
    TColumnCallback Recalculate{};   ///< After a changed quantity or price.
    TColumnCallback CheckDiscount{}; ///< After a changed discount.

    bool LocalVat = false;                ///< Whether the local-VAT columns may be shown.
    std::vector<AnsiString> Warehouses{}; ///< Choices of "SKLAD".
    std::vector<AnsiString> VatRates{};   ///< Choices of "DPH".
};

extern const OpeningTable<DodakBindings> c_DodakOpening;
extern const DocumentKind c_DodakKind;

} // namespace melvark
