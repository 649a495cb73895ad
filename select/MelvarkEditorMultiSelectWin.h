#pragma once

#include "host/Types.h"
#include "select/SelectForm.h"

#include <cstddef>
#include <functional>

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
    int GetID1() const { return Line(0).ID; }
    int GetID2() const { return Line(1).ID; }
    int GetID3() const { return Line(2).ID; }

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

protected:
    void FormCreate();
    void CheckTogether() override;

private:
    void CreateControls();
    void Check(std::size_t level);
    void ShowDlg(std::size_t level);

    int FDocumentID = c_NullValue;
    std::function<void()> FCheckAll;
};
