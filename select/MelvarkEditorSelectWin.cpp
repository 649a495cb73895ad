#include "select/MelvarkEditorSelectWin.h"

#include "host/HostServices.h"
#include "host/Identifier.h"
#include "host/LiveData.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/Text.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

constexpr int c_MinimumWidth = 400;
constexpr int c_Height = 150;

} // namespace

ESelectBox::~ESelectBox() = default;

TSelectBox::TSelectBox(TComponent* aOwner, TLibraryManager* aLibraryManager) : TSelectForm(aOwner, aLibraryManager) {
    CreateControls();
    FormCreate();
    Constructed();
}

TSelectBox::~TSelectBox() = default;

bool TSelectBox::GetPrenesMnozstvi() const {
    return chbMnozstvi->isChecked();
}

bool TSelectBox::GetPrenesCeny() const {
    return chbCeny->isChecked();
}

void TSelectBox::CreateControls() {
    setObjectName(QStringLiteral("SelectBox"));
    SetCaption("Výběr");
    CreatePanels(c_MinimumWidth, c_Height);
    FLine = CreateLine(QString(), 1);

    QWidget* const panel = FLine.Edit->parentWidget();
    lblPrenest = new TLabel(QStringLiteral("Přenést:"), panel);
    lblPrenest->setObjectName(QStringLiteral("lblPrenest"));
    chbMnozstvi = new TCheckBox(QStringLiteral("množství"), panel);
    chbMnozstvi->setObjectName(QStringLiteral("chbMnozstvi"));
    chbMnozstvi->setChecked(true);
    chbCeny = new TCheckBox(QStringLiteral("ceny"), panel);
    chbCeny->setObjectName(QStringLiteral("chbCeny"));
    chbCeny->setChecked(true);
    auto* const options = new QHBoxLayout;
    options->addWidget(lblPrenest);
    options->addWidget(chbMnozstvi);
    options->addWidget(chbCeny);
    options->addStretch(1);
    MainColumn().addLayout(options);

    CreateButtons();
    FLine.Edit->setFocus();
}

void TSelectBox::FormCreate() {
    FID = c_NullValue;
    FLine.Edit->clear();
    LocalizeLines(R"(KORDAN30\MelvarkEditorSelectWin)");
}

void TSelectBox::SetUp(const RSourceSetup& setup, const RSourceArguments& arguments, TOperation check,
                       TOperation showDlg) {
    FArguments = arguments;
    SetCaption(EditorText(setup.TitleKey, setup.Title));
    SetLabel(FLine, EditorText(setup.LabelKey, setup.Label));
    const bool offersOptions = setup.Options != TTransferOptions::None;
    lblPrenest->setVisible(offersOptions);
    chbMnozstvi->setVisible(offersOptions);
    chbCeny->setVisible(setup.Options == TTransferOptions::QuantitiesAndPrices);
    if (setup.Options == TTransferOptions::QuantitiesOnlyUnchecked) {
        chbMnozstvi->setChecked(false);
    }
    FCheck = check;
    FShowDlg = showDlg;
}

void TSelectBox::Check(const RSourceSetup& setup) {
    TLiveStoredProc procedure(setup.CheckProcedure);
    procedure.ParamByName(setup.DocumentParam).SetAsInteger(FArguments.DocumentID);
    procedure.ParamByName(setup.TextParam).SetAsString(melvark::ToAnsi(FLine.Edit->text()));
    melvark::SetIdentifier(procedure.ParamByName(setup.IdParam), FID);
    procedure.Exec(true);
    const TField answer = procedure.FieldByName("ID");
    if (answer.IsNull()) {
        throw ESelectBox(EditorText("SOURCENOTCONFIRMED", "Databáze zdroj nepotvrdila. Zadejte jiný zdroj."));
    }
    FID = answer.AsInteger();
}

void TSelectBox::ShowDlg(const RSourceSetup& setup) {
    PickFromList(FLine, FID, setup.HostForm, setup.DisplayColumn,
                 melvark::LookupCondition(setup, FArguments, CurrentHost().FormatSettings()));
}

void TSelectBox::OkBtnClick(TObject*) {
    SetModalResult(0);
    if (FLine.Edit->isEnabled()) {
        FLine.Edit->setFocus();
    }
    if (FCheck != nullptr) {
        (this->*FCheck)();
    }
    SetModalResult(c_ResultOk);
}

void TSelectBox::editSelectChange(TObject*) {
    FID = c_NullValue;
}

void TSelectBox::SelectSpeedButtonClick(TObject*) {
    if (LibraryManager() != nullptr && FShowDlg != nullptr) {
        (this->*FShowDlg)();
    }
}

void TSelectBox::DodakSelectFromObjednavka(int aDocID, int aDodvID) {
    SetUp(c_DodakFromObjednavka,
          {.DocumentID = aDocID, .WarehouseID = c_NullValue, .SupplierID = aDodvID, .Moment = {}},
          &TSelectBox::DodakSelectFromObjednavkaCheck, &TSelectBox::DodakSelectFromObjednavkaShowDlg);
}

void TSelectBox::DodakSelectFromDodak(int aDocID, int aDodvID) {
    SetUp(c_DodakFromDodak, {.DocumentID = aDocID, .WarehouseID = c_NullValue, .SupplierID = aDodvID, .Moment = {}},
          &TSelectBox::DodakSelectFromDodakCheck, &TSelectBox::DodakSelectFromDodakShowDlg);
}

void TSelectBox::DodObjSelectFromObjednavkaVzor(int aDocID, int aSkldID, int aDodvID) {
    SetUp(c_DodObjFromObjednavkaVzor,
          {.DocumentID = aDocID, .WarehouseID = aSkldID, .SupplierID = aDodvID, .Moment = {}},
          &TSelectBox::DodObjSelectFromObjednavkaVzorCheck, &TSelectBox::DodObjSelectFromObjednavkaVzorShowDlg);
}

void TSelectBox::DodObjSelectFromObjednavka(int aDocID, int aSkldID, int aDodvID) {
    SetUp(c_DodObjFromObjednavka, {.DocumentID = aDocID, .WarehouseID = aSkldID, .SupplierID = aDodvID, .Moment = {}},
          &TSelectBox::DodObjSelectFromObjednavkaCheck, &TSelectBox::DodObjSelectFromObjednavkaShowDlg);
}

void TSelectBox::DodObjSelectFromDodak(int aDocID, int aSkldID, int aDodvID) {
    SetUp(c_DodObjFromDodak, {.DocumentID = aDocID, .WarehouseID = aSkldID, .SupplierID = aDodvID, .Moment = {}},
          &TSelectBox::DodObjSelectFromDodakCheck, &TSelectBox::DodObjSelectFromDodakShowDlg);
}

void TSelectBox::DodObjSelectFromDodCenik(int aDocID, TDateTime aDate) {
    SetUp(c_DodObjFromDodCenik,
          {.DocumentID = aDocID, .WarehouseID = c_NullValue, .SupplierID = c_NullValue, .Moment = aDate},
          &TSelectBox::DodObjSelectFromDodCenikCheck, &TSelectBox::DodObjSelectFromDodCenikShowDlg);
}

void TSelectBox::DodObjSelectFromDodavky(int aDocID, const AnsiString& aDodavatel, TDateTime aDate) {
    SetUp(c_DodObjFromDodavky,
          {.DocumentID = aDocID, .WarehouseID = c_NullValue, .SupplierID = c_NullValue, .Moment = aDate},
          &TSelectBox::DodObjSelectFromDodavkyCheck, &TSelectBox::DodObjSelectFromDodavkyShowDlg);
    FLine.Edit->setText(melvark::ToQString(aDodavatel));
    FLine.Edit->setEnabled(aDodavatel.empty());
    FLine.Button->setEnabled(aDodavatel.empty());
}

void TSelectBox::DodakSelectFromObjednavkaCheck() {
    Check(c_DodakFromObjednavka);
}
void TSelectBox::DodakSelectFromObjednavkaShowDlg() {
    ShowDlg(c_DodakFromObjednavka);
}
void TSelectBox::DodakSelectFromDodakCheck() {
    Check(c_DodakFromDodak);
}
void TSelectBox::DodakSelectFromDodakShowDlg() {
    ShowDlg(c_DodakFromDodak);
}
void TSelectBox::DodObjSelectFromObjednavkaVzorCheck() {
    Check(c_DodObjFromObjednavkaVzor);
}
void TSelectBox::DodObjSelectFromObjednavkaVzorShowDlg() {
    ShowDlg(c_DodObjFromObjednavkaVzor);
}
void TSelectBox::DodObjSelectFromObjednavkaCheck() {
    Check(c_DodObjFromObjednavka);
}
void TSelectBox::DodObjSelectFromObjednavkaShowDlg() {
    ShowDlg(c_DodObjFromObjednavka);
}
void TSelectBox::DodObjSelectFromDodakCheck() {
    Check(c_DodObjFromDodak);
}
void TSelectBox::DodObjSelectFromDodakShowDlg() {
    ShowDlg(c_DodObjFromDodak);
}
void TSelectBox::DodObjSelectFromDodCenikCheck() {
    Check(c_DodObjFromDodCenik);
}
void TSelectBox::DodObjSelectFromDodCenikShowDlg() {
    ShowDlg(c_DodObjFromDodCenik);
}
void TSelectBox::DodObjSelectFromDodavkyCheck() {
    Check(c_DodObjFromDodavky);
}
void TSelectBox::DodObjSelectFromDodavkyShowDlg() {
    ShowDlg(c_DodObjFromDodavky);
}
