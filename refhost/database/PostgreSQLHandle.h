#pragma once

#include <libpq-fe.h>
#include <memory>

namespace refhost {

struct PostgreSQLDeleter {
    void operator()(PGconn* connection) const { PQfinish(connection); }
    void operator()(PGresult* result) const { PQclear(result); }
    void operator()(PGcancel* cancel) const { PQfreeCancel(cancel); }
    void operator()(PQconninfoOption* options) const { PQconninfoFree(options); }
    void operator()(PGnotify* news) const { PQfreemem(news); }
    /// Texts that the client library made.
    void operator()(char* text) const { PQfreemem(text); }
};

using PostgreSQLHandle = std::unique_ptr<PGconn, PostgreSQLDeleter>;
using PostgreSQLResult = std::unique_ptr<PGresult, PostgreSQLDeleter>;

} // namespace refhost
