#include "MemoryDatabase.h"

#include <algorithm>
#include <host/DataSet.h>
#include <host/Exceptions.h>
#include <sstream>
#include <utility>

namespace {

// Prices of this company know no VAT and no discount: these columns stay as they are.
constexpr const char* c_otherPrices =
    "JEDNCENABBEZSLEVY JEDNDPHABEZSLEVY JEDNDPHBBEZSLEVY JEDNCENASBEZSLEVY JEDNDPHASESLEVOU JEDNDPHBSESLEVOU "
    "JEDNCENASSESLEVOU DPHASESLEVOU DPHBSESLEVOU CENASSESLEVOU CENABBEZSLEVY DPHABEZSLEVY DPHBBEZSLEVY CENASBEZSLEVY "
    "DPH SLEVA";

std::vector<AnsiString> Words(const AnsiString& text, const AnsiString& prefix = "") {
    std::istringstream stream(text);
    std::vector<AnsiString> words;
    for (AnsiString word; stream >> word;) {
        words.push_back(prefix + word);
    }
    return words;
}

TCallResult OneSet(const AnsiString& columns, std::vector<std::vector<TDbValue>> rows) {
    return {.Sets = {{Words(columns), std::move(rows)}}};
}

} // namespace

MemoryDatabase::MemoryDatabase() {
    const auto nothing = [](const Values&) { return TCallResult(); };
    const auto add = [this](const AnsiString& name, const AnsiString& inputs, auto run) {
        FProcedures["MELVARKEDITOR" + name] = {Words(inputs, "a_"), run};
    };
    add("DodakInit", "", [](const Values&) {
        return TCallResult{.Sets = {{{"UZIVATEL", "DPHBLIC"}, {{AnsiString("clerk"), std::int64_t(0)}}},
                                    {{"NAZEV"}, {{AnsiString("21 %")}}},   // VAT rates
                                    {{"NAZEV"}, {{AnsiString("Main")}}}}}; // warehouses
    });
    add("DodakCheckMaster", "DODKID", nothing);
    add("DodakGetPolozkyByDodak", "DODKIDMASTER DODKID PRENESMNOZSTVI PRENESCENY",
        [this](const Values&) { return Template(); });
    add("DodakVypocetCen",
        AnsiString("ZMENENEBUNKY PREPOCETCEN FOCUS MNOZSTVI JEDNCENABSESLEVOU CENABSESLEVOU ") + c_otherPrices,
        [this](const Values& values) { return Recalculate(values); });
    add("ResetTemp", "", [this](const Values&) { return FStaged.clear(), TCallResult(); });
    add("DodakInsertToTemp",
        "DOBSID SKLADPOL SKLAD MNOZSTVI DPH SLEVA JEDNCENABSL JEDNDPHASL JEDNDPHBSL JEDNCENASSL JEDNCENAB JEDNDPHA "
        "JEDNDPHB JEDNCENAS CENABSL DPHASL DPHBSL CENASSL CENAB DPHA DPHB CENAS TRVANLIVOST",
        [this](const Values& values) { return Stage(values); });
    add("DodakTempUloz", "DODKID DODKID_ZDROJ DDOBID_ZDROJ", [this](const Values&) { return TakeOver(); });
    add("NASTAVENIGetList", "TYPEDITACE", [](const Values&) { return OneSet("NAZEV ID", {}); });
    add("NASTAVENINactiDef", "TYPEDITACE", [](const Values&) { return OneSet("ID DATA", {}); });
    add("NASTAVENINactiNastaveniOkna", "TYPEDITACE", [](const Values&) { return OneSet("DATA", {}); });
    add("NASTAVENIUlozNastaveniOkna", "TYPEDITACE DATA", nothing);
}

const MemoryDatabase::Procedure& MemoryDatabase::Find(const AnsiString& name) const {
    const auto found = std::ranges::find_if(FProcedures, [&](const auto& one) { return SameDbName(one.first, name); });
    if (found == FProcedures.end()) {
        throw EDatabaseError("This database has no procedure " + name + ".");
    }
    return found->second;
}

TProcedureInfo MemoryDatabase::Describe(const AnsiString& procedure) {
    return {Find(procedure).Inputs, {}};
}

TCallResult MemoryDatabase::Execute(const TProcedureCall& call) {
    Values values;
    for (const TDbParam& parameter : call.Params) {
        values[parameter.Name] = parameter.Value;
    }
    return Find(call.Name).Run(values);
}

TResultTable MemoryDatabase::Query(const AnsiString&) {
    return {{"NAZEV"}, {{AnsiString("Main")}}}; // the editor's only query: the names of the warehouses
}

/// Cells come as texts with the locale's separator; a missing value is 0.
double MemoryDatabase::Number(const Values& values, const AnsiString& name) const {
    const auto found = values.find(name);
    return found == values.end() ? 0 : TField(name, found->second, FSettings).AsFloat();
}

TCallResult MemoryDatabase::Template() const {
    const AnsiString columns = "SKLADPOL SKLAD JEDNCENABSESLEVOU DOBSID SKUPSPOL1 SKUPSPOL2 SKUPSPOL3 MNOZSTVI "
                               "CENABSESLEVOU TRVANLIVOST ";
    TCallResult result = OneSet(columns + c_otherPrices, {});
    for (const auto& [item, price] : {std::pair("Paper cups", "2.5"), {"Napkins", "40"}, {"Bin bags", "12.25"}}) {
        std::vector<TDbValue> row{AnsiString(item), AnsiString("Main"), AnsiString(price)};
        row.resize(result.Sets[0].Columns.size()); // the rest is empty
        result.Sets[0].Rows.push_back(std::move(row));
    }
    return result;
}

/// The one rule of this database: the total is quantity times unit price. Columns that are not returned stay.
TCallResult MemoryDatabase::Recalculate(const Values& values) const {
    const double total = Number(values, "a_MNOZSTVI") * Number(values, "a_JEDNCENABSESLEVOU");
    return OneSet("CENABSESLEVOU", {{TField("", total, FSettings).AsString()}});
}

TCallResult MemoryDatabase::Stage(const Values& values) {
    const AnsiString item = TField("", values.at("a_SKLADPOL"), FSettings).AsString();
    const double quantity = Number(values, "a_MNOZSTVI");
    if (quantity < 0) {
        throw EDatabaseError(item + ": the quantity must not be negative. Type another one.");
    }
    FStaged.push_back({item, quantity, Number(values, "a_JEDNCENABSL")});
    return {};
}

TCallResult MemoryDatabase::TakeOver() {
    std::ranges::copy_if(FStaged, std::back_inserter(FStored), [](const Line& line) { return line.Quantity != 0; });
    FStaged.clear();
    return {};
}
