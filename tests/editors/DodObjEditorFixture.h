#pragma once

#include "editors/MelvarkEditorDodObjEditWin.h"
#include "tests/editors/DocumentEditorFixture.h"
#include "tests/support/DodObjScripts.h"

#include <memory>

/// The editor of order 7 of warehouse 3, of supplier 5 "Lípa" unless the test says otherwise.
class DodObjEditorFixture : public DocumentEditorFixture {
protected:
    DodObjEditorFixture() { scriptDodObjEditor(host_.connection); }

    std::unique_ptr<TDodObjEditBox> open(const AnsiString& sourceKind = "SABLONA") {
        return std::make_unique<TDodObjEditBox>(qApp, &manager_, isTemplate_, sourceKind, 7, 3, supplier_, "Praha",
                                                supplierName_,
                                                std::chrono::local_days{std::chrono::year{2027} / 2 / 1});
    }

    bool isTemplate_ = false;
    int supplier_ = 5;
    AnsiString supplierName_ = "Lípa";
};
