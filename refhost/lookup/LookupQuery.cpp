#include "refhost/lookup/LookupQuery.h"

#include "host/Exceptions.h"
#include "refhost/Languages.h"

#include <QRegularExpression>

namespace refhost {

std::string lookupQuery(std::string_view form, std::string_view condition, const Languages& languages) {
    // Only letters, digits and underscores: what stands here becomes the name of a view.
    static const QRegularExpression pattern(QStringLiteral("\\AKordan3:([A-Za-z0-9_]+)\\.([A-Za-z0-9_]+)\\z"));
    const QString identifier = QString::fromUtf8(form.data(), static_cast<qsizetype>(form.size()));
    const QRegularExpressionMatch match = pattern.match(identifier);
    if (!match.hasMatch()) {
        throw EHostError(languages.label(texts::lookupUnknown).arg(identifier).toStdString());
    }
    std::string sql =
        "select * from " + QStringLiteral("%1_%2_V").arg(match.captured(1), match.captured(2)).toUpper().toStdString();
    if (!condition.empty()) {
        sql += " where " + std::string(condition);
    }
    return sql;
}

std::string inOrderOf(std::string_view column, std::string query) {
    return std::move(query.append(" order by ").append(column));
}

} // namespace refhost
