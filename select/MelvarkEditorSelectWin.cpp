#include "select/MelvarkEditorSelectWin.h"

#include "host/HostServices.h"
#include "host/Identifier.h"
#include "host/LangStr.h"
#include "host/LibraryManager.h"
#include "host/LiveData.h"
#include "host/widgets/ButtonGlyphs.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/Fonts.h"
#include "host/widgets/Guard.h"
#include "host/widgets/Text.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

constexpr int c_MinimumWidth = 400;
constexpr int c_Height = 150;

AnsiString EditorText(const char* key, const char* fallback) {
    return LangStr(AnsiString(c_ModuleKeyPrefix) + key, {}, fallback);
}

} // namespace

ESelectBox::~ESelectBox() = default;

TSelectBox::TSelectBox(TComponent* aOwner, TLibraryManager* aLibraryManager)
    : TForm(aOwner), FLibraryManager(aLibraryManager) {
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
    setFont(melvark::FormFont());
    SetCaption("Výběr");
    SetPosition(TPosition::poScreenCenter);
    SetConstraints({.MinWidth = c_MinimumWidth, .MinHeight = c_Height, .MaxWidth = 0, .MaxHeight = c_Height});

    auto* const layout = new QHBoxLayout(this);
    layout->addLayout(CreateMainPanel(), 1);
    layout->addLayout(CreateButtonPanel());
    resize(c_MinimumWidth, c_Height);
    editSelect->setFocus();
}

QLayout* TSelectBox::CreateMainPanel() {
    lblSelect = new TLabel(QStringLiteral("lblSelect"), this);
    lblSelect->setObjectName(QStringLiteral("lblSelect"));
    editSelect = new TEdit(this);
    editSelect->setObjectName(QStringLiteral("editSelect"));
    editSelect->installEventFilter(this);
    melvark::ConnectGuarded(editSelect, &QLineEdit::textChanged, this, [this] { editSelectChange(editSelect); });
    lblSelect->setBuddy(editSelect);

    SelectSpeedButton = new TQelPngSpeedButton(this);
    SelectSpeedButton->setObjectName(QStringLiteral("SelectSpeedButton"));
    SelectSpeedButton->setToolTip(QStringLiteral("Vybrat ze seznamu (F5)"));
    SelectSpeedButton->SetOnClick([this](TObject* sender) { SelectSpeedButtonClick(sender); });

    lblPrenest = new TLabel(QStringLiteral("Přenést:"), this);
    lblPrenest->setObjectName(QStringLiteral("lblPrenest"));
    chbMnozstvi = new TCheckBox(QStringLiteral("množství"), this);
    chbMnozstvi->setObjectName(QStringLiteral("chbMnozstvi"));
    chbMnozstvi->setChecked(true);
    chbCeny = new TCheckBox(QStringLiteral("ceny"), this);
    chbCeny->setObjectName(QStringLiteral("chbCeny"));
    chbCeny->setChecked(true);

    auto* const line = new QHBoxLayout;
    line->addWidget(editSelect, 1);
    line->addWidget(SelectSpeedButton);
    auto* const options = new QHBoxLayout;
    options->addWidget(lblPrenest);
    options->addWidget(chbMnozstvi);
    options->addWidget(chbCeny);
    options->addStretch(1);
    auto* const panel = new QVBoxLayout;
    panel->addWidget(lblSelect);
    panel->addLayout(line);
    panel->addLayout(options);
    panel->addStretch(1);
    return panel;
}

QLayout* TSelectBox::CreateButtonPanel() {
    OkBtn = new TQelPngBitBtn(this);
    OkBtn->setObjectName(QStringLiteral("OkBtn"));
    OkBtn->SetCaption("&OK");
    OkBtn->SetDefault(true);
    OkBtn->SetModalResult(c_ResultOk);
    OkBtn->SetOnClick([this](TObject* sender) { OkBtnClick(sender); });
    CancelBtn = new TQelPngBitBtn(this);
    CancelBtn->setObjectName(QStringLiteral("CancelBtn"));
    CancelBtn->SetCaption("&Zrušit");
    CancelBtn->SetModalResult(c_ResultCancel);

    auto* const panel = new QVBoxLayout;
    panel->addWidget(OkBtn);
    panel->addWidget(CancelBtn);
    panel->addStretch(1);
    return panel;
}

void TSelectBox::FormCreate() {
    FID = c_NullValue;
    editSelect->clear();
    Localize(FLibraryManager, R"(KORDAN30\MelvarkEditorSelectWin)");
    melvark::NameAfterHint(*SelectSpeedButton);
}

void TSelectBox::FormShow() {
    melvark::LoadGlyph(*SelectSpeedButton, "RUKA");
    melvark::LoadGlyph(*OkBtn, "OK");
    melvark::LoadGlyph(*CancelBtn, "CANCEL");
}

void TSelectBox::SetUp(const RSourceSetup& setup, const RSourceArguments& arguments, TOperation check,
                       TOperation showDlg) {
    FArguments = arguments;
    SetCaption(EditorText(setup.TitleKey, setup.Title));
    lblSelect->setText(melvark::ToQString(EditorText(setup.LabelKey, setup.Label)));
    editSelect->setAccessibleName(lblSelect->text());
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
    procedure.ParamByName(setup.TextParam).SetAsString(melvark::ToAnsi(editSelect->text()));
    melvark::SetIdentifier(procedure.ParamByName(setup.IdParam), FID);
    procedure.Exec(true);
    FID = procedure.FieldByName("ID").AsInteger();
}

void TSelectBox::ShowDlg(const RSourceSetup& setup) {
    const AnsiString condition = melvark::LookupCondition(setup, FArguments, CurrentHost().FormatSettings());
    const auto pick = FLibraryManager->LookupList(setup.HostForm, setup.DisplayColumn, "_ID", condition);
    if (!pick) {
        return;
    }
    // The change of the text takes the id back to none, so the id is set after it.
    editSelect->setText(melvark::ToQString(pick->Display));
    FID = melvark::PickedId(pick->Key);
}

void TSelectBox::OkBtnClick(TObject*) {
    SetModalResult(0);
    if (editSelect->isEnabled()) {
        editSelect->setFocus();
    }
    if (FCheck != nullptr) {
        (this->*FCheck)();
    }
    SetModalResult(c_ResultOk);
}

void TSelectBox::editSelectChange(TObject*) {
    FID = c_NullValue;
}

bool TSelectBox::editSelectKeyDown(TObject* Sender, const QKeyEvent& key) {
    if (key.key() == Qt::Key_F5) {
        SelectSpeedButtonClick(Sender);
        return true;
    }
    if (key.key() == Qt::Key_Escape) {
        SetModalResult(c_ResultCancel);
        return true;
    }
    return false;
}

void TSelectBox::SelectSpeedButtonClick(TObject*) {
    if (FLibraryManager != nullptr && FShowDlg != nullptr) {
        (this->*FShowDlg)();
    }
}

bool TSelectBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched != editSelect || event->type() != QEvent::KeyPress) {
        return TForm::eventFilter(watched, event);
    }
    bool isHandled = false;
    const bool isDone =
        melvark::Guarded([&] { isHandled = editSelectKeyDown(watched, *static_cast<QKeyEvent*>(event)); });
    return isHandled || !isDone;
}

void TSelectBox::DodakSelectFromObjednavka(int aDocID, int aDodvID) {
    SetUp(c_DodakFromObjednavka, {.DocumentID = aDocID, .WarehouseID = -1, .SupplierID = aDodvID, .Moment = {}},
          &TSelectBox::DodakSelectFromObjednavkaCheck, &TSelectBox::DodakSelectFromObjednavkaShowDlg);
}

void TSelectBox::DodakSelectFromDodak(int aDocID, int aDodvID) {
    SetUp(c_DodakFromDodak, {.DocumentID = aDocID, .WarehouseID = -1, .SupplierID = aDodvID, .Moment = {}},
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
    SetUp(c_DodObjFromDodCenik, {.DocumentID = aDocID, .WarehouseID = -1, .SupplierID = -1, .Moment = aDate},
          &TSelectBox::DodObjSelectFromDodCenikCheck, &TSelectBox::DodObjSelectFromDodCenikShowDlg);
}

void TSelectBox::DodObjSelectFromDodavky(int aDocID, const AnsiString& aDodavatel, TDateTime aDate) {
    SetUp(c_DodObjFromDodavky, {.DocumentID = aDocID, .WarehouseID = -1, .SupplierID = -1, .Moment = aDate},
          &TSelectBox::DodObjSelectFromDodavkyCheck, &TSelectBox::DodObjSelectFromDodavkyShowDlg);
    editSelect->setText(melvark::ToQString(aDodavatel));
    editSelect->setEnabled(aDodavatel.empty());
    SelectSpeedButton->setEnabled(aDodavatel.empty());
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
