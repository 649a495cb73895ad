// Reads the head of every shipped script once, so that a mistake in it fails the build and not the first call: a
// declaration that there is none of, a step of a save that does not close the save when it fails, an answer that may
// come later although it brings something or does not close the save, and a role in a save on one engine only.

#include "refhost/database/SqlScript.h"

#include <cstdio>
#include <map>
#include <stdexcept>

namespace {

using refhost::SqlFile;
using refhost::SqlScript;

void require(bool holds, const SqlFile& file, const char* mistake) {
    if (!holds) {
        throw std::logic_error(std::string(file.Path) + ": " + mistake);
    }
}

/// The roles in a save by the names of the procedures.
std::map<std::string, SqlScript::SaveRole> readAll(std::span<const SqlFile> files, bool isEmbedded) {
    std::map<std::string, SqlScript::SaveRole> roles;
    for (const SqlFile& file : files) {
        const bool isProcedure = file.Path.starts_with("procedures/");
        if (!isProcedure && !(isEmbedded && file.Path.starts_with("functions/"))) {
            continue;
        }
        const SqlScript script = refhost::readSqlScript(file, files);
        require(isEmbedded || (script.Inputs.empty() && script.Outputs.empty() && script.Results.empty()), file,
                "the server's own declaration says what it takes and brings");
        if (isProcedure) {
            const bool isStep = script.Text.find("refuse_closed_staging(") != std::string::npos ||
                                script.Text.find("refuse_wrong_identity(") != std::string::npos;
            require(isStep == script.Save.FailureRefusesStaging, file, "a step of a save says what its failure does");
            require(!script.Save.AnswerMayComeLater || (isStep && script.Outputs.empty() && script.Results.empty()),
                    file, "an answer may come later only when it brings nothing and its failure closes the save");
            roles[script.Name] = script.Save;
        }
    }
    return roles;
}

} // namespace

int main() {
    try {
        if (readAll(refhost::sqliteFiles(), true) != readAll(refhost::postgresqlFiles(), false)) {
            throw std::logic_error("the engines do not declare the same procedures in the same way");
        }
        return 0;
    } catch (const std::logic_error& mistake) {
        std::fprintf(stderr, "%s\n", mistake.what());
        return 1;
    }
}
