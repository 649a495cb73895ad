#include "tests/database/SampleContent.h"

#include "refhost/database/Decimal.h"
#include "refhost/database/SampleCompany.h"
#include "tests/database/Engines.h"

#include <algorithm>
#include <set>
#include <stdexcept>

namespace refhost {

namespace {

/// The tables that the sample fills, with the columns that order their rows.
const std::map<std::string, std::string> c_Tables{
    {"UZIVATEL", "ID"},
    {"SKLAD", "ID"},
    {"DODAVATEL", "ID"},
    {"DPH", "ID"},
    {"GLOBALPARAM", "SEKCE, NAZEV"},
    {"SKUPSPOL1", "ID"},
    {"SKUPSPOL2", "ID"},
    {"SKUPSPOL3", "ID"},
    {"SKLADPOL", "ID"},
    {"SKPL", "ID"},
    {"DODCENIK", "ID"},
    {"DODOBJEDNAVKA", "ID"},
    {"DODOBJPOL", "ID"},
    {"DODAK", "ID"},
    {"DODAKPOL", "ID"},
    {"DODAKZDROJ", "ID"},
};

/// Columns of exact decimals, which each engine writes in its own way.
bool isDecimalColumn(const std::string& column) {
    static const std::set<std::string> names{"SAZBA", "FAKTOR", "CENA", "SLEVA", "MNOZSTVI", "DODANO"};
    return names.contains(column) || column.ends_with("SLEVY") || column.ends_with("SLEVOU");
}

std::string valueText(const TDbValue& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*integer);
    }
    if (const auto* text = std::get_if<AnsiString>(&value)) {
        return *text;
    }
    if (std::holds_alternative<std::monostate>(value)) {
        return "-";
    }
    throw std::logic_error("a value is neither integer nor text nor null");
}

std::string rowText(const TResultTable& table, const std::vector<TDbValue>& row) {
    std::string text;
    for (std::size_t column = 0; column < row.size(); ++column) {
        std::string value = valueText(row[column]);
        if (value != "-" && isDecimalColumn(table.Columns[column])) {
            value = canonicalDecimal(value);
        }
        text += (column == 0 ? "" : " | ") + value;
    }
    return text;
}

} // namespace

Database& sampleCompany() {
    static const std::unique_ptr<Database> company = [] {
        auto database = newDatabase(Engine::SQLite);
        createSampleCompany(*database, 0, c_SampleToday);
        return database;
    }();
    return *company;
}

std::vector<std::string> queryRows(Database& database, const std::string& sql) {
    const TResultTable table = database.Query(sql);
    std::vector<std::string> rows;
    for (const std::vector<TDbValue>& row : table.Rows) {
        rows.push_back(rowText(table, row));
    }
    return rows;
}

std::int64_t queryNumber(Database& database, const std::string& sql) {
    return std::get<std::int64_t>(database.Query(sql).Rows.at(0).at(0));
}

std::vector<std::string> contradicting(const std::string& sql) {
    return queryRows(sampleCompany(), sql);
}

std::int64_t count(const std::string& what) {
    return queryNumber(sampleCompany(), "select count(*) from " + what);
}

std::map<std::string, std::vector<std::string>> sampleContent(Database& database) {
    std::map<std::string, std::vector<std::string>> content;
    for (const auto& [table, order] : c_Tables) {
        content[table] = queryRows(database, "select * from " + table + " order by " + order);
    }
    return content;
}

} // namespace refhost
