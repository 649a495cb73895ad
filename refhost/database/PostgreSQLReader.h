#pragma once

#include "refhost/database/PostgreSQLSession.h"
#include "refhost/database/RowReader.h"

#include <optional>

namespace refhost {

/// The rows of a reading statement of the server: a cursor in a transaction that lasts until the end of the reading. A
/// session has one at a time, and does nothing else meanwhile.
class PostgreSQLReader : public RowReader {
public:
    /// Throws EDatabaseError; refuses what brings no rows (refuseQuery).
    PostgreSQLReader(PostgreSQLSession& session, const AnsiString& sql);

    const std::vector<AnsiString>& columns() const override { return columns_; }

protected:
    Rows fetch(std::size_t most) override;
    void release() noexcept override { transaction_.reset(); }

private:
    PostgreSQLSession& session_;
    std::optional<PostgreSQLTransaction> transaction_;
    std::vector<AnsiString> columns_;
};

} // namespace refhost
