#pragma once

#include "host/FormatSettings.h"
#include "host/Identifier.h"
#include "host/Types.h"

#include <span>

/// The ways in which TSelectBox is set up, as data: what the dialog says, what it asks the database, which list it
/// opens.

/// The numbers and the moment that a set-up was called with; -1 stands for none.
struct RSourceArguments {
    int DocumentID = c_NullValue;
    int WarehouseID = c_NullValue;
    int SupplierID = c_NullValue;
    TDateTime Moment{};
};

/// One argument of a lookup condition, in the order of the template's specifiers.
enum class TConditionArgument { Document, Warehouse, Supplier, Moment };

/// Which transfer options a set-up offers. What is not offered keeps its checked state.
enum class TTransferOptions { None, QuantitiesAndPrices, QuantitiesOnlyUnchecked };

/// One set-up of the dialog.
struct RSourceSetup {
    const char* TitleKey; ///< Without the common prefix "KORDAN30\MELVARKEDITOR\".
    const char* Title;
    const char* LabelKey;
    const char* Label;
    TTransferOptions Options;
    const char* CheckProcedure;
    const char* DocumentParam; ///< First parameter of the check: the document that is being edited.
    const char* TextParam;     ///< Second: what stands in the edit.
    const char* IdParam;       ///< Third: the picked id, null for none.
    const char* HostForm;
    const char* DisplayColumn;
    const char* Condition; ///< Template of the framework's Format.
    std::span<const TConditionArgument> ConditionArguments;
};

extern const RSourceSetup c_DodakFromObjednavka;
extern const RSourceSetup c_DodakFromDodak;
extern const RSourceSetup c_DodObjFromObjednavkaVzor;
extern const RSourceSetup c_DodObjFromObjednavka;
extern const RSourceSetup c_DodObjFromDodak;
extern const RSourceSetup c_DodObjFromDodCenik;
extern const RSourceSetup c_DodObjFromDodavky;

namespace melvark {

/// The SQL condition that restricts the set-up's lookup list to the sources that its check admits. A moment is written
/// as the locale's date and time, also at midnight.
AnsiString LookupCondition(const RSourceSetup& setup, const RSourceArguments& arguments,
                           const TFormatSettings& settings);

/// The id in the key column of a picked row; -1 when the text is no integer.
int PickedId(const AnsiString& key);

} // namespace melvark
