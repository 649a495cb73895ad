#include "refhost/database/SQLiteReader.h"

namespace refhost {

SQLiteReader::SQLiteReader(SQLiteStatement statement)
    : statement_(std::move(statement)), columns_(statement_.columns()) {}

RowReader::Rows SQLiteReader::fetch(std::size_t most) {
    Rows rows;
    while (rows.size() < most && statement_.step()) {
        rows.push_back(statement_.row());
    }
    return rows;
}

} // namespace refhost
