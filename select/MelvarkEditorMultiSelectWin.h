#pragma once

#include "host/Identifier.h"
#include "host/Types.h"
#include "select/SelectForm.h"

#include <array>
#include <cstddef>

/// The modal dialog in which the user names up to three stock-item groups, one on each level of the group tree, by
/// typing their names or picking them from the host's lookup lists. On OK the database checks each level and then the
/// whole combination; an error leaves the focus on the line that it is about.
///
/// Call DodObjSelectSkupSkladPol after construction, show it modally, and on OK read the ids. Which combination is
/// admissible, also of empty lines, is the database's affair.
class TMultiSelectBox : public TSelectForm {
    Q_OBJECT

public:
    TMultiSelectBox(TComponent* aOwner, TLibraryManager* aLibraryManager);
    ~TMultiSelectBox() override;

    /// The id of the chosen group of the level, -1 when none. It falls back to -1 with every change of the level's
    /// text.
    int GetID1() const { return FLevels[0].ID; }
    int GetID2() const { return FLevels[1].ID; }
    int GetID3() const { return FLevels[2].ID; }

    /// For a supplier order or template: its id.
    void DodObjSelectSkupSkladPol(int aDocID);

    /// The checks and lookups that the set-up installs. A check throws EDatabaseError when the database refuses.
    void DodObjSelectSkupSkladPolCheck1();
    void DodObjSelectSkupSkladPolCheck2();
    void DodObjSelectSkupSkladPolCheck3();
    void DodObjSelectSkupSkladPolCheckAll();
    void DodObjSelectSkupSkladPolShowDlg1();
    void DodObjSelectSkupSkladPolShowDlg2();
    void DodObjSelectSkupSkladPolShowDlg3();

    void OkBtnClick(TObject* Sender) override;
    void editSelectChange(TObject* Sender) override;
    void SelectSpeedButtonClick(TObject* Sender) override;

protected:
    void FormCreate();

private:
    using TOperation = void (TMultiSelectBox::*)();

    struct TLevel {
        TSelectLine Line;
        int ID = c_NullValue;
        TOperation Check = nullptr;
        TOperation ShowDlg = nullptr;
    };

    void CreateControls();
    /// The level that the sender serves; null for anything else.
    TLevel* LevelOf(const TObject* sender);
    void Check(std::size_t level);
    void ShowDlg(std::size_t level);
    void Run(TOperation operation);

    int FDocumentID = c_NullValue;
    TOperation FCheckAll = nullptr;
    std::array<TLevel, 3> FLevels;
};
