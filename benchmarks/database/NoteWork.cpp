#include "benchmarks/database/NoteWork.h"

#include "benchmarks/database/Floors.h"
#include "refhost/database/Decimal.h"
#include "tests/database/PriceColumns.h"

#include <algorithm>
#include <array>
#include <string>

namespace benchmark {

namespace {

/// The cells of a filled row that a save sends, in the order of the staging floor's parameters.
constexpr auto c_SavedColumns = [] {
    constexpr std::array c_First{"DOBSID", "SKLADPOL", "SKLAD", "MNOZSTVI", "DPH", "SLEVA"};
    std::array<const char*, c_First.size() + refhost::c_PriceColumns.size() + 1> columns{};
    auto* next = std::ranges::copy(c_First, columns.begin()).out;
    next = std::ranges::copy(refhost::c_PriceColumns, next).out;
    *next = "TRVANLIVOST";
    return columns;
}();
constexpr std::size_t c_FirstNumber = 3;

/// A cell as the editor sends it.
TDbValue sent(const TDbValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*number);
    }
    return value;
}

/// A cell as the floor stores it: numbers as the tables keep them, and no shelf life, whose text would have to be read.
TDbValue stored(const TDbValue& value, std::size_t place) {
    if (place + 1 == c_SavedColumns.size()) {
        return {};
    }
    TDbValue text = value;
    if (auto* characters = std::get_if<AnsiString>(&text);
        characters != nullptr && place >= c_FirstNumber && place != 4) {
        std::ranges::replace(*characters, ',', '.');
        *characters = refhost::canonicalDecimal(*characters);
    }
    return text;
}

struct Rows {
    std::vector<std::vector<TDbParam>> Sent;
    std::vector<std::vector<TDbValue>> Stored;
};

Rows rowsToSave(const TResultTable& filled) {
    Rows rows;
    std::vector<std::size_t> places;
    for (const char* column : c_SavedColumns) {
        places.push_back(static_cast<std::size_t>(std::ranges::find(filled.Columns, column) - filled.Columns.begin()));
    }
    for (const std::vector<TDbValue>& row : filled.Rows) {
        std::vector<TDbParam>& params = rows.Sent.emplace_back();
        std::vector<TDbValue>& values = rows.Stored.emplace_back();
        for (std::size_t i = 0; i < places.size(); ++i) {
            params.push_back({refhost::savedParameter(c_SavedColumns[i]), sent(row[places[i]])});
            values.push_back(stored(row[places[i]], i));
        }
    }
    return rows;
}

class NoteWork {
public:
    NoteWork(Company& company, int rounds, Report& report) : company_(company), rounds_(rounds), report_(report) {}

    void measureFills();
    void measureRecalculation();
    void measureSaving();

private:
    TResultTable fillFromOrder() {
        return call(company_.measured(), "MELVARKEDITORDodakGetPolozkyByObjednavka",
                    {{"a_DODKID", target_}, {"a_DDOBID", company_.longOrder()}});
    }
    void measureFill(const char* name, const std::function<void()>& work, const std::string& floor,
                     std::vector<TDbValue> parameters);
    void recalculate();
    void add(const char* name, double units, const Medians& medians) {
        report_.add({company_.engineName(), name, company_.lines(), medians.Work / units, medians.Floor / units});
    }

    Company& company_;
    int rounds_;
    Report& report_;
    std::int64_t target_ = company_.newNote();
};

void NoteWork::measureFill(const char* name, const std::function<void()>& work, const std::string& floor,
                           std::vector<TDbValue> parameters) {
    const Contest contest{[&] { return company_.microseconds(work); },
                          [&] { return company_.microseconds([&] { company_.bare().run(floor, parameters); }); }};
    add(name, company_.lines(), compete(contest, rounds_));
}

void NoteWork::measureFills() {
    measureFill("note from order, a line", [&] { fillFromOrder(); }, floors::c_NoteFromOrder,
                {target_, company_.longOrder()});
    const auto fromNote = [&](bool quantities, bool prices) {
        call(company_.measured(), "MELVARKEDITORDodakGetPolozkyByDodak",
             {{"a_DODKIDMASTER", company_.longNote()},
              {"a_DODKID", target_},
              {"a_PRENESMNOZSTVI", quantities},
              {"a_PRENESCENY", prices}});
    };
    measureFill("note from note, a line", [&] { fromNote(true, true); }, floors::c_NoteFromNote,
                {target_, company_.longNote()});
    measureFill("note from note, list prices, a line", [&] { fromNote(true, false); }, floors::c_NoteFromNote,
                {target_, company_.longNote()});
    const auto fromLatest = [&] {
        call(company_.measured(), "MELVARKEDITORDodakGetPolozkyByDodak",
             {{"a_DODKID", target_}, {"a_PRENESMNOZSTVI", true}, {"a_PRENESCENY", true}});
    };
    measureFill("note from the latest, a line read", fromLatest, floors::c_NoteFromLatest,
                {target_, std::int64_t{Company::c_Supplier}});
}

void NoteWork::recalculate() {
    call(company_.measured(), "MELVARKEDITORDodakVypocetCen",
         {{"a_ZMENENEBUNKY", "MNOZSTVI;JEDNCENABBEZSLEVY;"},
          {"a_PREPOCETCEN", true},
          {"a_FOCUS", "MNOZSTVI"},
          {"a_JEDNCENABBEZSLEVY", "12,35"},
          {"a_DPH", "21 %"},
          {"a_SLEVA", "5"},
          {"a_MNOZSTVI", "7,5"}});
}

void NoteWork::measureRecalculation() {
    const std::vector<TDbValue> echoed{"12,35", "21 %", "5", "7,5"};
    const auto floor = [&] { return company_.microseconds([&] { company_.bare().run(floors::c_Echo, echoed); }); };
    const auto afterFill = [&](const auto& cost) {
        return [&] {
            fillFromOrder(); // what it leaves in the processor's caches is the same for the work and its floor
            return cost();
        };
    };
    const auto recalculation = [&] { return company_.microseconds([&] { recalculate(); }); };
    const Contest first{afterFill(recalculation), afterFill(floor)};
    add("first recalculation after a fill", 1, compete(first, rounds_));
    const Contest next{recalculation, floor};
    add("recalculation", 1, compete(next, 100));
}

void NoteWork::measureSaving() {
    const Rows rows = rowsToSave(fillFromOrder());
    refhost::Database& measured = company_.measured();
    BareSession& bare = company_.bare();
    bare.script(floors::noteStaging(bare));

    // The last round's closings are what the rows' rounds left to close.
    std::vector<double> closings;
    std::vector<double> bareClosings;
    const Contest inserts{[&] {
                              measured.Execute({"MELVARKEDITORResetTemp", {}, false});
                              const double cost = company_.microseconds([&] {
                                  for (const std::vector<TDbParam>& row : rows.Sent) {
                                      measured.Execute({"MELVARKEDITORDodakInsertToTemp", row, false});
                                  }
                                  measured.awaitAnswers();
                              });
                              const std::int64_t note = company_.newNote();
                              closings.push_back(company_.microseconds([&] {
                                  measured.Execute({"MELVARKEDITORDodakTempUloz",
                                                    {{"a_DODKID", note}, {"a_DDOBID_ZDROJ", company_.longOrder()}},
                                                    false});
                              }));
                              company_.forgetDeliveries();
                              return cost;
                          },
                          [&] {
                              const double cost = company_.microseconds([&] {
                                  for (const std::vector<TDbValue>& row : rows.Stored) {
                                      bare.run(floors::c_StageNoteRow, row);
                                  }
                              });
                              const std::int64_t note = company_.newNote();
                              bareClosings.push_back(company_.microseconds([&] {
                                  bare.script("begin");
                                  bare.run(floors::c_CloseNote, {note});
                                  bare.run(floors::c_CloseOrderLines, {});
                                  bare.run("delete from NOTE_FLOOR", {});
                                  bare.script("commit");
                              }));
                              company_.forgetDeliveries();
                              return cost;
                          }};
    const Medians medians = compete(inserts, rounds_);
    const double units = static_cast<double>(rows.Sent.size());
    add("note row insert, a row", units, medians);
    add("note closing, a row", units, {median(closings), median(bareClosings)});
}

} // namespace

void measureNoteFills(Company& company, int rounds, Report& report) {
    NoteWork work(company, rounds, report);
    work.measureFills();
    work.measureRecalculation();
}

void measureNoteSaving(Company& company, int rounds, Report& report) {
    NoteWork(company, rounds, report).measureSaving();
}

} // namespace benchmark
