#pragma once

#include <QObject>

#include <functional>

class QKeyEvent;
class QWheelEvent;
class QWidget;

namespace melvark {

/// Turns Qt's events of the watched controls into the events that in-place editing speaks of. Handlers that
/// are not given are not called. Each runs under the guard: an exception goes to the host's error display and nowhere
/// else.
class EditorEvents : public QObject {
    Q_OBJECT

public:
    using KeyHandler = std::function<bool(QWidget*, const QKeyEvent&)>; ///< True consumes the key.

    struct Handlers {
        std::function<void(QWidget*)> Enter; ///< The control received the focus.
        /// The control lost the focus to another control of its window; a popup or another window that takes the focus
        /// for a while does not count.
        std::function<void(QWidget*)> Exit;
        KeyHandler KeyDown;  ///< A key went down. Its keys take precedence over shortcuts and mnemonics of the window.
        KeyHandler KeyPress; ///< A key that KeyDown left.
        /// The wheel turned over the control, which does not get it.
        std::function<void(QWheelEvent&)> Wheel;
    };

    explicit EditorEvents(Handlers handlers);

    /// Starts watching the control, which may die first.
    void Watch(QWidget& control);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool HandleKey(QWidget* control, const QKeyEvent& event) const;

    Handlers FHandlers;
};

} // namespace melvark
