#pragma once

#include <Qt>

class QKeyEvent;

/// The keyboard contract of the editor form: the only keys that it handles itself, all others keep the controls'
/// standard behaviour.
namespace melvark {

enum class EditorCommand {
    None,
    GoNext,           ///< Enter: commit and open the next cell that traversal stops at.
    GoPrevious,       ///< Shift+Enter.
    Confirm,          ///< Ctrl+Enter: commit and do what the OK button does.
    RecalculationOff, ///< Alt+C clears the price-recalculation check box.
    RecalculationOn   ///< Alt+P sets it.
};

/// What Enter means in the grid, by the modifiers held with it: Confirm, GoNext or GoPrevious. Not asked with Alt.
EditorCommand EnterCommand(Qt::KeyboardModifiers modifiers);

/// What a key means when it goes down in an editor or on the OK and Cancel buttons: Confirm, a recalculation command
/// or None. The Alt keys are compared by the platform's key codes with both letter cases (0x43 and 0x63, 0x50 and
/// 0x70). The lower-case codes are those of keypad 3 and F1, so Alt with these does the same.
EditorCommand KeyDownCommand(const QKeyEvent& event);

/// What the character of a key means in an editor: GoNext, GoPrevious or None.
EditorCommand KeyPressCommand(const QKeyEvent& event);

} // namespace melvark
