#include "tests/support/DodObjScripts.h"

namespace {

void scriptChecks(RecordingConnection& connection) {
    const std::vector<std::vector<AnsiString>> checks{
        {"Objednavka", "a_CISLO", "a_DDOBID"}, {"ObjednavkaVzor", "a_CISLO", "a_DDOBID"},
        {"Dodak", "a_CISLO", "a_DODKID"},      {"DodCenik", "a_JMENO", "a_DODVID"},
        {"Dodavky", "a_JMENO", "a_DODVID"},
    };
    for (const auto& check : checks) {
        connection.procedure("MELVARKEDITORDodObjCheckZdroj" + check[0])
            .inputs({"a_DDOBIDMASTER", check[1], check[2]})
            .returns({TResultTable{{"ID"}, {{std::int64_t{31}}}}});
    }
    const std::int64_t groups[] = {1, 12, 123};
    for (const std::int64_t group : groups) {
        const AnsiString level = std::to_string(std::to_string(group).size());
        connection.procedure("MELVARKEDITORDodObjCheckSkupSkladPol" + level)
            .inputs({"a_DDOBIDMASTER", "a_NAZEV", "a_SSP" + level + "ID"})
            .answers([group](const TProcedureCall& call) {
                const bool isNamed = call.Params.at(1).Value != TDbValue(AnsiString());
                return TCallResult{true, {TResultTable{{"ID"}, {{isNamed ? TDbValue(group) : TDbValue()}}}}, {}};
            });
    }
    connection.procedure("MELVARKEDITORDodObjCheckSkupSkladPol")
        .inputs({"a_DDOBIDMASTER", "a_SSP1ID", "a_SSP2ID", "a_SSP3ID"});
}

void scriptFills(RecordingConnection& connection, const std::vector<LineCells>& lines) {
    const std::vector<std::vector<AnsiString>> fills{
        {"Objednavka", "a_DDOBIDMASTER", "a_DDOBID"},
        {"Dodak", "a_DDOBIDMASTER", "a_DODKID"},
        {"SkupSkladPol", "a_DDOBIDMASTER", "a_SSP1ID", "a_SSP2ID", "a_SSP3ID"},
        {"DodCenik", "a_DDOBIDMASTER", "a_DODVID"},
        {"Dodavky", "a_DDOBIDMASTER", "a_DODVID", "a_PRENESMNOZSTVI"},
    };
    for (const auto& fill : fills) {
        connection.procedure("MELVARKEDITORDodObjGetPolozkyBy" + fill[0])
            .inputs({fill.begin() + 1, fill.end()})
            .returns({dodObjLines(lines)});
    }
}

} // namespace

const std::vector<AnsiString>& dodObjKeys() {
    static const std::vector<AnsiString> keys{"SKUPSPOL1",  "SKUPSPOL2",  "SKUPSPOL3",  "SKLADPOL",   "SKLAD",
                                              "DODAVATEL",  "MNOZSTVIHL", "JEDNOTKYHL", "SKPLIDHL",   "MNOZSTVIV1",
                                              "JEDNOTKYV1", "SKPLIDV1",   "MNOZSTVIV2", "JEDNOTKYV2", "SKPLIDV2",
                                              "POPIS",      "KOMENTAR"};
    return keys;
}

TResultTable dodObjLines(const std::vector<LineCells>& lines) {
    return lineTable(dodObjKeys(), lines);
}

std::vector<LineCells> sampleOrderLines() {
    return {{{"SKUPSPOL1", "Potraviny"},
             {"SKLADPOL", "Mouka"},
             {"SKLAD", "Praha"},
             {"DODAVATEL", "Lípa"},
             {"MNOZSTVIHL", "4"},
             {"JEDNOTKYHL", "kg"},
             {"SKPLIDHL", "101"},
             {"JEDNOTKYV1", "pytel"},
             {"SKPLIDV1", "102"},
             {"JEDNOTKYV2", "paleta"},
             {"SKPLIDV2", "103"}},
            {{"SKUPSPOL1", "Potraviny"},
             {"SKLADPOL", "Cukr"},
             {"SKLAD", "Brno"},
             {"JEDNOTKYHL", "kg"},
             {"SKPLIDHL", "201"},
             {"JEDNOTKYV1", "karton"},
             {"SKPLIDV1", "202"}},
            {{"SKUPSPOL1", "Služby"}, {"SKLADPOL", "Doprava"}}};
}

void scriptDodObjEditor(RecordingConnection& connection, const std::vector<LineCells>& lines) {
    connection.procedure("MELVARKEDITORDodObjInit").returns({resultTable({"UZIVATEL"}, {{"novak"}})});
    connection.answerQuery("select NAZEV from SKLAD_V order by NAZEV", resultTable({"NAZEV"}, {{"Brno"}, {"Praha"}}));
    connection.answerQuery("select JMENO from DODAVATEL_V order by JMENO",
                           resultTable({"JMENO"}, {{"Lípa"}, {"Vrba"}}));
    connection.procedure("MELVARKEDITORDodObjCheckMaster").inputs({"a_DDOBID"});
    scriptRestoring(connection, "MELVARKEDITORDodObjObnovData", "a_DDOBID");
    scriptChecks(connection);
    scriptFills(connection, lines);
    scriptSettings(connection);
    connection.procedure("MELVARKEDITORResetTemp");
    connection.procedure("MELVARKEDITORDodObjInsertToTemp")
        .inputs({"a_SKLADPOL", "a_SKLAD", "a_DODAVATEL", "a_SKPLID", "a_MNOZSTVI", "a_JEDNOTKY", "a_SKPLIDV1",
                 "a_MNOZSTVIV1", "a_JEDNOTKYV1", "a_SKPLIDV2", "a_MNOZSTVIV2", "a_JEDNOTKYV2", "a_POPIS",
                 "a_KOMENTAR"});
    connection.procedure("MELVARKEDITORDodObjTempUloz")
        .inputs({"a_DDOBID", "a_DDOBID_ZDROJ", "a_DDOBIDVZOR_ZDROJ", "a_DODKID_ZDROJ"});
}
