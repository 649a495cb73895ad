#pragma once

/// \file
/// The framework's own message box.

#include "host/LibraryManager.h"
#include "host/Types.h"

/// The framework's own modal message box, for forms without a library manager and for the host itself.
///
/// `flags` is c_MessageBoxError (error icon, "OK") or c_MessageBoxQuestion (question icon, "Ano" and "Ne", Enter is
/// "Ano"); returns c_ResultOk, c_ResultYes or c_ResultNo. Escape and the close box mean "OK" or "Ne". The text is shown
/// letter for letter, never as markup. Button texts are translated under "KORDAN30\MESSAGEBOX\OK", "…\YES", "…\NO";
/// without a host or translation they are Czech.
///
/// The box is named "MessageBox", its buttons "OkBtn", "YesBtn" and "NoBtn".
int ApplicationMessageBox(const AnsiString& text, const AnsiString& caption, int flags);
