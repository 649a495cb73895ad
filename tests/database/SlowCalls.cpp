#include "tests/database/SlowCalls.h"

#include "host/AsciiCase.h"
#include "refhost/database/EmbeddedSql.h"

#include <fstream>
#include <stdexcept>

namespace refhost {

namespace {

constexpr std::string_view c_Wanted = "(select HODNOTA from GLOBALPARAM where SEKCE = 'ZKOUSKA' and NAZEV = 'TRVANI')";

std::string shipped(std::span<const SqlFile> files, std::string_view procedure) {
    for (const SqlFile& file : files) {
        if (file.Path.starts_with("procedures/") && sqlObjectName(file) == procedure) {
            return std::string(file.Text);
        }
    }
    throw std::logic_error("no procedure " + std::string(procedure));
}

/// A statement of the name that only refusals have brings nothing.
std::string slowOnSQLite(std::string_view procedure) {
    std::string text = shipped(sqliteFiles(), procedure);
    return text.insert(text.find("\n\n") + 1,
                       "\nwith recursive STEPS(N) as (select 1 union all select N + 1 from STEPS where N < " +
                           std::string(c_Wanted) + " + 0)\nselect N as refusal from STEPS where N < 0;\n");
}

std::string slowOnServer(std::string_view procedure) {
    constexpr std::string_view c_Create = "create function";
    constexpr std::string_view c_Begin = "\nbegin\n";
    std::string text = shipped(postgresqlFiles(), procedure);
    text.insert(text.find(c_Begin) + c_Begin.size(),
                "    perform pg_sleep(" + std::string(c_Wanted) + "::double precision / 1000000);\n");
    text.replace(text.find(c_Create), c_Create.size(), "create or replace function");
    return text +
           "do $$ begin execute format('alter function %s security definer set search_path = melvark, pg_temp', '" +
           melvark::LowerAscii(procedure) + "'::regproc::oid::regprocedure); end $$;"; // as it was
}

} // namespace

SlowCalls::SlowCalls(std::string url, std::initializer_list<std::string_view> procedures, std::filesystem::path folder)
    : url_(std::move(url)), folder_(std::move(folder)), isServer_(url_.starts_with("postgresql:")) {
    const auto database = openAs(url_, "dvorak");
    for (const std::string_view procedure : procedures) {
        if (isServer_) {
            database->runScript(slowOnServer(procedure));
        } else {
            std::ofstream(folder_ / (std::string(procedure) + ".sql")) << slowOnSQLite(procedure);
        }
    }
    database->runScript("insert into GLOBALPARAM (SEKCE, NAZEV, HODNOTA) values ('ZKOUSKA', 'TRVANI', '1')");
}

void SlowCalls::take(long amount) const {
    openAs(url_, "dvorak")
        ->runScript("update GLOBALPARAM set HODNOTA = '" + std::to_string(amount) + "' where SEKCE = 'ZKOUSKA'");
}

void SlowCalls::install(Database& database) const {
    if (!isServer_) {
        database.useProcedures(folder_.string());
    }
}

} // namespace refhost
