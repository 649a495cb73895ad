#pragma once

#include "host/Connection.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace refhost {

/// A parameter or a column as a database declares it.
struct DeclaredName {
    AnsiString Name;
    std::string
        Type; ///< "integer", "boolean", "text", another type by the engine's own name; empty when it keeps none.
    bool MayBeLeftOut = true;

    bool operator==(const DeclaredName&) const = default;
};

using DeclaredNames = std::vector<DeclaredName>;

/// What a procedure takes and brings.
struct ProcedureDeclaration {
    DeclaredNames Inputs;
    DeclaredNames Outputs;
    /// Nothing when only a call tells: several sets come as cursors on the server.
    std::optional<std::vector<DeclaredNames>> Sets;
    /// How many procedures bear the name.
    int Namesakes = 1;
};

/// Looks at a database and changes nothing in it, whatever is called: what it declares, what it answers, and who may do
/// what. It knows no contract; the program that checks a database holds against that what is told here.
///
/// Made by inspectDatabase (Databases.h).
class DatabaseInspector {
public:
    DatabaseInspector() = default;
    DatabaseInspector(const DatabaseInspector&) = delete;
    DatabaseInspector& operator=(const DatabaseInspector&) = delete;
    virtual ~DatabaseInspector();

    /// Whether there is a company in it. Throws EDatabaseError for another program's database or another version.
    virtual bool hasSchema() = 0;

    /// Nothing when there is none of that name. Throws EDatabaseError when it cannot run as it stands.
    virtual std::optional<ProcedureDeclaration> procedure(const AnsiString& name) = 0;

    /// What a reading statement brings; it is not run. Throws EDatabaseError when it cannot be.
    virtual DeclaredNames columns(const AnsiString& sql) = 0;

    /// Throws EDatabaseError, also when the call would write.
    virtual TCallResult call(const TProcedureCall& call) = 0;
    virtual TResultTable query(const AnsiString& sql) = 0;

    /// Whether rights hang on roles of the database. The questions below are asked only when they do.
    virtual bool hasRoles() const = 0;
    virtual bool hasRole(std::string_view role) = 0;
    virtual bool mayEnter(std::string_view role) = 0;
    /// Every procedure and function of that name; true when there is none.
    virtual bool mayCall(std::string_view role, std::string_view name) = 0;
    /// True when there is no such view.
    virtual bool mayRead(std::string_view role, std::string_view view) = 0;
    /// The company's tables and views into which the role may write.
    virtual std::vector<std::string> writable(std::string_view role) = 0;
};

} // namespace refhost
