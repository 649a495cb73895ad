#include "refhost/database/SQLiteInspector.h"

#include "host/Exceptions.h"

#include <algorithm>
#include <iterator>

namespace refhost {

namespace {

constexpr std::chrono::seconds c_Patience{5};

/// Names without types.
DeclaredNames declared(const std::vector<std::string>& names) {
    DeclaredNames result;
    std::ranges::transform(names, std::back_inserter(result), [](const std::string& name) {
        return DeclaredName{name, {}};
    });
    return result;
}

const char* typeOf(ParameterKind kind) {
    switch (kind) {
    case ParameterKind::Integer:
        return "integer";
    case ParameterKind::Boolean:
        return "boolean";
    case ParameterKind::Text:
        break;
    }
    return "text";
}

} // namespace

SQLiteInspector::SQLiteInspector(const std::string& file, const std::string& user, const TFormatSettings& settings,
                                 const std::string& procedures)
    : connection_(file, user, settings, OpenMode::ReadingOnly, c_Patience) {
    if (!procedures.empty()) {
        connection_.useProcedures(procedures);
    }
}

std::optional<ProcedureDeclaration> SQLiteInspector::procedure(const AnsiString& name) {
    const SqlScript& script = connection_.script(name);
    ProcedureDeclaration declaration;
    for (const SqlScript::Parameter& input : script.Inputs) {
        declaration.Inputs.push_back({input.Name, typeOf(input.Kind)});
    }
    declaration.Outputs = declared(script.Outputs);
    declaration.Sets.emplace();
    std::ranges::transform(script.Results, std::back_inserter(*declaration.Sets), declared);
    return declaration;
}

DeclaredNames SQLiteInspector::columns(const AnsiString& sql) {
    return declared(connection_.columns(sql));
}

} // namespace refhost
