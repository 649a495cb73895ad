#pragma once

#include "editors/DocumentEditBox.h"
#include "host/Exceptions.h"
#include "host/Identifier.h"
#include "host/Types.h"

#include <array>

/// A failure of the supplier order's editor itself: a source that it does not know.
class EDodObjEditBox : public Exception {
public:
    using Exception::Exception;
    EDodObjEditBox(const EDodObjEditBox&) = default;
    EDodObjEditBox& operator=(const EDodObjEditBox&) = default;
    ~EDodObjEditBox() override;
};

namespace melvark {

/// What a screen shows of the supplier order or order template that is edited.
struct DodObjDocument {
    int SkldID = c_NullValue; ///< Its warehouse.
    int DodvID = c_NullValue; ///< Its supplier; 0 or below for none.
    AnsiString Sklad;         ///< The warehouse as shown.
    AnsiString Dodavatel;     ///< The supplier as shown; empty for none.
    TDateTime Moment{};       ///< For which suppliers' price lists are taken.
};

} // namespace melvark

/// The editor of the lines of a supplier order or of an order template: the base editor with the order's columns,
/// filled from one of seven sources, with quantities in main and secondary units, saved through the row store.
///
/// Constructed for one document, shown modally once by its workflow, and freed. It refreshes no screen. What the rules
/// are stands beside it: DodObjTables.
class TDodObjEditBox : public TDocumentEditBox {
    Q_OBJECT

public:
    /// `aIsTemplate` tells the document's kind, `aSourceKind` is one of c_DodObjEditType, `aID` the document, `aSkldID`
    /// and `aSklad` its warehouse, `aDodvID` (0 or below for none) and `aDodavatel` its supplier, `aMoment` the one for
    /// which suppliers' price lists are taken. Throws EDodObjEditBox for any other source, EEditBoxCanceled when the
    /// user cancels the source or the master check answers no, and EDatabaseError.
    TDodObjEditBox(TComponent* aOwner, TLibraryManager* aLibraryManager, bool aIsTemplate,
                   const AnsiString& aSourceKind, int aID, int aSkldID, int aDodvID, const AnsiString& aSklad,
                   const AnsiString& aDodavatel, TDateTime aMoment);
    ~TDodObjEditBox() override;

    /// Whether the cell (grid coordinates) takes a value: a quantity does only where the item has its unit.
    bool IsEditable(int aCol, int aRow) const;
    const melvark::DodObjDocument& Document() const { return FDocument; }
    /// Stores all rows; false when the database reports failure. Throws EDatabaseError.
    bool SaveData();

private:
    bool CheckMaster() const { return CheckDocument(DocumentID()); }

    /// `aDodvID` is the document's supplier, whose price list is taken without a question; 0 or below for nobody. An
    /// unknown source leaves one empty row.
    void FillGrid(int aSourceKind, int aDodvID);
    /// The id of the chosen document; `setUp` gets the edited document, its warehouse and its supplier.
    int AskForDocument(void (TSelectBox::*setUp)(int, int, int));
    void AskForOrder();
    void AskForTemplate();
    void AskForDeliveryNote();
    void AskForGroups();
    void AskForPriceList();
    void AskForDeliveries();
    void FillGridFromObjednavka(int aOrderID);
    void FillGridFromSablona();
    void FillGridFromDodak(int aDeliveryNoteID);
    void FillGridFromSkupSkladPol(int aGroup1ID, int aGroup2ID, int aGroup3ID);
    void FillGridFromDodCenik(int aSupplierID);
    void FillGridFromDodavky(int aSupplierID, bool aPrenesMnozstvi);
    void FillFromChosenOrder() { FillGridFromObjednavka(FChosen.OrderID); }
    void FillFromChosenTemplate() { FillGridFromObjednavka(FChosen.TemplateID); }
    void FillFromChosenDeliveryNote() { FillGridFromDodak(FChosen.DeliveryNoteID); }
    void FillFromChosenGroups() {
        FillGridFromSkupSkladPol(FChosen.GroupIDs[0], FChosen.GroupIDs[1], FChosen.GroupIDs[2]);
    }
    void FillFromChosenPriceList() { FillGridFromDodCenik(FChosen.Supplier.ID); }
    void FillFromChosenDeliveries() { FillGridFromDodavky(FChosen.Supplier.ID, FChosen.Supplier.WithQuantities); }

    const melvark::DodObjDocument FDocument;
    /// The sources, once one was chosen; the document's own supplier is from the start.
    struct {
        int OrderID = c_NullValue;
        int TemplateID = c_NullValue;
        int DeliveryNoteID = c_NullValue;
        std::array<int, 3> GroupIDs{c_NullValue, c_NullValue, c_NullValue}; ///< Of the levels; not each need be named.
        melvark::SourceChoice Supplier;                                     ///< Whose price list or deliveries.
    } FChosen;
};
