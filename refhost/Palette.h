#pragma once

#include <QPalette>

namespace refhost {

/// The palette with the shades of alternate rows, of hints in an empty line and of disabled captions derived from its
/// own text and ground: not each desktop hands them over, and those of Qt are made for a light look.
QPalette completePalette(QPalette palette);

} // namespace refhost
