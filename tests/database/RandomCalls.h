#pragma once

#include "refhost/database/sample/Random.h"
#include "tests/database/BothEngines.h"

#include <map>
#include <string>
#include <vector>

namespace refhost {

/// Calls of all procedures as nobody would think them up: with names, numbers and identifiers that the company has,
/// that it has elsewhere, or that are nonsense. Rows and closing calls of a save come more often than the rest, so that
/// saves also succeed. The same seed gives the same calls for the same company.
class RandomCalls {
public:
    /// Learns from the database what the company has and which parameters its procedures take.
    RandomCalls(Database& company, std::uint64_t seed);

    /// Puts the next call to both engines, once in a while in new sessions, of which a save knows nothing.
    void call(BothEngines& both);

    /// A number as a clerk may type it, seldom one with more decimals than may be saved.
    AnsiString number();

private:
    /// How well a call means it: everything fits, some of it does, nothing has to.
    enum class Quality { Good, Mixed, Hostile };

    struct Unit {
        AnsiString Item;
        AnsiString Id;
        AnsiString Name;
        int Place = 0;
    };

    void learn(Database& company);
    TProcedureCall next(const std::string& procedure);
    TDbValue value(const std::string& parameter, Quality quality);
    TDbValue goodValue(const std::string& parameter);
    TDbValue hostileValue();
    AnsiString cellKeys();
    void makeRowFit(TProcedureCall& call);

    sample::Random random_;
    int count_ = 0;
    std::vector<std::string> procedures_; ///< Each as often as it is to be called.
    std::map<std::string, std::vector<AnsiString>> inputs_;
    std::map<std::string, std::vector<TDbValue>> choices_; ///< By the query that brought them.
    std::vector<Unit> units_;
};

} // namespace refhost
