#include "benchmarks/database/OrderWork.h"

#include "benchmarks/database/Floors.h"

#include <algorithm>
#include <string>

namespace benchmark {

namespace {

class OrderWork {
public:
    OrderWork(Company& company, int rounds, Report& report) : company_(company), rounds_(rounds), report_(report) {}

    void measureFills();
    void measureAssortment();
    void measureSaving();

private:
    /// One way to fill the order.
    struct Fill {
        const char* Name;
        const char* Procedure;
        std::vector<TDbParam> Parameters; ///< Beside the order.
        std::string Floor;
        std::int64_t Source; ///< The floor's second parameter.
        /// Whether the cost is told for each line of the long document, which brings each of its items once.
        bool IsEachLineRead = false;
    };

    void measureFill(const Fill& fill);
    TResultTable fillFromTemplate() {
        return call(company_.measured(), "MELVARKEDITORDodObjGetPolozkyByObjednavka",
                    {{"a_DDOBIDMASTER", target_}, {"a_DDOBID", company_.longTemplate()}});
    }
    void add(const char* name, double units, const Medians& medians) {
        report_.add({company_.engineName(), name, company_.lines(), medians.Work / units, medians.Floor / units});
    }

    Company& company_;
    int rounds_;
    Report& report_;
    std::int64_t target_ = company_.newOrder();
};

void OrderWork::measureFill(const Fill& fill) {
    std::vector<TDbParam> parameters{{"a_DDOBIDMASTER", target_}};
    parameters.insert(parameters.end(), fill.Parameters.begin(), fill.Parameters.end());
    std::size_t rows = 1;
    const Contest contest{
        [&] {
            return company_.microseconds(
                [&] { rows = call(company_.measured(), fill.Procedure, parameters).Rows.size(); });
        },
        [&] { return company_.microseconds([&] {
                  company_.bare().run(fill.Floor, {target_, fill.Source});
              }); }};
    const Medians medians = compete(contest, rounds_);
    add(fill.Name, fill.IsEachLineRead ? company_.lines() : static_cast<double>(rows), medians);
}

void OrderWork::measureFills() {
    const std::int64_t supplier = Company::c_Supplier;
    const Fill fills[] = {
        {"order from template, a line",
         "MELVARKEDITORDodObjGetPolozkyByObjednavka",
         {{"a_DDOBID", company_.longTemplate()}},
         floors::c_OrderFromOrder,
         company_.longTemplate()},
        {"order from note, a line",
         "MELVARKEDITORDodObjGetPolozkyByDodak",
         {{"a_DODKID", company_.longNote()}},
         floors::c_OrderFromNote,
         company_.longNote()},
        {"order from the latest, a line read",
         "MELVARKEDITORDodObjGetPolozkyByObjednavka",
         {},
         floors::c_OrderFromLatest,
         supplier,
         true},
        {"order from deliveries, a line read",
         "MELVARKEDITORDodObjGetPolozkyByDodavky",
         {{"a_DODVID", supplier}, {"a_PRENESMNOZSTVI", true}},
         floors::c_OrderFromDeliveries,
         supplier,
         true},
    };
    for (const Fill& fill : fills) {
        measureFill(fill);
    }
}

void OrderWork::measureAssortment() {
    const std::int64_t supplier = Company::c_Supplier;
    const std::int64_t group = company_.number("select min(ID) from SKUPSPOL1");
    measureFill({"order from price list, a line",
                 "MELVARKEDITORDodObjGetPolozkyByDodCenik",
                 {{"a_DODVID", supplier}},
                 floors::c_OrderFromPriceList,
                 supplier});
    measureFill({"order from a group, a line",
                 "MELVARKEDITORDodObjGetPolozkyBySkupSkladPol",
                 {{"a_SSP1ID", group}},
                 floors::c_OrderFromGroup,
                 group});
}

void OrderWork::measureSaving() {
    const TResultTable filled = fillFromTemplate();
    const auto place = [&](const char* column) {
        return static_cast<std::size_t>(std::ranges::find(filled.Columns, column) - filled.Columns.begin());
    };
    const std::size_t item = place("SKLADPOL");
    const std::size_t warehouse = place("SKLAD");
    const std::size_t supplier = place("DODAVATEL");
    const std::size_t quantity = place("MNOZSTVIHL");
    const std::size_t unit = place("SKPLIDHL");
    const std::size_t unitName = place("JEDNOTKYHL");

    refhost::Database& measured = company_.measured();
    BareSession& bare = company_.bare();
    bare.script(floors::orderStaging(bare));
    std::vector<double> closings;
    std::vector<double> bareClosings;
    const Contest inserts{
        [&] {
            measured.Execute({"MELVARKEDITORResetTemp", {}, false});
            const double cost = company_.microseconds([&] {
                for (const std::vector<TDbValue>& row : filled.Rows) {
                    measured.Execute({"MELVARKEDITORDodObjInsertToTemp",
                                      {{"a_SKLADPOL", row[item]},
                                       {"a_SKLAD", row[warehouse]},
                                       {"a_DODAVATEL", row[supplier]},
                                       {"a_SKPLID", row[unit]},
                                       {"a_MNOZSTVI", row[quantity]},
                                       {"a_JEDNOTKY", row[unitName]}},
                                      false});
                }
                measured.awaitAnswers();
            });
            const std::int64_t order = company_.newOrder();
            closings.push_back(company_.microseconds([&] {
                measured.Execute({"MELVARKEDITORDodObjTempUloz",
                                  {{"a_DDOBID", order}, {"a_DDOBIDVZOR_ZDROJ", company_.longTemplate()}},
                                  false});
            }));
            return cost;
        },
        [&] {
            const double cost = company_.microseconds([&] {
                for (const std::vector<TDbValue>& row : filled.Rows) {
                    bare.run(floors::c_StageOrderRow,
                             {row[item], row[warehouse], row[supplier], row[unit], row[quantity], {}, {}});
                }
            });
            const std::int64_t order = company_.newOrder();
            bareClosings.push_back(company_.microseconds([&] {
                bare.script("begin");
                bare.run(floors::c_CloseOrder, {order});
                bare.run("delete from ORDER_FLOOR", {});
                bare.script("commit");
            }));
            return cost;
        }};
    const Medians medians = compete(inserts, rounds_);
    const double units = static_cast<double>(filled.Rows.size());
    add("order row insert, a row", units, medians);
    add("order closing, a row", units, {median(closings), median(bareClosings)});
}

} // namespace

void measureOrderFills(Company& company, int rounds, Report& report) {
    OrderWork(company, rounds, report).measureFills();
}

void measureOrderSaving(Company& company, int rounds, Report& report) {
    OrderWork(company, rounds, report).measureSaving();
}

void measureAssortment(Company& company, int rounds, Report& report) {
    company.addListedItems();
    OrderWork(company, rounds, report).measureAssortment();
}

} // namespace benchmark
