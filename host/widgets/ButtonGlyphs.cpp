#include "host/widgets/ButtonGlyphs.h"

#include "host/widgets/Resources.h"

#include <QAbstractButton>
#include <QPixmap>

namespace melvark {

TPngObject ButtonGlyph(std::string_view image) {
    TPngObject png;
    TResources::PngImageGetBitmap(image, png, "ENGINE", 0, 0);
    return png;
}

void NameAfterHint(QAbstractButton& button) {
    if (button.text().isEmpty()) {
        button.setAccessibleName(button.toolTip());
    }
}

} // namespace melvark
