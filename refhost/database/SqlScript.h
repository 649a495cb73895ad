#pragma once

#include "refhost/database/EmbeddedSql.h"
#include "refhost/database/ParameterValues.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace refhost {

/// A procedure or function of the embedded engine: SQL statements under a header of comments that declares what they
/// take and bring. The header lines:
///
///     -- in: a_DODKID integer            one a line, in order; integer, boolean or text (text when not said)
///     -- out: a_OBNOVDATA                a select of just these columns sets the output parameters
///     -- returns: NAZEV, ID              the columns of a result set, one line a set, in order
///     -- begins: a save                  the rows of a save are counted from here
///     -- answer: may come later          the caller may go on before it is known whether this succeeded: if it did
///                                        not, a later row or the closing call of the save says so
///     -- after failure: staging refused  a failure closes the save that is under way until its rows are emptied
///     -- include: recalculation          (anywhere) the text of parts/recalculation.sql stands here
///
/// A run of comment lines of the header that has one declaration, or nothing but lines of that form, has to declare
/// something in every line: a misspelt declaration is an error and no comment. The build reads all of them once.
///
/// The server's procedures have headers too, with those lines that are about a save.
///
/// This class reads the text only; SQLiteProcedure runs it.
struct SqlScript {
    /// What the procedure is in a save.
    struct SaveRole {
        bool Begins = false;
        bool AnswerMayComeLater = false;
        bool FailureRefusesStaging = false;

        bool operator==(const SaveRole&) const = default;
    };

    struct Parameter {
        std::string Name;
        ParameterKind Kind = ParameterKind::Text;
    };

    std::string Name;
    std::vector<Parameter> Inputs;
    std::vector<std::string> Outputs;
    std::vector<std::vector<std::string>> Results;
    SaveRole Save;
    std::string Text;
};

/// Reads a file of `files`, which also holds the parts that it includes. Throws std::logic_error, naming the file, for
/// a declaration or part that does not exist, and for a declaration behind the header.
SqlScript readSqlScript(const SqlFile& file, std::span<const SqlFile> files);

/// The script at `path` of `files`. Throws std::logic_error when there is none.
SqlScript builtInScript(std::string_view path, std::span<const SqlFile> files);

} // namespace refhost
