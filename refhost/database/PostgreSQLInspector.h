#pragma once

#include "host/FormatSettings.h"
#include "refhost/database/DatabaseInspector.h"
#include "refhost/database/PostgreSQLSession.h"

#include <map>

namespace refhost {

/// Looks at a server's database in a session all of whose transactions are read-only.
class PostgreSQLInspector : public DatabaseInspector {
public:
    /// `procedures` has to be empty: the server keeps its procedures itself. Throws EDatabaseError.
    PostgreSQLInspector(const std::string& address, const TFormatSettings& settings, const std::string& procedures);

    bool hasSchema() override;
    std::optional<ProcedureDeclaration> procedure(const AnsiString& name) override;
    DeclaredNames columns(const AnsiString& sql) override;
    TCallResult call(const TProcedureCall& call) override;
    TResultTable query(const AnsiString& sql) override;

    bool hasRoles() const override { return true; }
    bool hasRole(std::string_view role) override;
    bool mayEnter(std::string_view role) override;
    bool mayCall(std::string_view role, std::string_view name) override;
    bool mayRead(std::string_view role, std::string_view view) override;
    std::vector<std::string> writable(std::string_view role) override;

private:
    DeclaredNames described(const std::string& sql);
    std::string typeName(Oid type);
    bool isTrue(const std::string& sql, const std::vector<TDbValue>& parameters);

    PostgreSQLSession session_;
    std::map<Oid, std::string> typeNames_; ///< As far as they were asked for.
};

} // namespace refhost
