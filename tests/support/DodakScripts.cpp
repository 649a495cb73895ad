#include "tests/support/DodakScripts.h"

namespace {

std::vector<AnsiString> priceParams() {
    std::vector<AnsiString> names{"a_ZMENENEBUNKY", "a_PREPOCETCEN", "a_FOCUS"};
    for (const char* key : {"JEDNCENABBEZSLEVY", "JEDNDPHABEZSLEVY", "JEDNDPHBBEZSLEVY", "JEDNCENASBEZSLEVY",
                            "JEDNCENABSESLEVOU", "JEDNDPHASESLEVOU", "JEDNDPHBSESLEVOU", "JEDNCENASSESLEVOU",
                            "CENABSESLEVOU", "DPHASESLEVOU", "DPHBSESLEVOU", "CENASSESLEVOU", "CENABBEZSLEVY",
                            "DPHABEZSLEVY", "DPHBBEZSLEVY", "CENASBEZSLEVY", "DPH", "SLEVA", "MNOZSTVI"}) {
        names.push_back(AnsiString("a_") + key);
    }
    return names;
}

void scriptSources(RecordingConnection& connection, const std::vector<LineCells>& lines) {
    connection.procedure("MELVARKEDITORDodakGetPolozkyByObjednavka")
        .inputs({"a_DODKID", "a_DDOBID"})
        .returns({dodakLines(lines)});
    connection.procedure("MELVARKEDITORDodakGetPolozkyByDodak")
        .inputs({"a_DODKIDMASTER", "a_DODKID", "a_PRENESMNOZSTVI", "a_PRENESCENY"})
        .returns({dodakLines(lines)});
}

void scriptSaving(RecordingConnection& connection) {
    connection.procedure("MELVARKEDITORResetTemp");
    connection.procedure("MELVARKEDITORDodakInsertToTemp")
        .inputs({"a_DOBSID",      "a_SKLADPOL",   "a_SKLAD",      "a_MNOZSTVI",    "a_DPH",        "a_SLEVA",
                 "a_JEDNCENABSL", "a_JEDNDPHASL", "a_JEDNDPHBSL", "a_JEDNCENASSL", "a_JEDNCENAB",  "a_JEDNDPHA",
                 "a_JEDNDPHB",    "a_JEDNCENAS",  "a_CENABSL",    "a_DPHASL",      "a_DPHBSL",     "a_CENASSL",
                 "a_CENAB",       "a_DPHA",       "a_DPHB",       "a_CENAS",       "a_TRVANLIVOST"});
    connection.procedure("MELVARKEDITORDodakTempUloz").inputs({"a_DODKID", "a_DODKID_ZDROJ", "a_DDOBID_ZDROJ"});
}

} // namespace

const std::vector<AnsiString>& dodakKeys() {
    static const std::vector<AnsiString> keys{"DOBSID",
                                              "SKUPSPOL1",
                                              "SKUPSPOL2",
                                              "SKUPSPOL3",
                                              "SKLADPOL",
                                              "SKLAD",
                                              "MNOZSTVI",
                                              "DPH",
                                              "SLEVA",
                                              "JEDNCENABSESLEVOU",
                                              "JEDNDPHASESLEVOU",
                                              "JEDNDPHBSESLEVOU",
                                              "JEDNCENASSESLEVOU",
                                              "JEDNCENABBEZSLEVY",
                                              "JEDNDPHABEZSLEVY",
                                              "JEDNDPHBBEZSLEVY",
                                              "JEDNCENASBEZSLEVY",
                                              "CENABSESLEVOU",
                                              "DPHASESLEVOU",
                                              "DPHBSESLEVOU",
                                              "CENASSESLEVOU",
                                              "CENABBEZSLEVY",
                                              "DPHABEZSLEVY",
                                              "DPHBBEZSLEVY",
                                              "CENASBEZSLEVY",
                                              "TRVANLIVOST"};
    return keys;
}

TResultTable lineTable(const std::vector<AnsiString>& keys, const std::vector<LineCells>& lines) {
    std::vector<std::vector<AnsiString>> rows;
    for (const LineCells& line : lines) {
        auto& row = rows.emplace_back();
        for (const AnsiString& key : keys) {
            row.push_back(line.contains(key) ? line.at(key) : "");
        }
    }
    return resultTable(keys, rows);
}

TResultTable dodakLines(const std::vector<LineCells>& lines) {
    return lineTable(dodakKeys(), lines);
}

void scriptSettings(RecordingConnection& connection) {
    connection.procedure("MELVARKEDITORNASTAVENIGetList")
        .inputs({"a_TYPEDITACE"})
        .returns({resultTable({"NAZEV", "ID"}, {})});
    connection.procedure("MELVARKEDITORNASTAVENINactiDef")
        .inputs({"a_TYPEDITACE"})
        .returns({resultTable({"ID", "DATA"}, {})});
    connection.procedure("MELVARKEDITORNASTAVENINactiNastaveniOkna")
        .inputs({"a_TYPEDITACE"})
        .returns({resultTable({"DATA"}, {})});
    connection.procedure("MELVARKEDITORNASTAVENIUlozNastaveniOkna").inputs({"a_TYPEDITACE", "a_DATA"});
}

void scriptRestoring(RecordingConnection& connection, const AnsiString& procedure, const AnsiString& idParam) {
    connection.procedure(procedure).inputs({idParam}).outputs({"a_OBNOVDATA"}).setsOutputs({{"a_OBNOVDATA", true}});
}

std::vector<LineCells> sampleLines() {
    return {{{"DOBSID", "501"},
             {"SKUPSPOL1", "Potraviny"},
             {"SKLADPOL", "Mléko"},
             {"SKLAD", "Praha"},
             {"MNOZSTVI", "10"},
             {"DPH", "12 %"},
             {"SLEVA", "5"},
             {"JEDNCENABSESLEVOU", "19"},
             {"CENABSESLEVOU", "190,00"},
             {"TRVANLIVOST", "15.2.2027"}},
            {{"DOBSID", "502"},
             {"SKUPSPOL1", "Potraviny"},
             {"SKLADPOL", "Žitný chléb"},
             {"SKLAD", "Brno"},
             {"DPH", "12 %"}}};
}

void scriptInit(RecordingConnection& connection, const AnsiString& localVat) {
    connection.procedure("MELVARKEDITORDodakInit")
        .returns({resultTable({"UZIVATEL", "DPHBLIC"}, {{"novak", localVat}}),
                  resultTable({"NAZEV"}, {{"21 %"}, {"12 %"}, {"0 %"}}),
                  resultTable({"NAZEV"}, {{"not read: the warehouses come from the query"}})});
}

void scriptDodakEditor(RecordingConnection& connection, const std::vector<LineCells>& lines) {
    scriptInit(connection, "0");
    connection.answerQuery("select NAZEV from SKLAD_V order by NAZEV", resultTable({"NAZEV"}, {{"Brno"}, {"Praha"}}));
    connection.procedure("MELVARKEDITORDodakCheckMaster").inputs({"a_DODKID"});
    scriptRestoring(connection, "MELVARKEDITORDodakObnovData", "a_DODKID");
    connection.procedure("MELVARKEDITORDodakVypocetCen").inputs(priceParams()).returns({resultTable({"MNOZSTVI"}, {})});
    scriptSources(connection, lines);
    scriptSettings(connection);
    scriptSaving(connection);
}
