#include "dialogs/PropertyBox.h"

#include "dialogs/ModuleBoxes.h"
#include "host/ValueText.h"
#include "host/widgets/ButtonGlyphs.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/Text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

using namespace melvark;

namespace {

template <class Control>
Control* Labelled(Control* control, const QString& name, QBoxLayout& layout, const QString& labelName,
                  const QString& text) {
    auto* const label = new TLabel(text, control->parentWidget());
    label->setObjectName(labelName);
    label->setBuddy(control);
    layout.addWidget(label);
    control->setObjectName(name);
    layout.addWidget(control, 1);
    return control;
}

} // namespace

TPropertyBox::TPropertyBox(TComponent* owner, TLibraryManager* libraryManager, std::function<AnsiString()> refusal)
    : TForm(owner), FLibraryManager(libraryManager), FRefusal(std::move(refusal)) {
    SetPosition(TPosition::poScreenCenter);
    SetCloseOnEscape(true);
}

TEdit* TPropertyBox::MakeMandatoryEdit(const QString& name, QBoxLayout& layout, const QString& labelName,
                                       const QString& label) {
    FMandatory = Labelled(new TEdit(this), name, layout, labelName, label);
    return FMandatory;
}

TMemo* TPropertyBox::MakeMemo(const QString& name, QBoxLayout& layout, const QString& labelName, const QString& label) {
    auto* const memo = Labelled(new TMemo(this), name, layout, labelName, label);
    memo->setTabChangesFocus(true);
    return memo;
}

void TPropertyBox::MakeButtons(QBoxLayout& layout) {
    OkBtn = new TQelPngBitBtn(this);
    OkBtn->setObjectName(QStringLiteral("OkBtn"));
    OkBtn->SetCaption("OK");
    OkBtn->SetDefault(true);
    OkBtn->SetModalResult(c_ResultOk);
    OkBtn->SetOnClick([this](TObject* sender) { OkBtnClick(sender); });
    CancelBtn = new TQelPngBitBtn(this);
    CancelBtn->setObjectName(QStringLiteral("CancelBtn"));
    CancelBtn->SetCaption("Zpět");
    CancelBtn->SetModalResult(c_ResultCancel);

    auto* const row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(OkBtn);
    row->addWidget(CancelBtn);
    layout.addLayout(row);
}

void TPropertyBox::FormShow() {
    LoadGlyph(*OkBtn, "OK");
    LoadGlyph(*CancelBtn, "CANCEL");
    FMandatory->setFocus();
}

void TPropertyBox::OkBtnClick(TObject*) {
    if (!TrimText(ToAnsi(FMandatory->text())).empty()) {
        return;
    }
    FMandatory->setFocus();
    ErrorBox(FLibraryManager, FRefusal());
    SetModalResult(0);
}
