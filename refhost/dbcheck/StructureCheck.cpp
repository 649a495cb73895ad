#include "refhost/dbcheck/StructureCheck.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <set>

namespace refhost {

namespace {

constexpr const char* c_OwnerRole = "melvark_owner";
constexpr const char* c_ClerkRole = "melvark_clerk";

/// Words in their Czech order: "č" follows "c", "ch" follows "h", which no order of bytes gives.
constexpr std::array<const char*, 5> c_CzechOrder{"Cukr", "Čaj", "Hrách", "Chléb", "Ibišek"};

const DeclaredName* findName(const DeclaredNames& names, std::string_view name) {
    const auto found =
        std::ranges::find_if(names, [&](const DeclaredName& each) { return SameDbName(each.Name, name); });
    return found == names.end() ? nullptr : &*found;
}

/// The columns of a result with the types that its first row tells.
DeclaredNames columnsOf(const TResultTable& table) {
    DeclaredNames names;
    for (std::size_t column = 0; column < table.Columns.size(); ++column) {
        const TDbValue value = table.Rows.empty() ? TDbValue() : table.Rows.front()[column];
        const char* type = std::holds_alternative<std::int64_t>(value) ? "integer"
                           : std::holds_alternative<AnsiString>(value) ? "text"
                                                                       : "";
        names.push_back({table.Columns[column], type});
    }
    return names;
}

/// The condition as the editors would send it, no document being open.
std::string filledCondition(std::string condition) {
    for (const auto& [place, value] : {std::pair("%d", "-1"), std::pair("%s", "1.2.2027 12:00:00")}) {
        for (std::size_t at = condition.find(place); at != condition.npos; at = condition.find(place)) {
            condition.replace(at, 2, value);
        }
    }
    return condition;
}

/// The calls of functions in a condition, the outer one first: the name, and the call as it stands there.
struct FunctionCall {
    std::string Name;
    std::string Text;
};

std::vector<FunctionCall> callsIn(const std::string& condition) {
    std::vector<FunctionCall> calls;
    for (std::size_t at = condition.find("V_"); at != condition.npos; at = condition.find("V_", at + 1)) {
        const std::size_t opening = condition.find('(', at);
        const std::size_t closing = calls.empty() ? condition.rfind(')') : condition.find(')', opening);
        calls.push_back({condition.substr(at, opening - at), condition.substr(at, closing + 1 - at)});
    }
    return calls;
}

class StructureCheck {
public:
    StructureCheck(const DatabaseContract& contract, DatabaseInspector& database)
        : contract_(contract), database_(database) {}

    Findings run() {
        for (const auto& [name, expected] : contract_.Procedures) {
            checkProcedure(name, expected);
        }
        for (const auto& [name, columns] : contract_.Views) {
            checkColumns(FindingKind::ViewUnusable, name, "select * from " + name, columns);
        }
        for (const DatabaseContract::FixedQuery& query : contract_.Queries) {
            checkQuery(query);
        }
        for (const DatabaseContract::ListCondition& condition : contract_.Conditions) {
            checkCondition(condition);
        }
        if (database_.hasRoles()) {
            checkRoles();
        }
        return std::move(findings_);
    }

private:
    void note(FindingKind kind, const std::string& object, const std::string& member, const EDatabaseError& error) {
        if (isOutOfReach(error)) {
            throw error;
        }
        findings_.push_back({kind, object, member, {}, {}, error});
    }

    void checkProcedure(const std::string& name, const ProcedureDeclaration& expected) {
        try {
            const std::optional<ProcedureDeclaration> found = database_.procedure(name);
            if (!found) {
                findings_.push_back({missingKind(name), name, {}, {}, {}});
            } else if (found->Namesakes > 1) {
                findings_.push_back({FindingKind::ProcedureAmbiguous, name, {}, "1", std::to_string(found->Namesakes)});
            } else {
                compareProcedure(name, expected, *found);
            }
        } catch (const EDatabaseError& error) {
            note(FindingKind::ProcedureUnusable, name, {}, error);
        }
    }

    FindingKind missingKind(const std::string& name) const {
        return contract_.OfIdentity.contains(name) ? FindingKind::SavesUnidentified : FindingKind::ProcedureMissing;
    }

    void compareProcedure(const std::string& name, const ProcedureDeclaration& expected,
                          const ProcedureDeclaration& found) {
        compareMembers(name, expected.Inputs, found.Inputs, FindingKind::ParameterMissing, FindingKind::ParameterType,
                       findings_);
        for (const DeclaredName& input : found.Inputs) {
            if (!input.MayBeLeftOut) {
                findings_.push_back({FindingKind::ParameterNeeded, name, input.Name, "default null", {}});
            }
        }
        compareMembers(name, expected.Outputs, found.Outputs, FindingKind::OutputMissing, FindingKind::OutputType,
                       findings_);
        if (found.Sets) {
            compareSets(name, *expected.Sets, *found.Sets);
        } else if (expected.Inputs.empty()) {
            compareSets(name, *expected.Sets, calledSets(name));
        }
    }

    std::vector<DeclaredNames> calledSets(const std::string& name) {
        std::vector<DeclaredNames> sets;
        std::ranges::transform(database_.call({name, {}, true}).Sets, std::back_inserter(sets), columnsOf);
        return sets;
    }

    void compareSets(const std::string& name, const std::vector<DeclaredNames>& expected,
                     const std::vector<DeclaredNames>& found) {
        if (found.size() < expected.size()) {
            findings_.push_back(
                {FindingKind::SetMissing, name, {}, std::to_string(expected.size()), std::to_string(found.size())});
            return;
        }
        for (std::size_t set = 0; set < expected.size(); ++set) {
            compareMembers(name, expected[set], found[set], FindingKind::ColumnMissing, FindingKind::ColumnType,
                           findings_);
        }
    }

    /// False when the statement does not run at all.
    bool checkColumns(FindingKind unusable, const std::string& object, const std::string& sql,
                      const DeclaredNames& expected) {
        try {
            compareMembers(object, expected, database_.columns(sql), FindingKind::ViewColumnMissing,
                           FindingKind::ViewColumnType, findings_);
            return true;
        } catch (const EDatabaseError& error) {
            note(unusable, object, {}, error);
            return false;
        }
    }

    void checkQuery(const DatabaseContract::FixedQuery& query) {
        if (checkColumns(FindingKind::QueryUnusable, query.Sql, query.Sql, query.Columns)) {
            checkOrder(query);
        }
    }

    /// Sorts words of ours as the query sorts its own: a union has the collation of its first part's column.
    void checkOrder(const DatabaseContract::FixedQuery& query) {
        const std::string column = query.Columns.front().Name;
        std::string words = query.Sql.substr(0, query.Sql.find(" order by")) + " where 1 = 0";
        std::string expected;
        for (const char* word : c_CzechOrder) {
            words += " union all select '" + std::string(word) + "'";
            expected += (expected.empty() ? "" : ", ") + std::string(word);
        }
        std::string found;
        for (const auto& row :
             database_.query("select " + column + " from (" + words + ") WORDS order by " + column).Rows) {
            found += (found.empty() ? "" : ", ") + std::get<AnsiString>(row.front());
        }
        if (found != expected) {
            findings_.push_back({FindingKind::QueryOrder, query.Sql, column, expected, found});
        }
    }

    void checkCondition(const DatabaseContract::ListCondition& condition) {
        const std::string filled = filledCondition(condition.Text);
        const std::vector<FunctionCall> calls = callsIn(filled);
        for (auto inner = calls.begin() + 1; inner != calls.end(); ++inner) {
            checkFunction(inner->Name, inner->Text, "select " + inner->Text);
        }
        checkFunction(calls.front().Name, condition.Text, "select 1 from " + condition.View + " where " + filled);
    }

    void checkFunction(const std::string& name, const std::string& condition, const std::string& sql) {
        try {
            database_.columns(sql);
        } catch (const EDatabaseError& error) {
            note(FindingKind::FunctionUnusable, name, condition, error);
        }
    }

    void checkRoles() {
        for (const char* role : {c_OwnerRole, c_ClerkRole}) {
            if (!database_.hasRole(role)) {
                findings_.push_back({FindingKind::RoleMissing, role, {}, {}, {}});
            }
        }
        if (database_.hasRole(c_ClerkRole)) {
            checkRights();
        }
    }

    void checkRights() {
        if (!database_.mayEnter(c_ClerkRole)) {
            findings_.push_back({FindingKind::RoleOutside, c_ClerkRole, {}, {}, {}});
        }
        for (const std::string& name : routines()) {
            if (!database_.mayCall(c_ClerkRole, name)) {
                findings_.push_back({FindingKind::RoleMayNotCall, c_ClerkRole, name, {}, {}});
            }
        }
        for (const auto& [name, columns] : contract_.Views) {
            if (!database_.mayRead(c_ClerkRole, name)) {
                findings_.push_back({FindingKind::RoleMayNotRead, c_ClerkRole, name, {}, {}});
            }
        }
        for (const std::string& table : database_.writable(c_ClerkRole)) {
            findings_.push_back({FindingKind::RoleMayWrite, c_ClerkRole, table, {}, {}});
        }
    }

    std::set<std::string> routines() const {
        std::set<std::string> names;
        for (const auto& [name, declaration] : contract_.Procedures) {
            names.insert(name);
        }
        for (const DatabaseContract::ListCondition& condition : contract_.Conditions) {
            for (const FunctionCall& call : callsIn(condition.Text)) {
                names.insert(call.Name);
            }
        }
        return names;
    }

    const DatabaseContract& contract_;
    DatabaseInspector& database_;
    Findings findings_;
};

} // namespace

bool isOutOfReach(const EDatabaseError& error) {
    constexpr std::array<std::string_view, 4> c_Codes{"ML910", "ML912", "ML916", "ML917"};
    return std::ranges::find(c_Codes, error.Code()) != c_Codes.end();
}

void compareMembers(const std::string& object, const DeclaredNames& expected, const DeclaredNames& found,
                    FindingKind missing, FindingKind ofOtherType, Findings& findings) {
    for (const DeclaredName& name : expected) {
        const DeclaredName* const same = findName(found, name.Name);
        if (same == nullptr) {
            findings.push_back({missing, object, name.Name, name.Type, {}});
        } else if (!same->Type.empty() && same->Type != name.Type) {
            findings.push_back({ofOtherType, object, name.Name, name.Type, same->Type});
        }
    }
}

Findings checkStructure(const DatabaseContract& contract, DatabaseInspector& database) {
    return StructureCheck(contract, database).run();
}

} // namespace refhost
