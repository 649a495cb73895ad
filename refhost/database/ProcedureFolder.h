#pragma once

#include "host/Exceptions.h"
#include "refhost/database/EmbeddedSql.h"
#include "refhost/database/SqlScript.h"

#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace refhost {

/// The embedded engine's files with scripts of a folder in the place of procedures: "NAME.sql" replaces the procedure
/// NAME, its letters in any case. A script is written like the shipped ones (SqlScript) and may include their parts.
class ProcedureFolder {
public:
    /// Throws EDatabaseError when there is no such folder, or a script in it is no procedure's or has a mistake in its
    /// header.
    explicit ProcedureFolder(const std::string& folder);

    /// They live as long as this object.
    std::span<const SqlFile> files() const { return files_; }

private:
    void replace(std::string_view name, std::string text);

    std::deque<std::string> texts_; ///< Of the replaced procedures; their addresses stay.
    std::vector<SqlFile> files_;
};

/// The script of a procedure. Throws EDatabaseError, naming it, for a mistake in its header.
SqlScript readProcedure(const SqlFile& file, std::span<const SqlFile> files);

/// The refusal of a procedure's script, for an administrator; `reason` goes to its details.
EDatabaseError scriptError(std::string_view procedure, std::string_view reason);

} // namespace refhost
