#pragma once

#include <QObject>
#include <QRect>

#include <cstdint>

class TForm;

namespace melvark {

/// Remembers in the database where the windows of one edit type stood. The rectangle is the normal one, to which a
/// maximised or minimised window returns, without the frame, so that a window does not creep from one use to the next.
/// Errors of the database pass through.
class WindowPlacementKeeper : public QObject {
    Q_OBJECT

public:
    /// All editors of the edit type share one placement, whatever their edit-type offset.
    WindowPlacementKeeper(TForm& form, std::int32_t editType);

    /// Centres the form and then places it as the database remembers; what it does not remember stays. A title bar that
    /// would lie on no screen moves to the nearest one.
    void Load();
    void Save() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QRect NormalRect() const;

    TForm& FForm;
    std::int32_t FEditType;
    QRect FRectBeforeMaximizing; ///< Null unless the form is maximised, or was when it was minimised.
};

} // namespace melvark
