#include "main/MelvarkEditorMain.h"

#include "editors/EditTypes.h"
#include "editors/MelvarkEditorDodObjEditWin.h"
#include "editors/MelvarkEditorDodakEditWin.h"
#include "editwin/model/EditExceptions.h"
#include "host/DataSet.h"
#include "host/HostServices.h"
#include "host/LangStr.h"
#include "host/LibraryManager.h"
#include "host/widgets/Guard.h"
#include "host/widgets/MessageBox.h"
#include "host/widgets/Text.h"
#include "main/SourceMenus.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QMenu>

#include <algorithm>
#include <array>
#include <utility>

namespace {

struct TWorkflow {
    std::string_view DocumentType;
    bool (TMelvarkEditor::*Run)(AnsiString);
};

constexpr std::array c_Workflows{
    TWorkflow{"DODAK", &TMelvarkEditor::DodakEditor},
    TWorkflow{"DODOBJ", &TMelvarkEditor::ObjednavkaEditor},
    TWorkflow{"DODOBJVZOR", &TMelvarkEditor::ObjednavkaVzorEditor},
};

/// Whether the editor that these arguments construct was closed with OK. A preparation that the user called off is a
/// plain no: there is nothing to tell.
template <class Editor, class... Arguments>
bool EditModally(const Arguments&... arguments) {
    try {
        Editor editor(qApp, arguments...);
        return editor.ShowModal() == c_ResultOk;
    } catch (const EEditBoxCanceled&) {
        return false;
    }
}

} // namespace

bool TMelvarkEditor::Execute(AnsiString aParams, TDataSet* aDataSet, TXBookmarkList*) {
    FSourceCode.clear();
    const AnsiString source = GetWord(aParams, 1, ',');
    if (!aDataSet || aDataSet->IsEmpty()) {
        return false;
    }
    aDataSet->FieldByName("_ID"); // A screen without it is refused before anything is shown.
    FDataSet = aDataSet;

    const auto workflow = std::ranges::find(c_Workflows, GetWord(aParams, 0, ','), &TWorkflow::DocumentType);
    if (workflow != c_Workflows.end()) {
        return std::invoke(workflow->Run, this, source);
    }
    ShowNote(LangStr(R"(KORDAN30\MELVARKEDITOR\NEPLATNYTYPEDITACEDOKLADU)", {}, "Nepodporovaný typ editace dokladu"));
    return false;
}

TMelvarkEditor::~TMelvarkEditor() {
    delete FPopupMenu.data(); // The screen that owns it may live on, but its entries call this item.
}

void TMelvarkEditor::CreatePopupMenu() {
    FPopupMenu = new TPopupMenu(QApplication::activeWindow());
    FPopupMenu->setObjectName(QStringLiteral("SourcePopupMenu"));
    FPopupMenu->setToolTipsVisible(true);
}

void TMelvarkEditor::AddPopupMenuItem(const AnsiString& aCaption, const AnsiString& aHint, int aTag,
                                      const TNotifyEvent& aOnClick) {
    TMenuItem* item = FPopupMenu->addAction(melvark::PlainCaption(aCaption));
    item->setObjectName(QStringLiteral("SourceItem%1").arg(aTag));
    item->setToolTip(melvark::ToQString(aHint));
    item->setStatusTip(melvark::ToQString(aHint));
    item->setData(aTag);
    melvark::ConnectGuarded(item, &TMenuItem::triggered, item, [aOnClick, item] { aOnClick(item); });
}

void TMelvarkEditor::TakeSource(const TObject* sender, std::span<const std::string_view> codes) {
    if (const auto* item = qobject_cast<const TMenuItem*>(sender)) {
        FSourceCode = melvark::SourceCode(codes, item->data().toInt());
    }
}

void TMelvarkEditor::OnPopupMenuClickDodak(TObject* Sender) {
    TakeSource(Sender, c_DodakEditType);
}

void TMelvarkEditor::OnPopupMenuClickDodObj(TObject* Sender) {
    TakeSource(Sender, c_DodObjEditType);
}

void TMelvarkEditor::OnPopupMenuClickDodObjVzor(TObject* Sender) {
    TakeSource(Sender, c_DodObjEditType);
}

AnsiString TMelvarkEditor::ChooseSource(const melvark::SourceMenu& menu, TClickHandler onClick) {
    if (!FPopupMenu) {
        CreatePopupMenu();
    }
    FPopupMenu->clear();
    for (const melvark::SourceMenuEntry& entry : menu.Entries) {
        AddPopupMenuItem(MenuCaption(entry), MenuHint(entry), entry.Tag, std::bind_front(onClick, this));
    }
    // Executed, not only popped up: when it returns, the click on an entry has been delivered.
    FPopupMenu->exec(QCursor::pos());
    return FSourceCode;
}

bool TMelvarkEditor::EditFrom(AnsiString source, const melvark::SourceMenu& menu, TClickHandler onClick,
                              const std::function<bool(const AnsiString&)>& edit) {
    if (source.empty()) {
        source = ChooseSource(menu, onClick);
    }
    return !source.empty() && edit(source);
}

bool TMelvarkEditor::DodakEditor(AnsiString aSource) {
    return EditFrom(std::move(aSource), melvark::c_DodakMenu, &TMelvarkEditor::OnPopupMenuClickDodak,
                    [this](const AnsiString& source) { return EditDeliveryNote(source); });
}

bool TMelvarkEditor::ObjednavkaEditor(AnsiString aSource) {
    return EditFrom(std::move(aSource), melvark::c_DodObjMenu, &TMelvarkEditor::OnPopupMenuClickDodObj,
                    [this](const AnsiString& source) { return EditOrder(false, source); });
}

bool TMelvarkEditor::ObjednavkaVzorEditor(AnsiString aSource) {
    return EditFrom(std::move(aSource), melvark::c_DodObjVzorMenu, &TMelvarkEditor::OnPopupMenuClickDodObjVzor,
                    [this](const AnsiString& source) { return EditOrder(true, source); });
}

bool TMelvarkEditor::EditDeliveryNote(const AnsiString& source) {
    const int id = FDataSet->FieldByName("_ID").AsInteger();
    const int dodvId = FDataSet->FieldByName("_DODVID").AsInteger();
    return EditModally<TDodakEditBox>(LibraryManager(), source, id, dodvId);
}

// An order's prices are those of the moment when it was ordered; a template's screen need not have one, its are
// today's.
bool TMelvarkEditor::EditOrder(bool isTemplate, const AnsiString& source) {
    const int id = FDataSet->FieldByName("_ID").AsInteger();
    const int skldId = FDataSet->FieldByName("_SKLDID").AsInteger();
    const int dodvId = FDataSet->FieldByName("_DODVID").AsInteger();
    const AnsiString sklad = FDataSet->FieldByName("SKLAD").AsString();
    const AnsiString dodavatel = FDataSet->FieldByName("DODAVATEL").AsString();
    const TDateTime moment = isTemplate ? CurrentHost().Now() : FDataSet->FieldByName("OBJEDNANIDC").AsDateTime();
    return EditModally<TDodObjEditBox>(LibraryManager(), isTemplate, source, id, skldId, dodvId, sklad, dodavatel,
                                       moment);
}

void TMelvarkEditor::ShowNote(const AnsiString& text) {
    if (LibraryManager()) {
        LibraryManager()->Message(text, "O#");
    } else {
        ApplicationMessageBox(text, LangStr(R"(KORDAN30\MELVARKEDITOR\ERROR)", {}, "Chyba"), c_MessageBoxError);
    }
}
