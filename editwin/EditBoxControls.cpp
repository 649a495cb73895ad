#include "editwin/EditBoxControls.h"

#include "editwin/AskingCheckBox.h"
#include "host/LibraryManager.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/Form.h"
#include "host/widgets/StringGrid.h"

#include <QAction>
#include <QActionGroup>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

namespace {

constexpr int c_Width = 790;
constexpr int c_Height = 400;
constexpr int c_MainBorder = 6;
constexpr int c_TopPanelHeight = 75;
constexpr int c_GroupBoxHeight = 69;
constexpr int c_ButtonPanelWidth = 106;
constexpr int c_ButtonWidth = 90;
constexpr int c_ButtonHeight = 25;
constexpr int c_ButtonTop = 6;
constexpr int c_ButtonStep = 32;
constexpr int c_RowHeight = 20;

template <class Control>
Control* Named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

TQelPngBitBtn* MakeButton(QWidget* parent, const QString& name, const AnsiString& caption, int modalResult) {
    auto* const button = Named(new TQelPngBitBtn(parent), name);
    button->SetCaption(caption);
    button->SetModalResult(modalResult);
    return button;
}

TMenuItem* MakeItem(QMenu* menu, const QString& name, const QString& caption) {
    return Named(menu->addAction(caption), name);
}

} // namespace

void TEditBoxControls::BuildIn(TForm& form) {
    form.SetCaption("Melvark - editor");
    MainPanel = Named(new QFrame(&form), QStringLiteral("MainPanel"));
    TopPanel = Named(new QFrame(MainPanel), QStringLiteral("TopPanel"));
    BuildTopPanel();
    StringGrid = Named(new TStringGrid(MainPanel), QStringLiteral("StringGrid"));
    StringGrid->SetRowHeight(c_RowHeight);
    StringGrid->SetTabStop(false);
    ButtonPanel = Named(new QFrame(&form), QStringLiteral("ButtonPanel"));
    BuildButtons();
    BuildColumnsMenu(form);
    BuildSettingsMenu(form);

    auto* const main = new QVBoxLayout(MainPanel);
    main->setContentsMargins(c_MainBorder, c_MainBorder, c_MainBorder, c_MainBorder);
    main->setSpacing(0);
    main->addWidget(TopPanel);
    main->addWidget(StringGrid, 1);
    auto* const whole = new QHBoxLayout(&form);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(MainPanel, 1);
    whole->addWidget(ButtonPanel);
    form.SetConstraints({.MinWidth = c_Width, .MinHeight = c_Height});
    form.resize(c_Width, c_Height);
}

void TEditBoxControls::BuildTopPanel() {
    TopPanel->setMinimumHeight(c_TopPanelHeight);
    gbPraceScenami =
        Named(new QGroupBox(QStringLiteral(" Způsob práce s cenami  "), TopPanel), QStringLiteral("gbPraceScenami"));
    gbPraceScenami->setMinimumHeight(c_GroupBoxHeight);
    chbPrepocetCen = Named(
        new melvark::AskingCheckBox(QStringLiteral("&po zadání hodnoty se ostatní údaje přepočítají"), gbPraceScenami),
        QStringLiteral("chbPrepocetCen"));
    chbPrepocetCen->setChecked(true);
    chbPrepocetCen->setFocusPolicy(Qt::ClickFocus);
    lblWarning = Named(
        new QLabel(QStringLiteral("Upozornění: pokud se hodnoty nepřepočítávají automaticky, data nelze uložit, pokud "
                                  "cena za jednotkové množství vynásobená množstvím není rovna celkové ceně položky!"),
                   gbPraceScenami),
        QStringLiteral("lblWarning"));
    lblWarning->setWordWrap(true);

    auto* const box = new QVBoxLayout(gbPraceScenami);
    box->setContentsMargins(8, 2, 8, 2);
    box->setSpacing(2);
    box->addWidget(chbPrepocetCen);
    box->addWidget(lblWarning, 1);
    auto* const panel = new QVBoxLayout(TopPanel);
    panel->setContentsMargins(0, 0, 0, c_TopPanelHeight - c_GroupBoxHeight);
    panel->addWidget(gbPraceScenami);
}

void TEditBoxControls::BuildButtons() {
    ButtonPanel->setMinimumWidth(c_ButtonPanelWidth);
    OkBtn = MakeButton(ButtonPanel, QStringLiteral("OkBtn"), "&OK", c_ResultOk);
    OKDalsiBtn = MakeButton(ButtonPanel, QStringLiteral("OKDalsiBtn"), "OK+Další", 0);
    OKDalsiBtn->setEnabled(false);
    CancelBtn = MakeButton(ButtonPanel, QStringLiteral("CancelBtn"), "&Zrušit", c_ResultCancel);
    MenuBtn = Named(new TMenuButton(ButtonPanel), QStringLiteral("MenuBtn"));
    MenuBtn->SetCaption("---");

    auto* const column = new QVBoxLayout(ButtonPanel);
    const int side = (c_ButtonPanelWidth - c_ButtonWidth) / 2;
    column->setContentsMargins(side, c_ButtonTop, side, 0);
    column->setSpacing(c_ButtonStep - c_ButtonHeight);
    for (QPushButton* const button : std::initializer_list<QPushButton*>{OkBtn, OKDalsiBtn, CancelBtn, MenuBtn}) {
        button->setMinimumSize(c_ButtonWidth, c_ButtonHeight);
        column->addWidget(button);
    }
    column->addStretch();
}

void TEditBoxControls::BuildColumnsMenu(TForm& form) {
    ColumnsPopupMenu = Named(new QMenu(&form), QStringLiteral("ColumnsPopupMenu"));
    NadpisVlastnostiSloupce = MakeItem(ColumnsPopupMenu, QStringLiteral("NadpisVlastnostiSloupce"),
                                       QStringLiteral("Nadpis a vlastnosti sloupce"));
    SkrytSloupec = MakeItem(ColumnsPopupMenu, QStringLiteral("SkrytSloupec"), QStringLiteral("Skrýt sloupec"));
    ColumnsPopupMenu->addSeparator();
    EditovatelnySloupecAutomaticky = MakeItem(ColumnsPopupMenu, QStringLiteral("EditovatelnySloupecAutomaticky"),
                                              QStringLiteral("Editovatelný - automaticky"));
    EditovatelnySloupecVyberem = MakeItem(ColumnsPopupMenu, QStringLiteral("EditovatelnySloupecVyberem"),
                                          QStringLiteral("Editovatelný - výběrem"));
    NeeditovatelnySloupec =
        MakeItem(ColumnsPopupMenu, QStringLiteral("NeeditovatelnySloupec"), QStringLiteral("Needitovatelný"));
    auto* const editability = new QActionGroup(ColumnsPopupMenu);
    // Optional: on a column that is never editable none of them is checked.
    editability->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (QAction* const item : {EditovatelnySloupecAutomaticky, EditovatelnySloupecVyberem, NeeditovatelnySloupec}) {
        item->setCheckable(true);
        editability->addAction(item);
    }
    ColumnsPopupMenu->addSeparator();
    SkryteSloupce = Named(ColumnsPopupMenu->addMenu(QStringLiteral("Skryté sloupce")), QStringLiteral("SkryteSloupce"));
    SkryteSloupce->menuAction()->setEnabled(false);
}

void TEditBoxControls::BuildSettingsMenu(TForm& form) {
    SettingsPopupMenu = Named(new QMenu(&form), QStringLiteral("SettingsPopupMenu"));
    N3 = Named(SettingsPopupMenu->addSeparator(), QStringLiteral("N3"));
    PrejmenovatNastaveni =
        MakeItem(SettingsPopupMenu, QStringLiteral("PrejmenovatNastaveni"), QStringLiteral("Přejmenovat"));
    UlozitNastaveni = MakeItem(SettingsPopupMenu, QStringLiteral("UlozitNastaveni"), QStringLiteral("Uložit"));
    UlozitJakoNoveNastaveni =
        MakeItem(SettingsPopupMenu, QStringLiteral("UlozitJakoNoveNastaveni"), QStringLiteral("Uložit jako nové"));
    SmazatNastaveni = MakeItem(SettingsPopupMenu, QStringLiteral("SmazatNastaveni"), QStringLiteral("Smazat vybrané"));
    N4 = Named(SettingsPopupMenu->addSeparator(), QStringLiteral("N4"));
    ObnovVychoziNastaveni =
        MakeItem(SettingsPopupMenu, QStringLiteral("ObnovVychoziNastaveni"), QStringLiteral("Obnov výchozí"));
    MenuBtn->SetPopupMenu(SettingsPopupMenu);
}
