#include "main/MelvarkEditorMain.h"

#include "editors/EditTypes.h"
#include "editors/MelvarkEditorDodakEditWin.h"
#include "editwin/model/EditExceptions.h"
#include "host/DataSet.h"
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
#include <functional>

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

bool TMelvarkEditor::DodakEditor(AnsiString aSource) {
    if (aSource.empty()) {
        aSource = ChooseSource(melvark::c_DodakMenu, &TMelvarkEditor::OnPopupMenuClickDodak);
    }
    if (aSource.empty()) {
        return false;
    }
    try {
        const int id = FDataSet->FieldByName("_ID").AsInteger();
        const int dodvId = FDataSet->FieldByName("_DODVID").AsInteger();
        TDodakEditBox editor(qApp, LibraryManager(), aSource, id, dodvId);
        return editor.ShowModal() == c_ResultOk;
    } catch (const EEditBoxCanceled&) {
        return false; // The user called the preparation off; there is nothing to tell.
    }
}

bool TMelvarkEditor::ObjednavkaEditor(AnsiString aSource) {
    if (aSource.empty()) {
        aSource = ChooseSource(melvark::c_DodObjMenu, &TMelvarkEditor::OnPopupMenuClickDodObj);
    }
    return !aSource.empty() && RefuseMissingEditor();
}

bool TMelvarkEditor::ObjednavkaVzorEditor(AnsiString aSource) {
    if (aSource.empty()) {
        aSource = ChooseSource(melvark::c_DodObjVzorMenu, &TMelvarkEditor::OnPopupMenuClickDodObjVzor);
    }
    return !aSource.empty() && RefuseMissingEditor();
}

// The release's answer on the screens whose editor it does not bring; nothing was changed.
bool TMelvarkEditor::RefuseMissingEditor() {
    ShowNote(LangStr(R"(KORDAN30\MELVARKEDITOR\EDITORNENIINSTALOVAN)", {},
                     "Editor položek tohoto dokladu zatím není nainstalován"));
    return false;
}

void TMelvarkEditor::ShowNote(const AnsiString& text) {
    if (LibraryManager()) {
        LibraryManager()->Message(text, "O#");
    } else {
        ApplicationMessageBox(text, LangStr(R"(KORDAN30\MELVARKEDITOR\ERROR)", {}, "Chyba"), c_MessageBoxError);
    }
}
