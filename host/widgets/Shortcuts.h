#pragma once

/// \file
/// Alt keys that an edit needs for itself.

#include <Qt>

#include <initializer_list>

class QWidget;

namespace melvark {

/// Lets `edit` have Alt together with one of the keys as an ordinary key press while it has the focus.
///
/// A shortcut letter in a caption ("&po zadání") takes its Alt key away from the focused edit and activates its own
/// control. Where a form gives that Alt key another meaning in an edit, the edit claims it here; the caption's shortcut
/// then does not act. Whoever claims a key also handles and consumes its key press: an edit would type the letter.
void ClaimAltKeys(QWidget& edit, std::initializer_list<Qt::Key> keys);

} // namespace melvark
