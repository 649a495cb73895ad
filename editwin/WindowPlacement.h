#pragma once

#include "host/widgets/WindowPlace.h"

#include <cstdint>

class TForm;

namespace melvark {

/// Remembers in the database where the windows of one edit type stood. Errors of the database pass through.
class WindowPlacementKeeper {
public:
    /// All editors of the edit type share one placement, whatever their edit-type offset.
    WindowPlacementKeeper(TForm& form, std::int32_t editType);

    /// Centres the form and then places it as the database remembers; what it does not remember stays. A title bar that
    /// would lie on no screen moves to the nearest one.
    void Load();
    void Save() const;

private:
    TForm& FForm;
    std::int32_t FEditType;
    WindowPlace FPlace;
};

} // namespace melvark
