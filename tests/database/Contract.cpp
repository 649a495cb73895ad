#include "tests/database/Contract.h"

#include "host/Exceptions.h"
#include "refhost/database/EmbeddedSql.h"
#include "tests/database/ContractCompany.h"

#include <algorithm>
#include <map>

namespace refhost {

namespace {

/// The tables, those first that others refer to.
constexpr std::string_view c_Tables[] = {
    "UZIVATEL",   "SKLAD",         "DODAVATEL",       "DPH",        "GLOBALPARAM",
    "SKUPSPOL1",  "SKUPSPOL2",     "SKUPSPOL3",       "SKLADPOL",   "SKPL",
    "DODCENIK",   "DODOBJEDNAVKA", "DODOBJPOL",       "DODAK",      "DODAKPOL",
    "DODAKZDROJ", "DODOBJZDROJ",   "EDITORNASTAVENI", "EDITOROKNO", "EDITORNASTAVENIDEF",
};

} // namespace

std::string outcome(Database& database, const std::string& procedure, const Parameters& parameters) {
    try {
        database.Execute({procedure, parameters, false});
        database.awaitAnswers();
        return "accepted";
    } catch (const EDatabaseError& error) {
        return error.Code();
    }
}

TDbValue id(std::int64_t value) {
    return value;
}

std::string digest(Database& database, const std::vector<std::string>& except) {
    std::string text;
    for (const std::string_view table : c_Tables) {
        if (std::ranges::find(except, table) != except.end()) {
            continue;
        }
        std::string content = tableText(database.Query("select * from " + std::string(table)));
        std::vector<std::string> lines;
        for (std::size_t start = 0; start <= content.size();) {
            const std::size_t end = std::min(content.find('\n', start), content.size());
            lines.push_back(content.substr(start, end - start));
            start = end + 1;
        }
        std::ranges::sort(lines); // a table has no order of its own
        text += std::string(table) + "\n";
        for (const std::string& line : lines) {
            text += line + "\n";
        }
    }
    return text;
}

std::vector<std::string> procedureNames() {
    std::vector<std::string> names;
    for (const SqlFile& file : sqliteFiles()) {
        if (file.Path.starts_with("procedures/")) {
            names.emplace_back(sqlObjectName(file));
        }
    }
    return names;
}

Database& sharedCompanyOn(Engine engine) {
    static std::map<Engine, std::unique_ptr<Database>> companies;
    std::unique_ptr<Database>& database = companies[engine];
    if (!database) {
        database = newDatabase(engine);
        addContractCompany(*database);
    }
    return *database;
}

Database& Contract::sharedCompany() {
    return sharedCompanyOn(GetParam());
}

std::unique_ptr<Database> Contract::ownCompany() {
    std::unique_ptr<Database> database = newDatabase(GetParam());
    addContractCompany(*database);
    return database;
}

std::string Contract::ownCompanyUrl() {
    std::string url = newDatabaseUrl(GetParam());
    addContractCompany(*openAs(url, "novakova"));
    return url;
}

std::string engineOf(const testing::TestParamInfo<Engine>& info) {
    return engineName(info.param);
}

} // namespace refhost
