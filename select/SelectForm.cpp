#include "select/SelectForm.h"

#include "host/LangStr.h"
#include "host/LibraryManager.h"
#include "host/widgets/ButtonGlyphs.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/Fonts.h"
#include "host/widgets/Guard.h"
#include "host/widgets/Text.h"
#include "select/SourceTable.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr const char* c_TagProperty = "Tag";

TPanel* MakePanel(QWidget& form, const QString& name) {
    auto* const panel = new TPanel(&form);
    panel->setObjectName(name);
    panel->setFrameShape(TPanel::NoFrame);
    return panel;
}

QVBoxLayout* MakeColumn(TPanel& panel) {
    auto* const column = new QVBoxLayout(&panel);
    column->setContentsMargins(0, 0, 0, 0);
    return column;
}

} // namespace

ESelectBox::~ESelectBox() = default;

TSelectForm::TSelectForm(TComponent* aOwner, TLibraryManager* aLibraryManager)
    : TForm(aOwner), FLibraryManager(aLibraryManager) {
    setFont(melvark::FormFont());
    SetPosition(TPosition::poScreenCenter);
}

TSelectForm::~TSelectForm() = default;

void TSelectForm::CreatePanels(int minimumWidth, int height) {
    SetConstraints({.MinWidth = minimumWidth, .MinHeight = height, .MaxWidth = 0, .MaxHeight = height});
    MainPanel = MakePanel(*this, QStringLiteral("MainPanel"));
    ButtonPanel = MakePanel(*this, QStringLiteral("ButtonPanel"));
    FMainColumn = MakeColumn(*MainPanel);
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(MainPanel, 1);
    layout->addWidget(ButtonPanel);
    resize(minimumWidth, height);
}

TSelectLine& TSelectForm::CreateLine(const QString& suffix) {
    const QString labelName = QStringLiteral("lblSelect") + suffix;
    TSelectLine& line = FLines.emplace_back(TSelectLine{
        .Label = new TLabel(labelName, MainPanel),
        .Edit = new TEdit(MainPanel),
        .Button = new TQelPngSpeedButton(MainPanel),
    });
    line.Label->setObjectName(labelName);
    line.Label->setBuddy(line.Edit);
    line.Edit->setObjectName(QStringLiteral("editSelect") + suffix);
    line.Edit->installEventFilter(this);
    melvark::ConnectGuarded(line.Edit, &QLineEdit::textChanged, this,
                            [this, edit = line.Edit] { editSelectChange(edit); });
    line.Button->setObjectName(QStringLiteral("SelectSpeedButton") + suffix);
    line.Button->setToolTip(QStringLiteral("Vybrat ze seznamu (F5)"));
    line.Button->SetOnClick([this](TObject* sender) { SelectSpeedButtonClick(sender); });
    for (QWidget* const control : std::initializer_list<QWidget*>{line.Label, line.Edit, line.Button}) {
        control->setProperty(c_TagProperty, static_cast<int>(FLines.size()));
    }

    auto* const row = new QHBoxLayout;
    row->addWidget(line.Edit, 1);
    row->addWidget(line.Button);
    FMainColumn->addWidget(line.Label);
    FMainColumn->addLayout(row);
    return line;
}

void TSelectForm::CreateButtons() {
    OkBtn = new TQelPngBitBtn(ButtonPanel);
    OkBtn->setObjectName(QStringLiteral("OkBtn"));
    OkBtn->SetCaption("&OK");
    OkBtn->SetDefault(true);
    OkBtn->SetModalResult(c_ResultOk);
    OkBtn->SetOnClick([this](TObject* sender) { OkBtnClick(sender); });
    CancelBtn = new TQelPngBitBtn(ButtonPanel);
    CancelBtn->setObjectName(QStringLiteral("CancelBtn"));
    CancelBtn->SetCaption("&Zrušit");
    CancelBtn->SetModalResult(c_ResultCancel);

    FMainColumn->addStretch(1);
    auto* const column = MakeColumn(*ButtonPanel);
    column->addWidget(OkBtn);
    column->addWidget(CancelBtn);
    column->addStretch(1);
}

void TSelectForm::LocalizeLines(std::string_view section) {
    Localize(FLibraryManager, section);
    for (const TSelectLine& line : FLines) {
        melvark::NameAfterHint(*line.Button);
    }
}

void TSelectForm::SetLabel(const TSelectLine& line, const AnsiString& text) {
    line.Label->setText(melvark::ToQString(text));
    line.Edit->setAccessibleName(line.Label->text());
}

AnsiString TSelectForm::EditorText(const char* key, const char* fallback) {
    return LangStr(AnsiString(c_ModuleKeyPrefix) + key, {}, fallback);
}

TSelectLine* TSelectForm::LineOf(const TObject* sender) {
    const int tag = sender ? sender->property(c_TagProperty).toInt() : 0;
    const auto at = static_cast<std::size_t>(tag) - 1;
    return tag > 0 && at < FLines.size() ? &FLines[at] : nullptr;
}

void TSelectForm::Run(const std::function<void()>& operation) {
    if (operation) {
        operation();
    }
}

void TSelectForm::OkBtnClick(TObject*) {
    SetModalResult(0);
    for (const TSelectLine& line : FLines) {
        if (line.Edit->isEnabled()) {
            line.Edit->setFocus();
        }
        Run(line.Check);
    }
    CheckTogether();
    SetModalResult(c_ResultOk);
}

void TSelectForm::editSelectChange(TObject* Sender) {
    TSelectLine* const line = LineOf(Sender);
    if (line && qobject_cast<TEdit*>(Sender)) {
        line->ID = c_NullValue;
    }
}

void TSelectForm::SelectSpeedButtonClick(TObject* Sender) {
    const TSelectLine* const line = LineOf(Sender);
    if (line && FLibraryManager) {
        Run(line->ShowDlg);
    }
}

ESelectBox TSelectForm::NotConfirmed() {
    return ESelectBox(EditorText("SOURCENOTCONFIRMED", "Databáze zdroj nepotvrdila. Zadejte jiný zdroj."));
}

TField TSelectForm::AskDatabase(const TSelectLine& line, const TSelectCheck& check, int documentId) {
    TLiveStoredProc procedure(check.Procedure);
    procedure.ParamByName(check.DocumentParam).SetAsInteger(documentId);
    procedure.ParamByName(check.TextParam).SetAsString(melvark::ToAnsi(line.Edit->text()));
    melvark::SetIdentifier(procedure.ParamByName(check.IdParam), line.ID);
    if (!procedure.Exec(true)) {
        throw NotConfirmed();
    }
    return procedure.FieldByName("ID");
}

void TSelectForm::PickFromList(TSelectLine& line, const AnsiString& hostForm, const AnsiString& displayColumn,
                               const AnsiString& condition) {
    const auto pick = FLibraryManager->LookupList(hostForm, displayColumn, "_ID", condition);
    if (!pick) {
        return;
    }
    // The change of the text takes the id back to none, so the id is set after it.
    line.Edit->setText(melvark::ToQString(pick->Display));
    line.ID = melvark::PickedId(pick->Key);
}

void TSelectForm::FormShow() {
    for (const TSelectLine& line : FLines) {
        melvark::LoadGlyph(*line.Button, "RUKA");
    }
    melvark::LoadGlyph(*OkBtn, "OK");
    melvark::LoadGlyph(*CancelBtn, "CANCEL");
}

bool TSelectForm::editSelectKeyDown(TObject* Sender, const QKeyEvent& key) {
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

bool TSelectForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return TForm::eventFilter(watched, event);
    }
    bool isHandled = false;
    const bool isDone =
        melvark::Guarded([&] { isHandled = editSelectKeyDown(watched, *static_cast<QKeyEvent*>(event)); });
    return isHandled || !isDone;
}
