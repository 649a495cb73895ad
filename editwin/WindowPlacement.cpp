#include "editwin/WindowPlacement.h"

#include "editwin/model/WindowPlacementDocument.h"
#include "host/LiveData.h"
#include "host/widgets/Form.h"

#include <QWindowStateChangeEvent>

namespace melvark {

WindowPlacementKeeper::WindowPlacementKeeper(TForm& form, std::int32_t editType) : FForm(form), FEditType(editType) {
    form.installEventFilter(this);
}

void WindowPlacementKeeper::Load() {
    FForm.CenterOnScreen();
    TLiveStoredProc proc("MELVARKEDITORNASTAVENINactiNastaveniOkna");
    proc.ParamByName("a_TYPEDITACE").SetAsInteger(FEditType);
    proc.Exec(true);
    const TField document = proc.FieldByName("DATA");
    if (document.IsNull()) {
        return;
    }
    const QRect current = FForm.geometry();
    const auto placement =
        ReadWindowPlacement(document.AsString(), {current.x(), current.y(), current.width(), current.height(),
                                                  FForm.windowState().testFlag(Qt::WindowMaximized)});
    if (!placement) {
        return;
    }
    FForm.setGeometry(placement->Left, placement->Top, placement->Width, placement->Height);
    FForm.setWindowState(placement->Maximized ? Qt::WindowMaximized : Qt::WindowNoState);
}

void WindowPlacementKeeper::Save() const {
    const QRect rect = NormalRect();
    const Qt::WindowStates state = FForm.windowState();
    const bool isMaximized = state.testFlag(Qt::WindowMaximized) && !state.testFlag(Qt::WindowMinimized);
    TLiveStoredProc proc("MELVARKEDITORNASTAVENIUlozNastaveniOkna");
    proc.ParamByName("a_TYPEDITACE").SetAsInteger(FEditType);
    proc.ParamByName("a_DATA").SetAsString(
        WriteWindowPlacement({rect.x(), rect.y(), rect.width(), rect.height(), isMaximized}));
    proc.Exec(false);
}

/// Qt's normal geometry is wrong for one state only: a maximised window that was minimised.
QRect WindowPlacementKeeper::NormalRect() const {
    return FForm.isMinimized() && FRectBeforeMaximizing.isValid() ? FRectBeforeMaximizing : FForm.normalGeometry();
}

bool WindowPlacementKeeper::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::WindowStateChange) {
        return false;
    }
    // On the way into and out of the task bar the state passes through others that mean nothing.
    if (static_cast<QWindowStateChangeEvent*>(event)->oldState().testFlag(Qt::WindowMinimized)) {
        return false;
    }
    if (FForm.windowState() == Qt::WindowMaximized) {
        FRectBeforeMaximizing = FForm.normalGeometry();
    } else if (FForm.windowState() == Qt::WindowNoState) {
        FRectBeforeMaximizing = QRect();
    }
    return false;
}

} // namespace melvark
