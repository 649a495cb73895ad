/// \file
/// How a window tells where it stands, and comes back to it.
#pragma once

#include "host/ReachablePlace.h"

#include <QObject>
#include <QRect>

class QWidget;

namespace melvark {

/// Tells where a window stands, for whoever remembers it from one use to the next. The rectangle is the normal one, to
/// which a maximised or minimised window returns, without the frame, so that a window does not creep. It has to watch
/// the window from before it is first maximised.
class WindowPlace : public QObject {
    Q_OBJECT
public:
    /// The window outlives this object or ends with it as its owner.
    explicit WindowPlace(QWidget& window);

    /// Where the window stands now. A minimised window counts as not maximised.
    WindowPlacement Current() const;

    /// Watches the window; lets every event pass.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QRect NormalRect() const;

    QWidget& FWindow;
    QRect FRectBeforeMaximizing; ///< Null unless the window is maximised, or was when it was minimised.
};

/// Moves the window to the wanted rectangle, as near as ReachablePlace and the window's own limits allow. Whether it is
/// to be maximised is the caller's affair: Qt ends a maximised state with the first move.
void MoveWithinReach(QWidget& window, const WindowPlacement& wanted);

} // namespace melvark
