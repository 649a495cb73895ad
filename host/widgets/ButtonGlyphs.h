#pragma once

/// \file
/// The images of buttons.

#include "host/widgets/Vocabulary.h"

#include <QPixmap>

#include <string_view>

class QAbstractButton;

namespace melvark {

/// The image of the group "ENGINE", in which all images of the buttons are; null when the host has none of that name.
TPngObject ButtonGlyph(std::string_view image);

/// A button without a caption is known to a screen reader by its hint. Called once the hint is localised.
void NameAfterHint(QAbstractButton& button);

/// Gives a button of one of the host's classes its image. Called when the form is shown.
template <class Button>
void LoadGlyph(Button& button, std::string_view image) {
    button.SetGlyph(ButtonGlyph(image));
}

} // namespace melvark
