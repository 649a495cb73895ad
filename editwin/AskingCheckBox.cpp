#include "editwin/AskingCheckBox.h"

#include "host/widgets/Guard.h"

namespace melvark {

void AskingCheckBox::nextCheckState() {
    bool mayChange = true;
    const bool isAnswered = Guarded([&] { mayChange = !FMayChange || FMayChange(); });
    if (isAnswered && mayChange) {
        QCheckBox::nextCheckState();
    }
}

} // namespace melvark
