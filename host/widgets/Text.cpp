#include "host/widgets/Text.h"

#include <QTextDocument>

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

AnsiString TextOfCaption(QString caption) {
    return ToAnsi(caption.replace(QStringLiteral("&&"), QStringLiteral("&")));
}

QString PlainHint(std::string_view text) {
    const QString hint = ToQString(text);
    return Qt::mightBeRichText(hint) ? Qt::convertFromPlainText(hint) : hint;
}

} // namespace melvark
