#pragma once

#include "host/Connection.h"
#include "host/FormatSettings.h"

#include <QCollator>

#include <cstddef>
#include <variant>
#include <vector>

namespace refhost {

/// What the values of a column have in common. A column of nothing but nulls counts as text.
enum class ColumnKind { Text, Number, Moment };

/// Looks at every value of the column: numbers and dates in the locale's spelling are what they mean, as soon as one
/// value is neither, the column is text. Empty values have no say.
ColumnKind columnKind(const TResultTable& table, std::size_t column, const TFormatSettings& settings);

/// The keys by which the rows of one column are ordered: numbers by size, dates by time, texts in Czech order without
/// regard to case and with numbers inside them by size. Empty values come first.
class SortKeys {
public:
    SortKeys(const TResultTable& table, std::size_t column, ColumnKind kind, const TFormatSettings& settings);

    bool isLess(std::size_t leftRow, std::size_t rightRow) const;

private:
    std::variant<std::vector<double>, std::vector<QCollatorSortKey>> keys_;
};

} // namespace refhost
