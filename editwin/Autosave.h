#pragma once

#include <functional>

class QObject;
class QTimer;

namespace melvark {

/// The clock of the autosave: once a minute, from the first laying out of the grid on, the unsaved lines are to be
/// written. What is written, and where, is the document editor's.
class Autosave {
public:
    /// The clock belongs to `form` and does not tick yet. `tick` runs guarded at each tick.
    Autosave(QObject& form, std::function<void()> tick);

    /// Starts the clock; one that runs goes on as it is.
    void Enable();
    void Disable();

    /// The user was told of a failure before any save.
    void FailureIsKnown() { FHasFailed = true; }
    /// Runs the save. What it throws passes through the first time; later ones are kept from the user, who knows, until
    /// a save has succeeded.
    void Run(const std::function<void()>& save);

private:
    QTimer* FTimer;
    bool FHasFailed = false;
};

} // namespace melvark
