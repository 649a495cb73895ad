#include "tests/database/RecalculationCompany.h"

#include <string>
#include <vector>

namespace refhost {

void addRecalculationCompany(Database& database) {
    const auto insert = [&database](const char* table, const std::vector<std::string>& columns,
                                    const std::vector<std::vector<TDbValue>>& rows) {
        database.insertRows(table, columns, rows);
    };
    const TDbValue none;
    insert("DPH", {"NAZEV", "SAZBA", "PLATIOD", "PLATIDO"},
           {{"21 %", "21", "2013-01-01", none},
            {"12 %", "12", "2024-01-01", none},
            {"0 %", "0", "2000-01-01", none},
            {"15 %", "15", "2013-01-01", "2023-12-31"}});
    database.runScript("delete from GLOBALPARAM where SEKCE = 'DPH'");
    insert("GLOBALPARAM", {"SEKCE", "NAZEV", "HODNOTA"}, {{"DPH", "DPHBLIC", "0"}, {"DPH", "SAZBADPHB", "2"}});
    const std::int64_t id = 1;
    insert("SKLAD", {"ID", "NAZEV"}, {{id, c_CompanyWarehouse}});
    insert("SKUPSPOL1", {"ID", "NAZEV"}, {{id, "Potraviny"}});
    insert("SKUPSPOL2", {"ID", "SSP1ID", "NAZEV"}, {{id, id, "Mlýnské výrobky"}});
    insert("SKUPSPOL3", {"ID", "SSP2ID", "NAZEV"}, {{id, id, "Mouky"}});
    insert("SKLADPOL", {"ID", "NAZEV", "SSP3ID", "DPHID"}, {{id, c_CompanyItem, id, id}});
    insert("SKPL", {"SKLPID", "PORADI", "NAZEV", "FAKTOR"}, {{id, std::int64_t{0}, "kg", "1"}});
}

void switchLocalVat(Database& database, bool on) {
    database.runScript(std::string("update GLOBALPARAM set HODNOTA = '") + (on ? "1" : "0") +
                       "' where SEKCE = 'DPH' and NAZEV = 'DPHBLIC'");
}

} // namespace refhost
