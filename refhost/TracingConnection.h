#pragma once

#include "host/Connection.h"

namespace refhost {

class Trace;

/// The connection as the module sees it: hands every call on and records it with its parameters and its outcome. A call
/// that was only sent is recorded as that, and its error where the module hears of it, with the row that it is about.
/// Asking which parameters a procedure declares is no call of the module and is not recorded.
class TracingConnection : public TConnection {
public:
    TracingConnection(TConnection& connection, Trace& trace);

    TProcedureInfo Describe(const AnsiString& procedure) override;
    TCallResult Execute(const TProcedureCall& call) override;
    TResultTable Query(const AnsiString& sql) override;

private:
    TConnection& connection_;
    Trace& trace_;
};

} // namespace refhost
