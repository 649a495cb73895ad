#pragma once

#include <functional>

class QObject;
class QTimer;

namespace melvark {

/// The clock of the autosave: once a minute, from the first laying out of the grid on, the unsaved lines are to be
/// written. What is written, and where, is the document editor's.
class Autosave {
public:
    /// The clock belongs to `form` and does not tick yet. `save` runs guarded at each tick.
    Autosave(QObject& form, std::function<void()> save);

    /// Starts the clock; one that runs goes on as it is.
    void Enable();
    void Disable();

private:
    QTimer* FTimer;
};

} // namespace melvark
