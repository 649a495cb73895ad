#include "select/MelvarkEditorSelectWin.h"

#include "host/HostServices.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/Text.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <functional>

namespace {

constexpr int c_MinimumWidth = 400;
constexpr int c_Height = 150;

} // namespace

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
    QWidget* const panel = CreateLine(QString()).Edit->parentWidget();
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
    Line(0).Edit->setFocus();
}

void TSelectBox::FormCreate() {
    Line(0).Edit->clear();
    LocalizeLines(R"(KORDAN30\MelvarkEditorSelectWin)");
}

void TSelectBox::SetUp(const RSourceSetup& setup, const RSourceArguments& arguments, TOperation check,
                       TOperation showDlg) {
    FArguments = arguments;
    SetCaption(EditorText(setup.TitleKey, setup.Title));
    SetLabel(Line(0), EditorText(setup.LabelKey, setup.Label));
    const bool offersOptions = setup.Options != TTransferOptions::None;
    lblPrenest->setVisible(offersOptions);
    chbMnozstvi->setVisible(offersOptions);
    chbCeny->setVisible(setup.Options == TTransferOptions::QuantitiesAndPrices);
    if (setup.Options == TTransferOptions::QuantitiesOnlyUnchecked) {
        chbMnozstvi->setChecked(false);
    }
    Line(0).Check = std::bind_front(check, this);
    Line(0).ShowDlg = std::bind_front(showDlg, this);
}

void TSelectBox::Check(const RSourceSetup& setup) {
    const TField answer = AskDatabase(Line(0),
                                      {.Procedure = setup.CheckProcedure,
                                       .DocumentParam = setup.DocumentParam,
                                       .TextParam = setup.TextParam,
                                       .IdParam = setup.IdParam},
                                      FArguments.DocumentID);
    if (answer.IsNull()) {
        throw NotConfirmed();
    }
    Line(0).ID = answer.AsInteger();
}

void TSelectBox::ShowDlg(const RSourceSetup& setup) {
    PickFromList(Line(0), setup.HostForm, setup.DisplayColumn,
                 melvark::LookupCondition(setup, FArguments, CurrentHost().FormatSettings()));
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
    Line(0).Edit->setText(melvark::ToQString(aDodavatel));
    Line(0).Edit->setEnabled(aDodavatel.empty());
    Line(0).Button->setEnabled(aDodavatel.empty());
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
