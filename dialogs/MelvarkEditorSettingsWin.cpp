#include "dialogs/MelvarkEditorSettingsWin.h"

#include "host/LangStr.h"
#include "host/widgets/Text.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

using namespace melvark;

namespace {

constexpr int c_Width = 305;
constexpr int c_Height = 181;
constexpr int c_NameWidth = 205;
constexpr int c_MemoHeight = 89;

} // namespace

TSettingsBox::TSettingsBox(TComponent* Owner, TLibraryManager* libraryManager)
    : TPropertyBox(Owner, libraryManager,
                   [] { return LangStr(R"(KORDAN30\MELVARKEDITOR\NAMEMANDATORY)", {}, "Název musí být vyplněn"); }) {
    CreateControls();
    FormCreate();
    Constructed();
}

void TSettingsBox::CreateControls() {
    setObjectName(QStringLiteral("SettingsBox"));
    SetCaption("Uložení nastavení");
    auto* const name = new QHBoxLayout;
    edtNazev =
        MakeMandatoryEdit(QStringLiteral("edtNazev"), *name, QStringLiteral("lblNazev"), QStringLiteral("Název:"));
    edtNazev->setMinimumWidth(c_NameWidth);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(name);
    memKomentar =
        MakeMemo(QStringLiteral("memKomentar"), *layout, QStringLiteral("lblPopis"), QStringLiteral("Popis:"));
    memKomentar->setMinimumHeight(c_MemoHeight);
    chbSdilene = new TCheckBox(QStringLiteral("Zveřejnit - umožnit využívat i jiným uživatelům"), this);
    chbSdilene->setObjectName(QStringLiteral("chbSdilene"));
    layout->addWidget(chbSdilene);
    MakeButtons(*layout);
    SetConstraints({.MinWidth = c_Width, .MinHeight = c_Height, .MaxWidth = c_Width, .MaxHeight = c_Height});
    resize(c_Width, c_Height);
}

void TSettingsBox::FormCreate() {
    Localize(LibraryManager(), R"(KORDAN30\MelvarkEditorSettingsWin)");
}

AnsiString TSettingsBox::GetNazev() const {
    return ToAnsi(edtNazev->text());
}

void TSettingsBox::SetNazev(const AnsiString& nazev) {
    edtNazev->setText(ToQString(nazev));
}

AnsiString TSettingsBox::GetPopis() const {
    return ToAnsi(memKomentar->toPlainText());
}

void TSettingsBox::SetPopis(const AnsiString& popis) {
    memKomentar->setPlainText(ToQString(popis));
}

bool TSettingsBox::GetSdilene() const {
    return chbSdilene->isChecked();
}

void TSettingsBox::SetSdilene(bool sdilene) {
    chbSdilene->setChecked(sdilene);
}
