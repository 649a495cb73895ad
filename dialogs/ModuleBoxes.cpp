#include "dialogs/ModuleBoxes.h"

#include "host/LangStr.h"
#include "host/LibraryManager.h"
#include "host/widgets/MessageBox.h"

namespace melvark {

int ErrorBox(TLibraryManager* manager, const AnsiString& text) {
    return manager ? manager->MessageBox(text, c_MessageBoxError)
                   : ApplicationMessageBox(text, LangStr(R"(KORDAN30\MELVARKEDITOR\ERROR)", {}, "Chyba"),
                                           c_MessageBoxError);
}

int ConfirmBox(TLibraryManager* manager, const AnsiString& text) {
    return manager ? manager->MessageBox(text, c_MessageBoxQuestion)
                   : ApplicationMessageBox(text, LangStr(R"(KORDAN30\MELVARKEDITOR\CONFIRMATION)", {}, "Potvrzení"),
                                           c_MessageBoxQuestion);
}

void NoteBox(TLibraryManager* manager, const AnsiString& text) {
    if (manager) {
        manager->Message(text, "O#");
    } else {
        ErrorBox(nullptr, text);
    }
}

} // namespace melvark
