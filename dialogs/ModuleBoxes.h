#pragma once

#include "host/Types.h"

class TLibraryManager;

namespace melvark {

/// The module's message boxes: the library manager's, or the framework's own with a title when there is no manager.
/// Both return the box's result.
int ErrorBox(TLibraryManager* manager, const AnsiString& text);
/// Asks with Yes and No.
int ConfirmBox(TLibraryManager* manager, const AnsiString& text);

} // namespace melvark
