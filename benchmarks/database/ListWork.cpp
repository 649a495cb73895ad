#include "benchmarks/database/ListWork.h"

#include "benchmarks/database/Floors.h"

#include <string>

namespace benchmark {

namespace {

/// A lookup list with the condition that the editors send with it.
struct List {
    const char* Name;
    std::string Query;
    std::string Floor;
    std::vector<TDbValue> Parameters;
};

std::vector<List> lists(std::int64_t note, std::int64_t order) {
    const std::string ofNote = std::to_string(note) + ", 1";
    const std::string ofOrder = std::to_string(order) + ", 1, 1";
    const std::int64_t first = 1;
    return {
        {"list of orders",
         "select * from DODOBJEDNAVKA_NORMAL_V where V_MELVARKEDITORDodakCheckZdrojObjednavka(_ID, _SKLDID, _DODVID, " +
             ofNote + ", _DODANO)=1",
         floors::c_OrderList,
         {first, first}},
        {"list of notes",
         "select * from DODAK_NORMAL_V where V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, " + ofNote + ")=1",
         floors::c_NoteList,
         {first, first}},
        {"list of templates",
         "select * from DODOBJEDNAVKAVZOR_NORMAL_V where V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, "
         "_DODVID, " +
             ofOrder + ")=1",
         floors::c_TemplateList,
         {first, first}},
        {"list of orders for an order",
         "select * from DODOBJEDNAVKA_NORMAL_V where V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, "
         "_DODVID, " +
             ofOrder + ")=1",
         floors::c_OrderList,
         {first, first}},
        {"list of notes for an order",
         "select * from DODAK_NORMAL_V where V_MELVARKEDITORDodObjCheckZdrojDodak(_ID, _DODVID, " + ofOrder + ")=1",
         floors::c_NoteList,
         {first, first}},
        {"list of suppliers with prices",
         "select * from DODAVATEL_NORMAL_V where V_MELVARKEDITORDodObjCheckZdrojDodCenik(_ID, " +
             std::to_string(order) + ", 1, -1, '')=1",
         floors::c_ListedSuppliers,
         {}},
        {"list of suppliers who delivered",
         "select * from DODAVATEL_NORMAL_V where V_MELVARKEDITORDodObjCheckZdrojDodavky(_ID, " + std::to_string(order) +
             ", 1, -1, '', V_GetGlobalParam('SKLAD','POCETMESICUDODAVEK'))=1",
         floors::c_DeliveringSuppliers,
         {first}},
    };
}

} // namespace

void measureLists(Company& company, int rounds, Report& report) {
    const std::int64_t note = company.newNote();
    const std::int64_t order = company.newOrder();
    company.addListedDocuments();
    const auto add = [&](const char* name, const Medians& medians) {
        report.add({company.engineName(), name, company.lines(), medians.Work, medians.Floor});
    };
    const Contest byNumber{
        [&] {
            return company.microseconds([&] {
                call(company.measured(), "MELVARKEDITORDodakCheckZdrojObjednavka",
                     {{"a_DODKIDMASTER", note}, {"a_CISLO", "LIST-0"}});
            });
        },
        [&] { return company.microseconds([&] { company.bare().run(floors::c_OrderByNumber, {"LIST-0"}); }); }};
    add("order's check by number", compete(byNumber, 20));

    for (const List& list : lists(note, order)) {
        const Contest contest{
            [&] { return company.microseconds([&] { company.measured().Query(list.Query); }); },
            [&] { return company.microseconds([&] { company.bare().run(list.Floor, list.Parameters); }); }};
        add(list.Name, compete(contest, rounds));
    }
}

} // namespace benchmark
