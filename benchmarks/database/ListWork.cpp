#include "benchmarks/database/ListWork.h"

#include "benchmarks/database/Floors.h"
#include "benchmarks/database/ShownList.h"

#include <string>

namespace benchmark {

namespace {

/// So many rows are read before the dialog shows the first page.
constexpr const char* c_FirstPortion = " order by 1 limit 1000";

/// The lists of documents, which are as long as there are documents.
std::vector<List> documentLists(std::int64_t note, std::int64_t order) {
    const std::string ofNote = std::to_string(note) + ", 1";
    const std::string ofOrder = std::to_string(order) + ", 1, 1";
    const std::int64_t first = 1;
    return {
        {"list of orders",
         "Kordan3:DODOBJEDNAVKA.Normal",
         "V_MELVARKEDITORDodakCheckZdrojObjednavka(_ID, _SKLDID, _DODVID, " + ofNote + ", _DODANO)=1",
         floors::c_OrderList,
         {first, first}},
        {"list of notes",
         "Kordan3:DODAK.Normal",
         "V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, " + ofNote + ")=1",
         floors::c_NoteList,
         {first, first}},
        {"list of templates",
         "Kordan3:DODOBJEDNAVKAVZOR.Normal",
         "V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, _DODVID, " + ofOrder + ")=1",
         floors::c_TemplateList,
         {first, first}},
        {"list of orders for an order",
         "Kordan3:DODOBJEDNAVKA.Normal",
         "V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, _DODVID, " + ofOrder + ")=1",
         floors::c_OrderList,
         {first, first}},
        {"list of notes for an order",
         "Kordan3:DODAK.Normal",
         "V_MELVARKEDITORDodObjCheckZdrojDodak(_ID, _DODVID, " + ofOrder + ")=1",
         floors::c_NoteList,
         {first, first}},
    };
}

std::vector<List> supplierLists(std::int64_t order) {
    const std::int64_t first = 1;
    return {
        {"list of suppliers with prices",
         "Kordan3:DODAVATEL.Normal",
         "V_MELVARKEDITORDodObjCheckZdrojDodCenik(_ID, " + std::to_string(order) + ", 1, -1, '')=1",
         floors::c_ListedSuppliers,
         {}},
        {"list of suppliers who delivered",
         "Kordan3:DODAVATEL.Normal",
         "V_MELVARKEDITORDodObjCheckZdrojDodavky(_ID, " + std::to_string(order) +
             ", 1, -1, '', V_GetGlobalParam('SKLAD','POCETMESICUDODAVEK'))=1",
         floors::c_DeliveringSuppliers,
         {first}},
    };
}

Contest reading(Company& company, const List& list) {
    const std::string query = listQuery(list);
    return {
        [&company, query] { return company.microseconds([&] { company.measured().Query(query); }); },
        [&company, list] { return company.microseconds([&] { company.bare().run(list.Floor, list.Parameters); }); }};
}

Contest showing(Company& company, const List& list, Until until) {
    const auto rows = static_cast<int>(company.measured().Query(listQuery(list)).Rows.size());
    const std::string floor = list.Floor + (until == Until::FirstPagePainted ? c_FirstPortion : "");
    return {
        [&company, list, rows, until] { return showList(company, list, rows, until); },
        [&company, list, floor] { return company.microseconds([&] { company.bare().run(floor, list.Parameters); }); }};
}

} // namespace

void measureLists(Company& company, int rounds, Report& report) {
    const std::int64_t note = company.newNote();
    const std::int64_t order = company.newOrder();
    company.addListedDocuments();
    const auto add = [&](const std::string& name, const Medians& medians) {
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

    const std::vector<List> ofDocuments = documentLists(note, order);
    for (const List& list : ofDocuments) {
        add(list.Name, compete(reading(company, list), rounds));
    }
    for (const List& list : supplierLists(order)) {
        add(list.Name, compete(reading(company, list), rounds));
    }
    for (const List& list : ofDocuments) {
        add(std::string(list.Name) + ", first page", compete(showing(company, list, Until::FirstPagePainted), rounds));
        add(std::string(list.Name) + ", in its window", compete(showing(company, list, Until::AllRowsPainted), rounds));
    }
}

} // namespace benchmark
