#pragma once

#include "editors/DocumentKind.h"
#include "host/Exceptions.h"
#include "host/Identifier.h"
#include "host/Types.h"

#include <memory>
#include <vector>

/// A failure of the supplier order's editor itself: a source that it does not know.
class EDodObjEditBox : public Exception {
public:
    using Exception::Exception;
    EDodObjEditBox(const EDodObjEditBox&) = default;
    EDodObjEditBox& operator=(const EDodObjEditBox&) = default;
    ~EDodObjEditBox() override;
};

namespace melvark {

/// The supplier order or order template that is edited, as its screen shows it.
struct DodObjDocument {
    int DdobID = c_NullValue;
    bool IsTemplate = false;
    int SkldID = c_NullValue; ///< Its warehouse.
    int DodvID = c_NullValue; ///< Its supplier; 0 or below for none.
    AnsiString Sklad;         ///< The warehouse as shown.
    AnsiString Dodavatel;     ///< The supplier as shown; empty for none.
    TDateTime Moment{};       ///< For which suppliers' price lists are taken.
};

/// The choices of the list columns. Columns point to them, so that they keep their address for the editor's life.
struct DodObjLists {
    std::vector<AnsiString> Warehouses;
    std::vector<AnsiString> Suppliers;
};

/// What must be known of a supplier order's editor before its form can be built.
struct DodObjOpening : DocumentOpening {
    DodObjDocument Document;
    std::unique_ptr<DodObjLists> Lists;
};

/// Checks the source kind, then asks the database for the user and the lists. Throws EDodObjEditBox for a source that
/// is not exactly one of c_DodObjEditType, before the database is asked; EDatabaseError.
DodObjOpening OpenDodObj(const AnsiString& sourceKind, DodObjDocument document);

/// The names of all suppliers, sorted by the database.
std::vector<AnsiString> FillDodavatelList();

} // namespace melvark
