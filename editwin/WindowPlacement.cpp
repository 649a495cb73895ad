#include "editwin/WindowPlacement.h"

#include "editwin/model/ReachablePlace.h"
#include "editwin/model/WindowPlacementDocument.h"
#include "host/LiveData.h"
#include "host/widgets/Form.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWindowStateChangeEvent>

#include <algorithm>
#include <vector>

namespace melvark {

namespace {

std::vector<ScreenArea> Screens() {
    std::vector<ScreenArea> screens;
    for (const QScreen* const screen : QGuiApplication::screens()) {
        const QRect area = screen->availableGeometry();
        screens.push_back({area.x(), area.y(), area.width(), area.height()});
    }
    return screens;
}

/// The placement that the stored document wants, brought within reach; nothing when it says nothing of one.
std::optional<WindowPlacement> StoredPlace(std::int32_t editType, const TForm& form) {
    TLiveStoredProc proc("MELVARKEDITORNASTAVENINactiNastaveniOkna");
    proc.ParamByName("a_TYPEDITACE").SetAsInteger(editType);
    proc.Exec(true);
    const TField document = proc.FieldByName("DATA");
    if (document.IsNull()) {
        return std::nullopt;
    }
    const QRect current = form.geometry();
    auto wanted = ReadWindowPlacement(
        document.AsString(),
        {.Left = current.x(), .Top = current.y(), .Width = current.width(), .Height = current.height()});
    if (!wanted) {
        return std::nullopt;
    }
    // What can be reached is the window that will stand there.
    wanted->Width = std::clamp(wanted->Width, form.minimumWidth(), form.maximumWidth());
    wanted->Height = std::clamp(wanted->Height, form.minimumHeight(), form.maximumHeight());
    return ReachablePlace(*wanted, Screens(), form.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &form));
}

} // namespace

WindowPlacementKeeper::WindowPlacementKeeper(TForm& form, std::int32_t editType) : FForm(form), FEditType(editType) {
    form.installEventFilter(this);
}

void WindowPlacementKeeper::Load() {
    Qt::WindowStates state = FForm.windowState();
    FForm.CenterOnScreen();
    if (const auto placement = StoredPlace(FEditType, FForm)) {
        FForm.setGeometry(placement->Left, placement->Top, placement->Width, placement->Height);
        if (placement->Maximized) {
            state = *placement->Maximized ? Qt::WindowMaximized : Qt::WindowNoState;
        }
    }
    // Qt ends a maximised state with the first move.
    FForm.setWindowState(state);
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
