#include "refhost/database/ProcedureFolder.h"

#include "refhost/database/RefusalTable.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace refhost {

ProcedureFolder::ProcedureFolder(const std::string& folder) : files_(sqliteFiles().begin(), sqliteFiles().end()) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        if (entry.path().extension() != ".sql") {
            continue;
        }
        std::ostringstream text;
        text << std::ifstream(entry.path()).rdbuf();
        replace(entry.path().stem().string(), text.str());
    }
    if (error) {
        throw refusal("ML932/folder", {folder}, error.message());
    }
}

void ProcedureFolder::replace(std::string_view name, std::string text) {
    const auto shipped = std::ranges::find_if(files_, [name](const SqlFile& file) {
        return file.Path.starts_with("procedures/") && SameDbName(sqlObjectName(file), name);
    });
    if (shipped == files_.end()) {
        throw refusal("ML932/name", {std::string(name)});
    }
    shipped->Text = texts_.emplace_back(std::move(text));
    readProcedure(*shipped, files_);
}

SqlScript readProcedure(const SqlFile& file, std::span<const SqlFile> files) {
    try {
        return readSqlScript(file, files);
    } catch (const std::logic_error& error) {
        throw scriptError(sqlObjectName(file), error.what());
    }
}

EDatabaseError scriptError(std::string_view procedure, std::string_view reason) {
    return refusal("ML932", {std::string(procedure)}, std::string(reason));
}

} // namespace refhost
