#include "host/widgets/Text.h"

namespace melvark {

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

AnsiString ToAnsi(const QString& text) {
    return text.toStdString();
}

QString PlainCaption(std::string_view text) {
    return ToQString(text).replace(u'&', QStringLiteral("&&"));
}

} // namespace melvark
