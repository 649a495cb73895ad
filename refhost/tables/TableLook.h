#pragma once

#include <Qt>

#include <map>
#include <string>

namespace refhost {

/// How somebody left a table. Columns go by the names that they have in the result.
struct TableLook {
    std::string sortColumn; ///< Empty for the order in which the database brings the rows.
    Qt::SortOrder sortOrder = Qt::AscendingOrder;
    std::map<std::string, int> widths; ///< In pixels; empty when the widths follow the texts.

    bool operator==(const TableLook&) const = default;
};

} // namespace refhost
