#pragma once

/// \file
/// Images of the host.

#include "host/widgets/Vocabulary.h"

#include <string_view>

/// The host's resource module of images.
class TResources {
public:
    /// Loads the PNG image of the group into `png`, scaled to `width` × `height` pixels (0 = its own size). False, with
    /// `png` made null, when the host has no such image: a button then shows its caption alone. Needs a current host.
    static bool PngImageGetBitmap(std::string_view image, TPngObject& png, std::string_view group, int width,
                                  int height);
};
