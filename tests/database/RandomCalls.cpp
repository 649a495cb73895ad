#include "tests/database/RandomCalls.h"

#include "refhost/database/EmbeddedSql.h"
#include "tests/database/HostileValues.h"
#include "tests/database/PriceColumns.h"

#include <algorithm>
#include <array>
#include <span>

namespace refhost {

namespace {

/// Where the values of a parameter come from.
struct Source {
    std::string_view Parameter; ///< Or how its name begins, when it ends with "*".
    const char* Query;
};

constexpr const char* c_Notes = "select ID from DODAK";
constexpr const char* c_Orders = "select ID from DODOBJEDNAVKA";
constexpr const char* c_Suppliers = "select JMENO from DODAVATEL";
constexpr const char* c_Flags = "select 1 union all select 0";
constexpr const char* c_Texts = "select 'poznámka' union all select 'druhá, delší poznámka' union all select ''";
constexpr const char* c_Numbers = "";

constexpr std::array c_Sources{
    Source{"a_DODKID*", c_Notes},
    Source{"a_DDOBID*", c_Orders},
    Source{"a_DODVID", "select ID from DODAVATEL"},
    Source{"a_SSP1ID", "select ID from SKUPSPOL1"},
    Source{"a_SSP2ID", "select ID from SKUPSPOL2"},
    Source{"a_SSP3ID", "select ID from SKUPSPOL3"},
    Source{"a_ID", "select 1 union all select 2 union all select 3 union all select 5 union all select 8"},
    Source{"a_TYPEDITACE", "select 1 union all select 2 union all select 3"},
    Source{"a_SKLADPOL", "select NAZEV from SKLADPOL"},
    Source{"a_SKLAD", "select NAZEV from SKLAD"},
    Source{"a_DODAVATEL", c_Suppliers},
    Source{"a_JMENO", c_Suppliers},
    Source{"a_DPH", "select NAZEV from DPH"},
    Source{"a_CISLO", "select CISLO from DODOBJEDNAVKA union select CISLO from DODAK"},
    Source{"a_DODAKCISLO", "select CISLO from DODAK"},
    Source{"a_NAZEV", "select NAZEV from SKUPSPOL1 union select NAZEV from SKUPSPOL2 union select NAZEV from SKUPSPOL3 "
                      "union all select 'Moje' union all select 'moje' union all select 'Žluté'"},
    Source{"a_DOBSID", "select ID from DODOBJPOL"},
    Source{"a_SKPLID*", "select ID from SKPL"},
    Source{"a_JEDNOTKY*", "select distinct NAZEV from SKPL"},
    Source{"a_POPIS", c_Texts},
    Source{"a_KOMENTAR", c_Texts},
    Source{"a_DATA", c_Texts},
    Source{"a_PRENES*", c_Flags},
    Source{"a_PREPOCETCEN", c_Flags},
    Source{"a_SDILENE", c_Flags},
    Source{"a_TRVANLIVOST", "select '1.2.2027' union all select '31. 12. 26' union all select '29.2.2027'"},
};

const char* sourceOf(std::string_view parameter) {
    const auto* found = std::ranges::find_if(c_Sources, [parameter](const Source& source) {
        return source.Parameter.ends_with('*')
                   ? parameter.starts_with(source.Parameter.substr(0, source.Parameter.size() - 1))
                   : SameDbName(parameter, source.Parameter);
    });
    return found == c_Sources.end() ? c_Numbers : found->Query;
}

/// Procedures that are called more often than once in a round: saves succeed only when their calls meet.
struct Weight {
    std::string_view Procedure;
    int Times;
};

constexpr std::array c_Weights{
    Weight{"MELVARKEDITORResetTemp", 6},          Weight{"MELVARKEDITORDodakInsertToTemp", 9},
    Weight{"MELVARKEDITORDodObjInsertToTemp", 9}, Weight{"MELVARKEDITORDodakTempUloz", 4},
    Weight{"MELVARKEDITORDodObjTempUloz", 4},     Weight{"MELVARKEDITORDodakVypocetCen", 6},
};

int timesOf(std::string_view procedure) {
    const auto* found = std::ranges::find(c_Weights, procedure, &Weight::Procedure);
    return found == c_Weights.end() ? 1 : found->Times;
}

AnsiString text(const TDbValue& value) {
    const auto* number = std::get_if<std::int64_t>(&value);
    return number == nullptr ? std::get<AnsiString>(value) : std::to_string(*number);
}

bool isRow(std::string_view procedure) {
    return procedure.ends_with("InsertToTemp");
}

/// Cells of a note's row whose numbers would have to agree with one another.
bool isPrice(std::string_view parameter) {
    return parameter.starts_with("a_JEDNCENA") || parameter.starts_with("a_JEDNDPH") ||
           parameter.starts_with("a_CENA") || (parameter.starts_with("a_DPH") && parameter != "a_DPH");
}

} // namespace

RandomCalls::RandomCalls(Database& company, std::uint64_t seed) : random_(seed) {
    for (const SqlFile& file : sqliteFiles()) {
        if (!file.Path.starts_with("procedures/")) {
            continue;
        }
        const std::string name(sqlObjectName(file));
        procedures_.insert(procedures_.end(), static_cast<std::size_t>(timesOf(name)), name);
        inputs_[name] = company.Describe(name).Inputs;
    }
    learn(company);
}

void RandomCalls::learn(Database& company) {
    for (const Source& source : c_Sources) {
        std::vector<TDbValue>& values = choices_[source.Query];
        if (values.empty()) {
            for (const std::vector<TDbValue>& row : company.Query(source.Query).Rows) {
                values.push_back(row.front());
            }
        }
    }
    for (const std::vector<TDbValue>& row :
         company.Query("select i.NAZEV, u.ID, u.NAZEV, u.PORADI from SKPL u join SKLADPOL i on i.ID = u.SKLPID").Rows) {
        units_.push_back({text(row[0]), text(row[1]), text(row[2]), static_cast<int>(std::get<std::int64_t>(row[3]))});
    }
}

AnsiString RandomCalls::number() {
    constexpr std::array<const char*, 5> c_Usual{"1", "2,5", "10", "0", "-3"};
    if (random_.chance(40)) {
        return random_.pick(std::span<const char* const>(c_Usual));
    }
    const int decimals = random_.below(random_.chance(90) ? 7 : 9);
    AnsiString digits = std::to_string(random_.below(1'000'000));
    if (decimals > 0) {
        digits += random_.chance(80) ? "," : ".";
        for (int i = 0; i < decimals; ++i) {
            digits += static_cast<char>('0' + random_.below(10));
        }
    }
    return (random_.chance(10) ? "-" : "") + digits;
}

AnsiString RandomCalls::cellKeys() {
    AnsiString keys;
    for (int i = random_.below(4); i > 0; --i) {
        keys += AnsiString(random_.pick(std::span<const char* const>(c_RecalculatedColumns))) + ";";
    }
    return keys;
}

TDbValue RandomCalls::goodValue(const std::string& parameter) {
    if (parameter == "a_ZMENENEBUNKY") {
        return cellKeys();
    }
    if (parameter == "a_FOCUS") {
        return AnsiString(random_.pick(std::span<const char* const>(c_RecalculatedColumns)));
    }
    if (parameter == "a_SLEVA") {
        return AnsiString(std::to_string(random_.below(101)));
    }
    const char* source = sourceOf(parameter);
    if (source == c_Numbers) {
        return random_.chance(30) ? TDbValue() : number();
    }
    TDbValue value = random_.pick(std::span<const TDbValue>(choices_.at(source)));
    if (source == c_Flags) {
        return std::get<std::int64_t>(value) == 1;
    }
    return value;
}

TDbValue RandomCalls::hostileValue() {
    if (random_.chance(60)) {
        return random_.pick(hostileValues()).Value;
    }
    if (random_.chance(50)) {
        return std::int64_t{random_.between(-2, 40)};
    }
    // What stands somewhere else in the company.
    auto source = choices_.begin();
    std::advance(source, random_.below(static_cast<int>(choices_.size())));
    return random_.pick(std::span<const TDbValue>(source->second));
}

TDbValue RandomCalls::value(const std::string& parameter, Quality quality) {
    const int odd = quality == Quality::Good ? 0 : (quality == Quality::Mixed ? 15 : 60);
    if (random_.chance(odd)) {
        return hostileValue();
    }
    if (quality != Quality::Good && random_.chance(15)) {
        return {};
    }
    return goodValue(parameter);
}

/// Gives a row an item with a unit of its own and leaves out what would have to agree with the rest.
void RandomCalls::makeRowFit(TProcedureCall& call) {
    const Unit unit = random_.pick(std::span<const Unit>(units_));
    constexpr std::array<const char*, 3> c_Suffixes{"", "V1", "V2"};
    const std::string suffix = c_Suffixes[static_cast<std::size_t>(unit.Place)];
    std::erase_if(call.Params, [&](const TDbParam& parameter) {
        return parameter.Name.starts_with("a_SKPLID") || parameter.Name.starts_with("a_JEDNOTKY") ||
               parameter.Name.starts_with("a_MNOZSTVI") || parameter.Name == "a_SKLADPOL" ||
               parameter.Name == "a_DOBSID" || parameter.Name == "a_TRVANLIVOST" ||
               (isPrice(parameter.Name) && parameter.Name != "a_JEDNCENAB");
    });
    call.Params.push_back({"a_SKLADPOL", unit.Item});
    const bool isOrder = call.Name == "MELVARKEDITORDodObjInsertToTemp";
    call.Params.push_back(
        {isOrder ? "a_MNOZSTVI" + suffix : "a_MNOZSTVI", AnsiString(std::to_string(random_.between(-2, 20)))});
    if (isOrder) {
        call.Params.push_back({"a_SKPLID" + suffix, unit.Id});
        call.Params.push_back({"a_JEDNOTKY" + suffix, unit.Name});
    }
}

TProcedureCall RandomCalls::next(const std::string& procedure) {
    const int roll = random_.below(100);
    const Quality quality = roll < 65 ? Quality::Good : (roll < 88 ? Quality::Mixed : Quality::Hostile);
    TProcedureCall call{procedure, {}, !random_.chance(5)};
    for (const AnsiString& input : inputs_.at(procedure)) {
        call.Params.push_back({input, value(input, quality)});
    }
    if (quality == Quality::Good && isRow(procedure) && random_.chance(85)) {
        makeRowFit(call);
    }
    if (quality == Quality::Hostile && random_.chance(5)) {
        call.Params.push_back({"a_NEZNAMY", std::int64_t{1}});
    }
    return call;
}

void RandomCalls::call(BothEngines& both) {
    constexpr std::array<const char*, 3> c_Users{"novakova", "dvorak", "svoboda"};
    if (random_.chance(3)) {
        both.openSessions(random_.pick(std::span<const char* const>(c_Users)));
    }
    both.begin("call " + std::to_string(++count_));
    both.call(next(random_.pick(std::span<const std::string>(procedures_))));
}

} // namespace refhost
