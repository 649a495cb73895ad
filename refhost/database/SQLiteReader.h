#pragma once

#include "refhost/database/RowReader.h"
#include "refhost/database/SQLiteStatement.h"

namespace refhost {

/// The rows of a reading statement of the embedded engine, which steps on as they are read.
class SQLiteReader : public RowReader {
public:
    explicit SQLiteReader(SQLiteStatement statement);

    const std::vector<AnsiString>& columns() const override { return columns_; }

protected:
    Rows fetch(std::size_t most) override;
    void release() noexcept override { statement_.reset(); }

private:
    SQLiteStatement statement_;
    std::vector<AnsiString> columns_;
};

} // namespace refhost
