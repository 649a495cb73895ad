#pragma once

#include "editors/DocumentRows.h"
#include "editors/EditTypes.h"
#include "editwin/MelvarkEditorEditWin.h"
#include "editwin/model/EditExceptions.h"
#include "host/Identifier.h"

#include <functional>

class TSelectBox;

namespace melvark {

/// What the clerk chose in the source dialog.
struct SourceChoice {
    int ID = c_NullValue;
    bool WithQuantities = true;
    bool WithPrices = true;
};

} // namespace melvark

/// What the editors of all kinds of document do alike around their tables. An editor's constructor hands in its
/// columns, presents itself, has the document checked, installs its hooks, fills its lines and calls Filled() last.
class TDocumentEditBox : public TEditBox {
    Q_OBJECT

public:
    ~TDocumentEditBox() override;

protected:
    using TEditBox::TEditBox;

    /// Shows the source dialog as `setUp` sets it up; the dialog is gone when the choice is returned. Throws
    /// EEditBoxCanceled when the clerk cancelled it or no id came of it.
    melvark::SourceChoice AskForSource(const std::function<void(TSelectBox&)>& setUp);

    /// What calls the preparation off without a word to the clerk.
    static EEditBoxCanceled Canceled();

    melvark::DocumentColumns Columns() const;

    /// Freshly filled lines count as unchanged; the editor is complete.
    void Filled();
};
