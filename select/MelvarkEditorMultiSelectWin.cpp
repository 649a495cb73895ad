#include "select/MelvarkEditorMultiSelectWin.h"

#include "host/Identifier.h"
#include "host/LiveData.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include <array>
#include <functional>

namespace {

constexpr int c_MinimumWidth = 400;
constexpr int c_Height = 170;
constexpr int c_LineSpacing = 3;
constexpr const char* c_DocumentParam = "a_DDOBIDMASTER";

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
    for (std::size_t level = 0; level < LineCount(); ++level) {
        Line(level).Edit->clear();
    }
    Constructed();
}

TMultiSelectBox::~TMultiSelectBox() = default;

void TMultiSelectBox::CreateControls() {
    setObjectName(QStringLiteral("MultiSelectBox"));
    SetCaption("Multi výběr");
    CreatePanels(c_MinimumWidth, c_Height);
    MainColumn().setSpacing(c_LineSpacing);
    for (std::size_t level = 1; level <= c_Groups.size(); ++level) {
        CreateLine(QString::number(level));
    }
    CreateButtons();
    Line(0).Edit->setFocus();
}

void TMultiSelectBox::FormCreate() {
    LocalizeLines(R"(KORDAN30\MelvarkEditorMultiSelectWin)");
}

// The title's language key is that of the order templates' selection, on purpose.
void TMultiSelectBox::DodObjSelectSkupSkladPol(int aDocID) {
    FDocumentID = aDocID;
    SetCaption(EditorText("ORDERPATTERNSELECTION", "Výběr skupin skladových položek"));
    struct TOperations {
        void (TMultiSelectBox::*Check)();
        void (TMultiSelectBox::*ShowDlg)();
    };
    static constexpr std::array<TOperations, c_Groups.size()> c_Operations{{
        {&TMultiSelectBox::DodObjSelectSkupSkladPolCheck1, &TMultiSelectBox::DodObjSelectSkupSkladPolShowDlg1},
        {&TMultiSelectBox::DodObjSelectSkupSkladPolCheck2, &TMultiSelectBox::DodObjSelectSkupSkladPolShowDlg2},
        {&TMultiSelectBox::DodObjSelectSkupSkladPolCheck3, &TMultiSelectBox::DodObjSelectSkupSkladPolShowDlg3},
    }};
    FCheckAll = std::bind_front(&TMultiSelectBox::DodObjSelectSkupSkladPolCheckAll, this);
    for (std::size_t level = 0; level < c_Groups.size(); ++level) {
        SetLabel(Line(level), EditorText(c_Groups[level].LabelKey, c_Groups[level].Label));
        Line(level).Check = std::bind_front(c_Operations[level].Check, this);
        Line(level).ShowDlg = std::bind_front(c_Operations[level].ShowDlg, this);
    }
}

// An empty level is answered by a null and stays without a group.
void TMultiSelectBox::Check(std::size_t level) {
    const TSelectCheck check{.Procedure = c_Groups.at(level).CheckProcedure,
                             .DocumentParam = c_DocumentParam,
                             .TextParam = "a_NAZEV",
                             .IdParam = c_Groups.at(level).IdParam};
    if (const TField answer = AskDatabase(Line(level), check, FDocumentID); !answer.IsNull()) {
        Line(level).ID = answer.AsInteger();
    }
}

void TMultiSelectBox::DodObjSelectSkupSkladPolCheckAll() {
    TLiveStoredProc procedure("MELVARKEDITORDodObjCheckSkupSkladPol");
    procedure.ParamByName(c_DocumentParam).SetAsInteger(FDocumentID);
    for (std::size_t level = 0; level < c_Groups.size(); ++level) {
        melvark::SetIdentifier(procedure.ParamByName(c_Groups[level].IdParam), Line(level).ID);
    }
    if (!procedure.Exec(false)) {
        throw NotConfirmed();
    }
}

void TMultiSelectBox::ShowDlg(std::size_t level) {
    PickFromList(Line(level), c_Groups.at(level).HostForm, "NAZEV", {});
}

void TMultiSelectBox::CheckTogether() {
    Line(0).Edit->setFocus();
    Run(FCheckAll);
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
