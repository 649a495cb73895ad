#include "editwin/WindowPlacement.h"

#include "editwin/model/WindowPlacementDocument.h"
#include "host/LiveData.h"
#include "host/widgets/Form.h"

#include <optional>

namespace melvark {

namespace {

/// The placement that the stored document wants; nothing when it says nothing of one.
std::optional<WindowPlacement> StoredPlacement(std::int32_t editType, const QRect& current) {
    TLiveStoredProc proc("MELVARKEDITORNASTAVENINactiNastaveniOkna");
    proc.ParamByName("a_TYPEDITACE").SetAsInteger(editType);
    proc.Exec(true);
    const TField document = proc.FieldByName("DATA");
    if (document.IsNull()) {
        return std::nullopt;
    }
    return ReadWindowPlacement(
        document.AsString(),
        {.Left = current.x(), .Top = current.y(), .Width = current.width(), .Height = current.height()});
}

} // namespace

WindowPlacementKeeper::WindowPlacementKeeper(TForm& form, std::int32_t editType)
    : FForm(form), FEditType(editType), FPlace(form) {}

void WindowPlacementKeeper::Load() {
    Qt::WindowStates state = FForm.windowState();
    FForm.CenterOnScreen();
    if (const auto placement = StoredPlacement(FEditType, FForm.geometry())) {
        MoveWithinReach(FForm, *placement);
        if (placement->Maximized) {
            state = *placement->Maximized ? Qt::WindowMaximized : Qt::WindowNoState;
        }
    }
    // Qt ends a maximised state with the first move.
    FForm.setWindowState(state);
}

void WindowPlacementKeeper::Save() const {
    TLiveStoredProc proc("MELVARKEDITORNASTAVENIUlozNastaveniOkna");
    proc.ParamByName("a_TYPEDITACE").SetAsInteger(FEditType);
    proc.ParamByName("a_DATA").SetAsString(WriteWindowPlacement(FPlace.Current()));
    proc.Exec(false);
}

} // namespace melvark
