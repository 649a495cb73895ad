#include "select/MelvarkEditorMultiSelectWin.h"

#include "host/Identifier.h"
#include "host/LiveData.h"
#include "host/widgets/Text.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include <functional>

namespace {

constexpr int c_MinimumWidth = 400;
constexpr int c_Height = 170;
constexpr int c_LineSpacing = 3;

/// What differs between the levels.
struct TGroupLevel {
    const char* LabelKey; ///< Without the common prefix.
    const char* Label;
    const char* CheckProcedure;
    const char* IdParam;
    const char* HostForm;
};

constexpr std::array c_Groups{
    TGroupLevel{"SKUPSKLADPOL1", "Skupina skladových položek 1:", "MELVARKEDITORDodObjCheckSkupSkladPol1", "a_SSP1ID",
                "Kordan3:SKUPSPOL.SKUPSPOL1"},
    TGroupLevel{"SKUPSKLADPOL2", "Skupina skladových položek 2:", "MELVARKEDITORDodObjCheckSkupSkladPol2", "a_SSP2ID",
                "Kordan3:SKUPSPOL.SKUPSPOL2"},
    TGroupLevel{"SKUPSKLADPOL3", "Skupina skladových položek 3:", "MELVARKEDITORDodObjCheckSkupSkladPol3", "a_SSP3ID",
                "Kordan3:SKUPSPOL.SKUPSPOL3"},
};

} // namespace

TMultiSelectBox::TMultiSelectBox(TComponent* aOwner, TLibraryManager* aLibraryManager)
    : TSelectForm(aOwner, aLibraryManager) {
    CreateControls();
    FormCreate();
    for (const TLevel& level : FLevels) {
        level.Line.Edit->clear();
    }
    Constructed();
}

TMultiSelectBox::~TMultiSelectBox() = default;

void TMultiSelectBox::CreateControls() {
    setObjectName(QStringLiteral("MultiSelectBox"));
    SetCaption("Multi výběr");
    CreatePanels(c_MinimumWidth, c_Height);
    MainColumn().setSpacing(c_LineSpacing);
    for (std::size_t level = 0; level < FLevels.size(); ++level) {
        const int tag = static_cast<int>(level) + 1;
        FLevels[level].Line = CreateLine(QString::number(tag), tag);
    }
    CreateButtons();
    FLevels.front().Line.Edit->setFocus();
}

void TMultiSelectBox::FormCreate() {
    LocalizeLines(R"(KORDAN30\MelvarkEditorMultiSelectWin)");
}

// The title's language key is that of the order templates' selection, on purpose.
void TMultiSelectBox::DodObjSelectSkupSkladPol(int aDocID) {
    FDocumentID = aDocID;
    SetCaption(EditorText("ORDERPATTERNSELECTION", "Výběr skupin skladových položek"));
    for (std::size_t level = 0; level < FLevels.size(); ++level) {
        SetLabel(FLevels[level].Line, EditorText(c_Groups[level].LabelKey, c_Groups[level].Label));
    }
    FCheckAll = &TMultiSelectBox::DodObjSelectSkupSkladPolCheckAll;
    FLevels[0].Check = &TMultiSelectBox::DodObjSelectSkupSkladPolCheck1;
    FLevels[1].Check = &TMultiSelectBox::DodObjSelectSkupSkladPolCheck2;
    FLevels[2].Check = &TMultiSelectBox::DodObjSelectSkupSkladPolCheck3;
    FLevels[0].ShowDlg = &TMultiSelectBox::DodObjSelectSkupSkladPolShowDlg1;
    FLevels[1].ShowDlg = &TMultiSelectBox::DodObjSelectSkupSkladPolShowDlg2;
    FLevels[2].ShowDlg = &TMultiSelectBox::DodObjSelectSkupSkladPolShowDlg3;
}

TMultiSelectBox::TLevel* TMultiSelectBox::LevelOf(const TObject* sender) {
    const int tag = TagOf(sender);
    return tag > 0 ? &FLevels.at(static_cast<std::size_t>(tag) - 1) : nullptr;
}

// An empty level is answered by a null and stays without a group.
void TMultiSelectBox::Check(std::size_t level) {
    TLevel& chosen = FLevels.at(level);
    TLiveStoredProc procedure(c_Groups.at(level).CheckProcedure);
    procedure.ParamByName("a_DDOBIDMASTER").SetAsInteger(FDocumentID);
    procedure.ParamByName("a_NAZEV").SetAsString(melvark::ToAnsi(chosen.Line.Edit->text()));
    melvark::SetIdentifier(procedure.ParamByName(c_Groups.at(level).IdParam), chosen.ID);
    procedure.Exec(true);
    if (const TField answer = procedure.FieldByName("ID"); !answer.IsNull()) {
        chosen.ID = answer.AsInteger();
    }
}

void TMultiSelectBox::DodObjSelectSkupSkladPolCheckAll() {
    TLiveStoredProc procedure("MELVARKEDITORDodObjCheckSkupSkladPol");
    procedure.ParamByName("a_DDOBIDMASTER").SetAsInteger(FDocumentID);
    for (std::size_t level = 0; level < FLevels.size(); ++level) {
        melvark::SetIdentifier(procedure.ParamByName(c_Groups[level].IdParam), FLevels[level].ID);
    }
    procedure.Exec(false);
}

void TMultiSelectBox::ShowDlg(std::size_t level) {
    PickFromList(FLevels.at(level).Line, FLevels.at(level).ID, c_Groups.at(level).HostForm, "NAZEV", {});
}

void TMultiSelectBox::Run(TOperation operation) {
    if (operation) {
        std::invoke(operation, this);
    }
}

void TMultiSelectBox::OkBtnClick(TObject*) {
    SetModalResult(0);
    for (const TLevel& level : FLevels) {
        level.Line.Edit->setFocus();
        Run(level.Check);
    }
    FLevels.front().Line.Edit->setFocus();
    Run(FCheckAll);
    SetModalResult(c_ResultOk);
}

void TMultiSelectBox::editSelectChange(TObject* Sender) {
    TLevel* const level = LevelOf(Sender);
    if (level && qobject_cast<TEdit*>(Sender)) {
        level->ID = c_NullValue;
    }
}

void TMultiSelectBox::SelectSpeedButtonClick(TObject* Sender) {
    const TLevel* const level = LevelOf(Sender);
    if (level && LibraryManager()) {
        Run(level->ShowDlg);
    }
}

void TMultiSelectBox::DodObjSelectSkupSkladPolCheck1() {
    Check(0);
}
void TMultiSelectBox::DodObjSelectSkupSkladPolCheck2() {
    Check(1);
}
void TMultiSelectBox::DodObjSelectSkupSkladPolCheck3() {
    Check(2);
}
void TMultiSelectBox::DodObjSelectSkupSkladPolShowDlg1() {
    ShowDlg(0);
}
void TMultiSelectBox::DodObjSelectSkupSkladPolShowDlg2() {
    ShowDlg(1);
}
void TMultiSelectBox::DodObjSelectSkupSkladPolShowDlg3() {
    ShowDlg(2);
}
