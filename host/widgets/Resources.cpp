#include "host/widgets/Resources.h"

#include "host/HostServices.h"

#include <QPixmap>

bool TResources::PngImageGetBitmap(std::string_view image, TPngObject& png, std::string_view group, int width,
                                   int height) {
    const std::string_view bytes = CurrentHost().ImageData(image, group);
    QPixmap loaded;
    if (!bytes.empty()) {
        loaded.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<uint>(bytes.size()), "PNG");
    }
    const QSize wanted(width > 0 ? width : loaded.width(), height > 0 ? height : loaded.height());
    if (!loaded.isNull() && wanted != loaded.size()) {
        loaded = loaded.scaled(wanted, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    png = loaded;
    return !png.isNull();
}
