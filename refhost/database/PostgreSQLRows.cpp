#include "refhost/database/PostgreSQLRows.h"

#include "host/AsciiCase.h"

#include <charconv>

namespace refhost {

namespace {

/// The server's numbers of its types, which are fixed for ever.
enum TypeNumber : Oid { Boolean = 16, Integer64 = 20, Integer16 = 21, Integer32 = 23, Float32 = 700, Float64 = 701 };
constexpr Oid c_Void = 2278;

template <typename Number>
Number number(std::string_view text) {
    Number value{};
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

TDbValue cellValue(const PGresult* result, int row, int column) {
    if (PQgetisnull(result, row, column) == 1) {
        return {};
    }
    const std::string_view text(PQgetvalue(result, row, column),
                                static_cast<std::size_t>(PQgetlength(result, row, column)));
    switch (PQftype(result, column)) {
    case Boolean:
        return std::int64_t{text == "t" ? 1 : 0};
    case Integer16:
    case Integer32:
    case Integer64:
        return number<std::int64_t>(text);
    case Float32:
    case Float64:
        return number<double>(text);
    default:
        return AnsiString(text);
    }
}

} // namespace

TResultTable resultTable(const PGresult* result) {
    TResultTable table;
    const int columns = PQnfields(result);
    const int rows = PQntuples(result);
    for (int column = 0; column < columns; ++column) {
        table.Columns.push_back(melvark::UpperAscii(PQfname(result, column)));
    }
    table.Rows.resize(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) {
        std::vector<TDbValue>& values = table.Rows[static_cast<std::size_t>(row)];
        values.reserve(static_cast<std::size_t>(columns));
        for (int column = 0; column < columns; ++column) {
            values.push_back(cellValue(result, row, column));
        }
    }
    return table;
}

bool isVoid(const PGresult* result) {
    return PQnfields(result) == 1 && PQftype(result, 0) == c_Void;
}

} // namespace refhost
