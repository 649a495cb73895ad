#pragma once

#include "host/Types.h"

class TLibraryManager;

namespace melvark {

/// The module's message boxes: the library manager's, or the framework's own with a title when there is no manager.
/// The first two return the box's result.
int ErrorBox(TLibraryManager* manager, const AnsiString& text);
/// Asks with Yes and No.
int ConfirmBox(TLibraryManager* manager, const AnsiString& text);
/// Tells something that is no error: the host's message, or a box when there is no manager.
void NoteBox(TLibraryManager* manager, const AnsiString& text);

} // namespace melvark
