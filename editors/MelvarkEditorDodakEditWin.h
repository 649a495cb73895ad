#pragma once

#include "editors/DocumentEditBox.h"
#include "host/Exceptions.h"
#include "host/Identifier.h"

/// A failure of the delivery note's editor itself: an edit type that it does not know.
class EDodakEditBox : public Exception {
public:
    using Exception::Exception;
    EDodakEditBox(const EDodakEditBox&) = default;
    EDodakEditBox& operator=(const EDodakEditBox&) = default;
    ~EDodakEditBox() override;
};

/// The editor of a delivery note's lines: the base editor with the delivery note's columns, filled from a source that
/// the user names, each changed price recalculated by the database, saved through the row store.
///
/// Constructed for one delivery note, shown modally once by its workflow, and freed. It refreshes no screen. What the
/// rules are stands beside it: DodakTables, DodakPrices.
class TDodakEditBox : public TDocumentEditBox {
    Q_OBJECT

public:
    /// `aEditType` is one of c_DodakEditType, `aID` the delivery note, `aDodvID` its supplier. Throws EDodakEditBox for
    /// any other edit type, EEditBoxCanceled when the user cancels the source or the master check answers no, and
    /// EDatabaseError.
    TDodakEditBox(TComponent* aOwner, TLibraryManager* aLibraryManager, const AnsiString& aEditType, int aID,
                  int aDodvID);
    ~TDodakEditBox() override;

    /// Has the database recalculate the row of the changed cell (grid coordinates); always true. Throws EConvertError
    /// for a cell that is no number and EDatabaseError, either before anything in the row has changed.
    bool PrepocetCen(int aCol, int aRow, const AnsiString& aValue);
    /// Whether the value is a discount; shows why it is not. Throws EConvertError for a text that is no number.
    bool KontrolaSlevy(int aCol, int aRow, const AnsiString& aValue);
    /// Stores all rows; false when the database reports failure. Throws EDatabaseError.
    bool SaveData();

private:
    bool CheckMasterDodak(int aDodkID) const { return CheckDocument(aDodkID); }

    /// An unknown fill mode leaves one empty row.
    void FillGrid(int aFillMode);
    void AskForOrder();
    void AskForDeliveryNote();
    void FillGridFromObjednavka();
    void FillGridFromDodak(bool aPrenesMnozstvi, bool aPrenesCeny);
    void FillGridFromSablona(bool aPrenesMnozstvi, bool aPrenesCeny);
    void FillFromChosenDeliveryNote() { FillGridFromDodak(FChosen.Note.WithQuantities, FChosen.Note.WithPrices); }
    void FillFromTemplate() { FillGridFromSablona(true, true); }

    const int FDodvID; ///< The note's supplier, whose documents alone are offered as sources.
    /// The sources, once one was chosen.
    struct {
        int OrderID = c_NullValue;
        melvark::SourceChoice Note; ///< The delivery note and what is wanted of it.
    } FChosen;
};
