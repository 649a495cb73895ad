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
    void measureSaving();

private:
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

void OrderWork::measureFills() {
    const auto bareRun = [&](const std::string& sql, const std::vector<TDbValue>& parameters) {
        return company_.microseconds([&] { company_.bare().run(sql, parameters); });
    };
    const Contest fromTemplate{[&] { return company_.microseconds([&] { fillFromTemplate(); }); },
                               [&] {
                                   return bareRun(floors::c_OrderFromOrder, {target_, company_.longTemplate()});
                               }};
    add("order from template, a line", company_.lines(), compete(fromTemplate, rounds_));

    std::size_t listed = 1;
    const Contest fromPriceList{[&] {
                                    return company_.microseconds([&] {
                                        listed = call(company_.measured(), "MELVARKEDITORDodObjGetPolozkyByDodCenik",
                                                      {{"a_DDOBIDMASTER", target_}, {"a_DODVID", std::int64_t{1}}})
                                                     .Rows.size();
                                    });
                                },
                                [&] {
                                    return bareRun(floors::c_OrderFromPriceList, {target_, std::int64_t{1}});
                                }};
    const Medians medians = compete(fromPriceList, rounds_);
    add("order from price list, a line", static_cast<double>(listed), medians);
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

void measureOrders(Company& company, int rounds, Report& report) {
    OrderWork work(company, rounds, report);
    work.measureFills();
    work.measureSaving();
}

void measureLists(Company& company, int rounds, Report& report) {
    const std::int64_t note = company.newNote();
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

    const std::string list = "select * from DODOBJEDNAVKA_NORMAL_V where V_MELVARKEDITORDodakCheckZdrojObjednavka(_ID, "
                             "_SKLDID, _DODVID, " +
                             std::to_string(note) + ", 1, _DODANO)=1";
    const auto contest = [&](const std::string& sql, std::int64_t most) {
        return Contest{[&, sql] { return company.microseconds([&] { company.measured().Query(sql); }); },
                       [&, most] {
                           return company.microseconds([&] {
                               company.bare().run(floors::c_OrderList, {std::int64_t{1}, std::int64_t{1}, most});
                           });
                       }};
    };
    add("list of orders, first 100", compete(contest(list + " limit 100", 100), rounds));
    add("list of orders, whole", compete(contest(list, company.lines() * 2), rounds));
}

} // namespace benchmark
