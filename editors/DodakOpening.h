#pragma once

#include "editors/DocumentKind.h"
#include "host/Exceptions.h"
#include "host/Identifier.h"
#include "host/LiveData.h"
#include "host/Types.h"

#include <memory>
#include <vector>

/// A failure of the delivery note's editor itself: an edit type that it does not know.
class EDodakEditBox : public Exception {
public:
    using Exception::Exception;
    EDodakEditBox(const EDodakEditBox&) = default;
    EDodakEditBox& operator=(const EDodakEditBox&) = default;
    ~EDodakEditBox() override;
};

namespace melvark {

/// The choices of the list columns. Columns point to them, so that they keep their address for the editor's life.
struct DodakLists {
    std::vector<AnsiString> Warehouses;
    std::vector<AnsiString> VatRates;
};

/// What must be known of a delivery note's editor before its form can be built.
struct DodakOpening : DocumentOpening {
    int DodvID = c_NullValue; ///< The note's supplier, whose documents alone are offered as sources.
    bool LocalVat = false;
    std::unique_ptr<DodakLists> Lists;
};

/// Checks the edit type, then asks the database for the user, the local-VAT flag and the lists. Throws EDodakEditBox
/// for an edit type that is not exactly one of c_DodakEditType, before the database is asked; EDatabaseError.
DodakOpening OpenDodak(const AnsiString& editType, int dodkId, int dodvId);

/// The names of the VAT rates in the procedure's current result set, in the order returned.
std::vector<AnsiString> FillDPHList(TLiveStoredProc& initialisation);

} // namespace melvark
