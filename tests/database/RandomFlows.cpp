#include "tests/database/RandomFlows.h"

#include "tests/database/PriceColumns.h"

#include <algorithm>

namespace refhost {

/// One way to fill a document: who may be its source, how he is checked, what fills the rows, and how the closing call
/// names him. A way without a check takes the latest documents.
struct SourceWay {
    const char* Candidates; ///< {document} stands for the document's identifier; identifier and text.
    const char* Check;
    const char* TextParameter;
    const char* IdParameter;
    const char* Fill;
    const char* FillParameter;
    const char* SourceParameter; ///< Empty when the closing call names none.
};

namespace {

constexpr std::size_t c_MostRows = 6;

constexpr SourceWay c_NoteWays[] = {
    {"select s._ID, s.CISLO from DODOBJEDNAVKA_NORMAL_V s join DODAK d on d.ID = {document} "
     "where s._DODVID = d.DODVID and s._SKLDID = d.SKLDID",
     "MELVARKEDITORDodakCheckZdrojObjednavka", "a_CISLO", "a_DDOBID", "MELVARKEDITORDodakGetPolozkyByObjednavka",
     "a_DDOBID", "a_DDOBID_ZDROJ"},
    {"select s._ID, s.CISLO from DODAK_NORMAL_V s join DODAK d on d.ID = {document} where s._DODVID = d.DODVID",
     "MELVARKEDITORDodakCheckZdrojDodak", "a_DODAKCISLO", "a_DODKID", "MELVARKEDITORDodakGetPolozkyByDodak",
     "a_DODKIDMASTER", "a_DODKID_ZDROJ"},
    {"", "", "", "", "MELVARKEDITORDodakGetPolozkyByDodak", "a_DODKIDMASTER", ""},
};

constexpr const char* c_Orders =
    "select s._ID, s.CISLO from DODOBJEDNAVKA_NORMAL_V s join DODOBJEDNAVKA o on o.ID = {document} "
    "where s._DODVID = o.DODVID and s._SKLDID = o.SKLDID";
constexpr const char* c_Templates =
    "select s._ID, s.CISLO from DODOBJEDNAVKAVZOR_NORMAL_V s join DODOBJEDNAVKA o on o.ID = {document} "
    "where s._SKLDID = o.SKLDID";
constexpr const char* c_Notes = "select s._ID, s.CISLO from DODAK_NORMAL_V s join DODOBJEDNAVKA o on o.ID = {document} "
                                "where s._DODVID = o.DODVID and s._SKLDID = o.SKLDID";
constexpr const char* c_Suppliers = "select _ID, JMENO from DODAVATEL_NORMAL_V where {document} > 0";

constexpr SourceWay c_OrderWays[] = {
    {c_Orders, "MELVARKEDITORDodObjCheckZdrojObjednavka", "a_CISLO", "a_DDOBID",
     "MELVARKEDITORDodObjGetPolozkyByObjednavka", "a_DDOBID", "a_DDOBID_ZDROJ"},
    {c_Templates, "MELVARKEDITORDodObjCheckZdrojObjednavkaVzor", "a_CISLO", "a_DDOBID",
     "MELVARKEDITORDodObjGetPolozkyByObjednavka", "a_DDOBID", "a_DDOBIDVZOR_ZDROJ"},
    {c_Notes, "MELVARKEDITORDodObjCheckZdrojDodak", "a_CISLO", "a_DODKID", "MELVARKEDITORDodObjGetPolozkyByDodak",
     "a_DODKID", "a_DODKID_ZDROJ"},
    {"", "", "", "", "MELVARKEDITORDodObjGetPolozkyByObjednavka", "a_DDOBID", ""},
    {c_Suppliers, "MELVARKEDITORDodObjCheckZdrojDodCenik", "a_JMENO", "a_DODVID",
     "MELVARKEDITORDodObjGetPolozkyByDodCenik", "a_DODVID", ""},
    {c_Suppliers, "MELVARKEDITORDodObjCheckZdrojDodavky", "a_JMENO", "a_DODVID",
     "MELVARKEDITORDodObjGetPolozkyByDodavky", "a_DODVID", ""},
};

bool isForNotes(const SourceWay& way) {
    return std::string_view(way.Fill).starts_with("MELVARKEDITORDodakGet");
}

std::string replaced(std::string text, std::string_view word, const std::string& value) {
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + value.size())) {
        text.replace(at, word.size(), value);
    }
    return text;
}

} // namespace

RandomFlows::RandomFlows(BothEngines& both, std::uint64_t seed)
    : both_(both), random_(seed), calls_(both.embedded(), seed) {}

void RandomFlows::next() {
    both_.begin("flow " + std::to_string(++flows_));
    if (random_.chance(50)) {
        noteFlow();
    } else {
        orderFlow();
    }
}

std::int64_t RandomFlows::anyId(const std::string& sql) {
    const TResultTable table = both_.embedded().Query(sql);
    return table.Rows.empty()
               ? 0
               : std::get<std::int64_t>(random_.pick(std::span<const std::vector<TDbValue>>(table.Rows)).front());
}

std::vector<RandomFlows::Row> RandomFlows::rowsOf(const std::optional<TCallResult>& result) {
    std::vector<Row> all;
    if (!result || result->Sets.empty()) {
        return all;
    }
    const TResultTable& table = result->Sets.front();
    for (const std::vector<TDbValue>& values : table.Rows) {
        Row& row = all.emplace_back();
        for (std::size_t i = 0; i < values.size(); ++i) {
            row[table.Columns[i]] = values[i];
        }
    }
    while (all.size() > c_MostRows) {
        all.erase(all.begin() + random_.below(static_cast<int>(all.size())));
    }
    return all;
}

TDbValue RandomFlows::checkedSource(const SourceWay& way, std::int64_t document) {
    const std::string query = random_.chance(85) ? replaced(way.Candidates, "{document}", std::to_string(document))
                                                 : std::string("select _ID, CISLO from DODAK_NORMAL_V");
    const TResultTable candidates = both_.embedded().Query(query);
    TDbValue id;
    TDbValue label = AnsiString("není");
    if (!candidates.Rows.empty()) {
        const auto& candidate = random_.pick(std::span<const std::vector<TDbValue>>(candidates.Rows));
        id = candidate[0];
        label = candidate[1];
    }
    const char* master = isForNotes(way) ? "a_DODKIDMASTER" : "a_DDOBIDMASTER";
    const bool byText = random_.chance(50);
    const auto result = both_.call({way.Check,
                                    {{master, document},
                                     {way.TextParameter, byText || random_.chance(30) ? label : TDbValue()},
                                     {way.IdParameter, byText ? TDbValue() : id}},
                                    true});
    return result ? result->Sets.at(0).Rows.at(0).at(0) : TDbValue();
}

RandomFlows::Chosen RandomFlows::filled(const SourceWay& way, std::int64_t document) {
    TDbValue source;
    if (way.Check[0] != '\0') {
        source = checkedSource(way, document);
        if (std::holds_alternative<std::monostate>(source)) {
            return {};
        }
    }
    TProcedureCall fill{
        way.Fill, {{isForNotes(way) ? "a_DODKID" : "a_DDOBIDMASTER", document}, {way.FillParameter, source}}, true};
    if (fill.Name == "MELVARKEDITORDodakGetPolozkyByDodak") {
        fill.Params.push_back({"a_PRENESMNOZSTVI", flag()});
        fill.Params.push_back({"a_PRENESCENY", flag()});
    } else if (fill.Name == "MELVARKEDITORDodObjGetPolozkyByDodavky") {
        fill.Params.push_back({"a_PRENESMNOZSTVI", flag()});
    }
    Chosen chosen{rowsOf(both_.call(fill)), {}};
    if (way.SourceParameter[0] != '\0') {
        chosen.Sources.push_back({way.SourceParameter, source});
    }
    return chosen;
}

std::vector<RandomFlows::Row> RandomFlows::groupRows(std::int64_t document) {
    const TDbParam master{"a_DDOBIDMASTER", document};
    const std::string level = std::to_string(random_.between(1, 3));
    const std::int64_t group = anyId("select ID from SKUPSPOL" + level);
    const std::string parameter = "a_SSP" + level + "ID";
    both_.call({"MELVARKEDITORDodObjCheckSkupSkladPol" + level, {master, {parameter, group}}, true});
    std::vector<TDbParam> levels{master, {parameter, group}};
    if (random_.chance(25)) {
        levels.push_back({level == "1" ? "a_SSP2ID" : "a_SSP1ID",
                          anyId("select ID from SKUPSPOL" + std::string(level == "1" ? "2" : "1"))});
    }
    both_.call({"MELVARKEDITORDodObjCheckSkupSkladPol", levels, false});
    return rowsOf(both_.call({"MELVARKEDITORDodObjGetPolozkyBySkupSkladPol", levels, true}));
}

/// The clerk types into some of the cells that are recalculated.
void RandomFlows::changePrices(Row& row) {
    AnsiString changed;
    for (int edits = random_.below(4); edits > 0; --edits) {
        const std::string focus =
            random_.chance(40) ? "MNOZSTVI" : random_.pick(std::span<const char* const>(c_RecalculatedColumns));
        row[focus] = focus == "DPH"     ? TDbValue(AnsiString("12 %"))
                     : focus == "SLEVA" ? TDbValue(AnsiString(std::to_string(random_.below(101))))
                                        : TDbValue(calls_.number());
        changed += focus + ";";
        TProcedureCall call{"MELVARKEDITORDodakVypocetCen",
                            {{"a_ZMENENEBUNKY", changed}, {"a_PREPOCETCEN", !random_.chance(10)}, {"a_FOCUS", focus}},
                            true};
        for (const char* key : c_RecalculatedColumns) {
            call.Params.push_back({std::string("a_") + key, row[key]});
        }
        if (const auto result = both_.call(call)) {
            const std::vector<Row> answered = rowsOf(result);
            for (const auto& [column, value] : answered.at(0)) {
                row[column] = value;
            }
        }
    }
}

void RandomFlows::changeQuantities(Row& row) {
    for (const char* suffix : {"HL", "V1", "V2"}) {
        const std::string column = std::string("MNOZSTVI") + suffix;
        const bool hasUnit = !std::holds_alternative<std::monostate>(row[std::string("SKPLID") + suffix]);
        if (random_.chance(hasUnit ? 40 : 2)) {
            row[column] = random_.chance(80) ? AnsiString(std::to_string(random_.between(-2, 30))) : calls_.number();
        }
    }
}

bool RandomFlows::save(const std::string& rowProcedure, const std::vector<std::vector<TDbParam>>& rows,
                       const std::string& closing, const std::vector<TDbParam>& parameters) {
    if (!random_.chance(3)) {
        both_.call({"MELVARKEDITORResetTemp", {}, false});
    }
    for (const std::vector<TDbParam>& row : rows) {
        both_.call({rowProcedure, row, false});
    }
    return both_.call({closing, parameters, false}).has_value();
}

void RandomFlows::noteFlow() {
    const std::int64_t note =
        anyId(std::string("select _ID from SCREEN_DODAK_V") + (random_.chance(85) ? " where _OTEVRENO = 1" : ""));
    both_.call({"MELVARKEDITORDodakInit", {}, true});
    both_.call({"MELVARKEDITORDodakCheckMaster", {{"a_DODKID", note}}, false});
    Chosen chosen = filled(random_.pick(std::span<const SourceWay>(c_NoteWays)), note);
    std::vector<std::vector<TDbParam>> rows;
    for (Row& row : chosen.Rows) {
        changePrices(row);
        for (const char* level : {"SKUPSPOL1", "SKUPSPOL2", "SKUPSPOL3"}) {
            row.erase(level);
        }
        std::vector<TDbParam>& parameters = rows.emplace_back();
        for (const auto& [column, value] : row) {
            parameters.push_back({savedParameter(column), value});
        }
    }
    std::vector<TDbParam> closing{{"a_DODKID", note}};
    closing.insert(closing.end(), chosen.Sources.begin(), chosen.Sources.end());
    for (int attempts = random_.chance(20) ? 2 : 1; attempts > 0; --attempts) {
        saved_ += save("MELVARKEDITORDodakInsertToTemp", rows, "MELVARKEDITORDodakTempUloz", closing) ? 1 : 0;
    }
    both_.call({"MELVARKEDITORDodakObnovData", {{"a_DODKID", note}}, false});
    both_.query("select * from SCREEN_DODAK_LINES_V where _DOCID = " + std::to_string(note));
}

void RandomFlows::orderFlow() {
    const std::string screen = random_.chance(50) ? "SCREEN_DODOBJ_V" : "SCREEN_DODOBJVZOR_V";
    const std::int64_t document =
        anyId("select _ID from " + screen + (random_.chance(85) ? " where _OTEVRENO = 1" : ""));
    both_.call({"MELVARKEDITORDodObjInit", {}, true});
    both_.call({"MELVARKEDITORDodObjCheckMaster", {{"a_DDOBID", document}}, false});
    Chosen chosen = random_.chance(15) ? Chosen{groupRows(document), {}}
                                       : filled(random_.pick(std::span<const SourceWay>(c_OrderWays)), document);
    std::vector<std::vector<TDbParam>> rows;
    for (Row& row : chosen.Rows) {
        changeQuantities(row);
        std::vector<TDbParam>& parameters = rows.emplace_back();
        for (const auto& [column, value] : row) {
            if (!column.starts_with("SKUPSPOL")) {
                parameters.push_back({"a_" + replaced(column, "HL", ""), value});
            }
        }
    }
    std::vector<TDbParam> closing{{"a_DDOBID", document}};
    closing.insert(closing.end(), chosen.Sources.begin(), chosen.Sources.end());
    for (int attempts = random_.chance(20) ? 2 : 1; attempts > 0; --attempts) {
        saved_ += save("MELVARKEDITORDodObjInsertToTemp", rows, "MELVARKEDITORDodObjTempUloz", closing) ? 1 : 0;
    }
    both_.call({"MELVARKEDITORDodObjObnovData", {{"a_DDOBID", document}}, false});
    both_.query("select * from ORDER_LINES_V where _DOCID = " + std::to_string(document));
}

} // namespace refhost
