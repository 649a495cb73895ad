#pragma once

#include "host/FormatSettings.h"
#include "refhost/database/DatabaseInspector.h"
#include "refhost/database/SQLiteConnection.h"

namespace refhost {

/// Looks at a file that was opened for reading only, through the program's procedures and those of a folder. A file has
/// no roles, and its columns have no types that would tell anything.
class SQLiteInspector : public DatabaseInspector {
public:
    /// `procedures` is a folder of scripts, empty for none. Throws EDatabaseError.
    SQLiteInspector(const std::string& file, const std::string& user, const TFormatSettings& settings,
                    const std::string& procedures);

    bool hasSchema() override { return connection_.hasSchema(); }
    std::optional<ProcedureDeclaration> procedure(const AnsiString& name) override;
    DeclaredNames columns(const AnsiString& sql) override;
    TCallResult call(const TProcedureCall& call) override { return connection_.Execute(call); }
    TResultTable query(const AnsiString& sql) override { return connection_.Query(sql); }

    bool hasRoles() const override { return false; }
    bool hasRole(std::string_view /*role*/) override { return true; }
    bool mayEnter(std::string_view /*role*/) override { return true; }
    bool mayCall(std::string_view /*role*/, std::string_view /*name*/) override { return true; }
    bool mayRead(std::string_view /*role*/, std::string_view /*view*/) override { return true; }
    std::vector<std::string> writable(std::string_view /*role*/) override { return {}; }

private:
    SQLiteConnection connection_;
};

} // namespace refhost
