#pragma once

#include <QString>

#include <string_view>

namespace refhost {

class Languages;

/// The heading of a column of the host's screens and lookup lists; a column that the table does not know is headed by
/// its own name.
QString columnTitle(std::string_view column, const Languages& languages);

/// Whether the column is shown at all: names that begin with "_" serve conditions and programs only.
bool isShownColumn(std::string_view column);

/// Whether the column holds quantities or amounts, which people read in groups of three digits.
bool isAmountColumn(std::string_view column);

/// The text of a cell as it is shown: states of documents come from the database in Czech and are translated here.
QString shownValue(std::string_view column, const QString& value, const Languages& languages);

} // namespace refhost
