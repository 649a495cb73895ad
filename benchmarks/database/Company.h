#pragma once

#include "benchmarks/database/BareSession.h"
#include "benchmarks/database/CostClock.h"
#include "refhost/database/Database.h"
#include "tests/database/Engines.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace benchmark {

/// The sample company with long documents in a new database, and two connections to it: the measured one and the bare
/// one. Its first supplier lists every item. Beside the long documents stand as many orders of one line that the first
/// supplier has still to deliver.
class Company {
public:
    static constexpr const char* c_User = "novakova";
    static constexpr int c_Supplier = 1; ///< Of the long documents and of new ones.

    /// `lines` of the long order, note and template.
    Company(refhost::Engine engine, int lines, CostClock::Kind clock);

    refhost::Database& measured() { return *measured_; }
    BareSession& bare() { return *bare_; }
    int lines() const { return lines_; }
    const std::string& engineName() const { return engineName_; }
    /// The address at which further connections find the company.
    const std::string& url() const { return url_; }
    const CostClock& clock() const { return clock_; }

    std::int64_t longOrder() const { return longOrder_; }
    std::int64_t longTemplate() const { return longTemplate_; }
    std::int64_t longNote() const { return longNote_; }
    /// A new open document of the first supplier without lines.
    std::int64_t newNote();
    std::int64_t newOrder();
    /// As many templates and notes without lines as there are lines of the long documents, all of the first supplier
    /// and warehouse.
    void addListedDocuments();
    /// As many items in the first group, which the first supplier lists.
    void addListedItems();
    /// Nothing of the long order has come.
    void forgetDeliveries();

    /// What a work on either connection costs.
    template <class Work>
    double microseconds(Work work) const {
        return clock_.microseconds(work);
    }

    /// The one number that a query brings.
    std::int64_t number(const std::string& sql);

private:
    void addOrders();
    void insert(const char* table, const std::vector<std::string>& columns,
                const std::vector<std::vector<TDbValue>>& rows);

    CostClock clock_;
    int lines_;
    std::string engineName_;
    std::string url_;
    std::unique_ptr<refhost::Database> measured_;
    std::unique_ptr<BareSession> bare_;
    std::int64_t longOrder_ = 0;
    std::int64_t longTemplate_ = 0;
    std::int64_t longNote_ = 0;
    int newDocuments_ = 0;
};

/// A call that opens its results.
TResultTable call(refhost::Database& database, const char* procedure, std::vector<TDbParam> params);

} // namespace benchmark
