#include "tests/session/OrderTrace.h"

#include <stdexcept>
#include <string_view>

namespace ordertrace {

namespace {

/// The identifiers and names of an item's units: the main one and the secondary ones, empty where there is none.
struct Units {
    const char* item;
    const char* mainId;
    const char* main;
    const char* firstId = "";
    const char* first = "";
    const char* secondId = "";
    const char* second = "";
};

constexpr Units c_Units[] = {
    {"", "", ""}, // of an empty row
    {"Mouka hladká", "11", "kg", "12", "pytel", "13", "paleta"},
    {"Mouka hrubá", "21", "kg", "22", "pytel"},
    {"Cukr krystal", "31", "kg", "32", "karton"},
    {"Čaj černý", "41", "ks", "", "", "43", "krabice"},
    {"Chléb", "51", "ks"},
    {"Hruška sušená", "61", "kg"},
    {"Sirup", "71", "l", "72", "lahev"},
    {"Ovesné vločky", "81", "kg"},
};

const Units& unitsOf(std::string_view item) {
    for (const Units& units : c_Units) {
        if (units.item == item) {
            return units;
        }
    }
    throw std::invalid_argument("the company has no such item");
}

std::string param(const char* name, std::string_view text) {
    const std::string value = text.empty() ? "null" : '"' + std::string(text) + '"';
    return R"([")" + std::string(name) + R"(",)" + value + "]";
}

} // namespace

Lines opening(int document, int settingsType) {
    const std::string type = R"(["a_TYPEDITACE",)" + std::to_string(settingsType) + "]";
    return {
        call("MELVARKEDITORDodObjInit", true, "", 1),
        call("select NAZEV from SKLAD_V order by NAZEV", true, "", 2),
        call("select JMENO from DODAVATEL_V order by JMENO", true, "", 3),
        call("MELVARKEDITORNASTAVENIGetList", true, type, 0),
        call("MELVARKEDITORNASTAVENINactiDef", true, type, 1), // one row with nulls: no default
        call("MELVARKEDITORDodObjCheckMaster", false, R"(["a_DDOBID",)" + std::to_string(document) + "]", 0),
    };
}

std::string placement(int type) {
    return call("MELVARKEDITORNASTAVENINactiNastaveniOkna", true, R"(["a_TYPEDITACE",)" + std::to_string(type) + "]",
                1);
}

std::string rowInsert(const Row& row) {
    const Units& units = unitsOf(row.item);
    const std::pair<const char*, std::string_view> params[] = {
        {"a_SKLADPOL", row.item},       {"a_SKLAD", row.warehouse},   {"a_DODAVATEL", row.supplier},
        {"a_SKPLID", units.mainId},     {"a_MNOZSTVI", row.main},     {"a_JEDNOTKY", units.main},
        {"a_SKPLIDV1", units.firstId},  {"a_MNOZSTVIV1", row.first},  {"a_JEDNOTKYV1", units.first},
        {"a_SKPLIDV2", units.secondId}, {"a_MNOZSTVIV2", row.second}, {"a_JEDNOTKYV2", units.second},
        {"a_POPIS", row.description},   {"a_KOMENTAR", row.comment},
    };
    std::string text;
    for (const auto& [name, value] : params) {
        text += (text.empty() ? "" : ",") + param(name, value);
    }
    return call("MELVARKEDITORDodObjInsertToTemp", false, text, 0);
}

std::string closing(int document, const std::string& order, const std::string& orderTemplate, const std::string& note) {
    return call("MELVARKEDITORDodObjTempUloz", false,
                R"(["a_DDOBID",)" + std::to_string(document) + R"(],["a_DDOBID_ZDROJ",)" + order +
                    R"(],["a_DDOBIDVZOR_ZDROJ",)" + orderTemplate + R"(],["a_DODKID_ZDROJ",)" + note + "]",
                0);
}

} // namespace ordertrace
