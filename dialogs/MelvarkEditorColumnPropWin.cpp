#include "dialogs/MelvarkEditorColumnPropWin.h"

#include "host/LangStr.h"
#include "host/widgets/Text.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace melvark;

namespace {

constexpr int c_Width = 317;
constexpr int c_Height = 288;

TRadioButton* MakeRadioButton(const QString& name, const QString& caption, QWidget* parent, QBoxLayout& layout) {
    auto* const button = new TRadioButton(caption, parent);
    button->setObjectName(name);
    layout.addWidget(button);
    return button;
}

} // namespace

TColumnPropertyBox::TColumnPropertyBox(TComponent* Owner, TLibraryManager* libraryManager)
    : TPropertyBox(Owner, libraryManager, [] {
          return LangStr(R"(KORDAN30\MELVARKEDITOR\CAPTIONMANDATORY)", {}, "Titulek musí být vyplněn");
      }) {
    CreateControls();
    FormCreate();
    Constructed();
}

void TColumnPropertyBox::CreateControls() {
    setObjectName(QStringLiteral("ColumnPropertyBox"));
    SetCaption("Vlastnosti sloupce");
    auto* const layout = new QVBoxLayout(this);
    auto* const caption = new QVBoxLayout;
    edtCaption = MakeMandatoryEdit(QStringLiteral("edtCaption"), *caption, QStringLiteral("lblCaption"),
                                   QStringLiteral("Titulek:"));
    layout->addLayout(caption);
    auto* const hint = new QVBoxLayout;
    memHint =
        MakeMemo(QStringLiteral("memHint"), *hint, QStringLiteral("lblHint"), QStringLiteral("Vyskakovací nápověda:"));
    layout->addLayout(hint, 1);

    Bevel1 = new TPanel(this);
    Bevel1->setObjectName(QStringLiteral("Bevel1"));
    Bevel1->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Sunken));
    layout->addWidget(Bevel1);
    lblAlign = new TLabel(QStringLiteral("Zarovnání sloupce:"), this);
    lblAlign->setObjectName(QStringLiteral("lblAlign"));
    layout->addWidget(lblAlign);
    rbAlignLeft = MakeRadioButton(QStringLiteral("rbAlignLeft"), QStringLiteral("Zleva"), this, *layout);
    rbAlignCenter = MakeRadioButton(QStringLiteral("rbAlignCenter"), QStringLiteral("Doprostřed"), this, *layout);
    rbAlignRight = MakeRadioButton(QStringLiteral("rbAlignRight"), QStringLiteral("Zprava"), this, *layout);
    MakeButtons(*layout);
    SetConstraints({.MinWidth = c_Width, .MinHeight = c_Height});
    resize(c_Width, c_Height);
}

void TColumnPropertyBox::FormCreate() {
    Localize(LibraryManager(), R"(KORDAN30\MelvarkEditorColumnPropWin)");
}

AnsiString TColumnPropertyBox::GetColumnCaption() const {
    return ToAnsi(edtCaption->text());
}

void TColumnPropertyBox::SetColumnCaption(const AnsiString& caption) {
    edtCaption->setText(ToQString(caption));
}

AnsiString TColumnPropertyBox::GetColumnHint() const {
    return ToAnsi(memHint->toPlainText());
}

void TColumnPropertyBox::SetColumnHint(const AnsiString& hint) {
    memHint->setPlainText(ToQString(hint));
}

TColumnAlign TColumnPropertyBox::GetColumnAlign() const {
    if (rbAlignRight->isChecked()) {
        return caRight;
    }
    return rbAlignCenter->isChecked() ? caCenter : caLeft;
}

void TColumnPropertyBox::SetColumnAlign(TColumnAlign align) {
    TRadioButton* const button = align == caCenter ? rbAlignCenter : align == caRight ? rbAlignRight : rbAlignLeft;
    button->setChecked(true);
}
