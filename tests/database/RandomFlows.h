#pragma once

#include "refhost/database/sample/Random.h"
#include "tests/database/BothEngines.h"
#include "tests/database/RandomCalls.h"

#include <map>
#include <string>
#include <vector>

namespace refhost {

struct SourceWay;

/// Whole pieces of a clerk's work, call by call as the editors make them: a document is opened and filled from a
/// source, its rows are changed, and it is saved; some sources do not fit, some rows are wrong, some saves are refused
/// and done again. Both engines have to answer every call alike and to hold the same lines in the end.
class RandomFlows {
public:
    RandomFlows(BothEngines& both, std::uint64_t seed);

    void next();

    /// How many of the saves were accepted.
    int saved() const { return saved_; }

private:
    using Row = std::map<std::string, TDbValue>;

    struct Chosen {
        std::vector<Row> Rows;
        std::vector<TDbParam> Sources;
    };

    void noteFlow();
    void orderFlow();
    std::int64_t anyId(const std::string& sql);
    TDbValue flag() { return random_.chance(50); }
    /// The source's identifier as its check gives it; null when it is refused.
    TDbValue checkedSource(const SourceWay& way, std::int64_t document);
    Chosen filled(const SourceWay& way, std::int64_t document);
    std::vector<Row> groupRows(std::int64_t document);
    std::vector<Row> rowsOf(const std::optional<TCallResult>& result);
    void changePrices(Row& row);
    void changeQuantities(Row& row);
    bool save(const std::string& rowProcedure, const std::vector<std::vector<TDbParam>>& rows,
              const std::string& closing, const std::vector<TDbParam>& parameters);

    BothEngines& both_;
    sample::Random random_;
    RandomCalls calls_;
    int flows_ = 0;
    int saved_ = 0;
};

} // namespace refhost
