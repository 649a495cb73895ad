#pragma once

#include "refhost/database/DatabaseInspector.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace refhost {

/// What the editors and the host need of a database: the tables of docs/procedures.md, which is built into the program,
/// so that a database is checked against the very page that its author has read.
struct DatabaseContract {
    /// A query that the editors ask word for word.
    struct FixedQuery {
        std::string Sql;
        DeclaredNames Columns;
    };

    /// A condition with which the editors restrict a list; %d and %s stand for what they put in.
    struct ListCondition {
        std::string View;
        std::string Text;
    };

    std::map<std::string, ProcedureDeclaration> Procedures;
    std::set<std::string> OfIdentity; ///< Those of them that a database may do without.
    std::map<std::string, DeclaredNames> Views;
    std::vector<FixedQuery> Queries;
    std::vector<ListCondition> Conditions;
    std::vector<std::string> PriceColumns; ///< The sixteen, in the page's order.
};

/// Read once. Throws std::logic_error when the page has lost one of its tables.
const DatabaseContract& contract();

/// The text of docs/procedures.md.
std::string_view proceduresPage();

/// The cells of the page's table whose first heading is `heading`, a vector a row.
std::vector<std::vector<std::string>> pageTable(std::string_view heading);

/// What stands between the backticks of a cell, in order.
std::vector<std::string> codeOf(std::string_view cell);

} // namespace refhost
