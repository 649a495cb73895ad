#include "tests/database/SQLiteFile.h"

namespace refhost {

namespace {

constexpr const char* c_Company = R"(
    insert into SKLAD (NAZEV) values ('Hlavní sklad');
    insert into DODAVATEL (JMENO) values ('Mlékárna');
    insert into DPH (NAZEV, SAZBA, PLATIOD) values ('12 %', '12', '2024-01-01');
    insert into SKUPSPOL1 (NAZEV) values ('Potraviny');
    insert into SKUPSPOL2 (SSP1ID, NAZEV) values (1, 'Mléčné');
    insert into SKUPSPOL3 (SSP2ID, NAZEV) values (1, 'Mléko');
    insert into SKLADPOL (NAZEV, SSP3ID, DPHID) values ('Mléko', 1, 1);
    insert into SKPL (SKLPID, PORADI, NAZEV, FAKTOR) values (1, 0, 'ks', '1');
    insert into DODAK (CISLO, DATUM, DODVID, SKLDID) values ('DL-1', '2026-03-10', 1, 1), ('DL-2', '2026-03-10', 1, 1);
)";

std::string valueText(const TDbValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*number);
    }
    if (const auto* text = std::get_if<AnsiString>(&value)) {
        return *text;
    }
    return "-";
}

} // namespace

std::unique_ptr<SQLiteConnection> SQLiteFile::open(const std::string& user, bool create) const {
    return std::make_unique<SQLiteConnection>(path_.string(), user, TFormatSettings::Czech(),
                                              create ? OpenMode::Create : OpenMode::Existing,
                                              std::chrono::milliseconds(0));
}

std::unique_ptr<SQLiteConnection> SQLiteFile::createCompany() const {
    auto database = open();
    database->createSchema();
    database->runScript(c_Company);
    return database;
}

TProcedureCall procedureCall(const std::string& name, std::vector<TDbParam> params) {
    return {name, std::move(params), true};
}

std::string rowsText(Database& database, const std::string& sql) {
    std::string text;
    for (const std::vector<TDbValue>& row : database.Query(sql).Rows) {
        text += text.empty() ? "" : "|";
        for (std::size_t i = 0; i < row.size(); ++i) {
            text += (i == 0 ? "" : ",") + valueText(row[i]);
        }
    }
    return text;
}

} // namespace refhost
