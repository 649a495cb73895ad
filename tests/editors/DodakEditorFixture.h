#pragma once

#include "editors/MelvarkEditorDodakEditWin.h"
#include "tests/editors/DocumentEditorFixture.h"
#include "tests/support/DodakScripts.h"

#include <memory>

/// The editor of delivery note 7 of supplier 40.
class DodakEditorFixture : public DocumentEditorFixture {
protected:
    DodakEditorFixture() { scriptDodakEditor(host_.connection); }

    std::unique_ptr<TDodakEditBox> open(const AnsiString& editType = "SABLONA") {
        return std::make_unique<TDodakEditBox>(qApp, &manager_, editType, 7, 40);
    }

    /// Stored settings that make the discount the first column and let it be edited.
    void makeDiscountEditable() {
        host_.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
            .returns({resultTable({"ID", "DATA"}, {{"5", "<settings><columns><column><name>SLEVA</name>"
                                                         "<editable>AUTO</editable></column></columns></settings>"}})});
    }
};
