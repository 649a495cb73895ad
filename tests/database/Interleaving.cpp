#include "tests/database/Interleaving.h"

#include "host/Exceptions.h"
#include "tests/database/ContractCompany.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <set>

namespace refhost {

namespace {

constexpr char c_First = '1';
constexpr char c_Second = '2';

/// What a session is told by one step; empty when there is nothing to tell.
std::string toldBy(Database& session, const SessionStep& next) {
    try {
        if (next.Procedure.empty()) {
            session.runScript(next.Sql);
            return {};
        }
        const std::string told = answerText(session.Execute({next.Procedure, next.Params, false}));
        session.awaitAnswers();
        return told;
    } catch (const EDatabaseError& error) {
        return error.Code();
    }
}

void add(std::string& told, const std::string& more) {
    told += (told.empty() || more.empty() ? "" : " ") + more;
}

std::string orAccepted(const std::string& told) {
    return told.empty() ? "accepted" : told;
}

} // namespace

SessionStep step(const std::string& procedure, Parameters parameters) {
    return {"MELVARKEDITOR" + procedure, std::move(parameters)};
}

SessionStep statement(const std::string& sql) {
    return {{}, {}, sql};
}

std::ostream& operator<<(std::ostream& stream, const SessionPair& pair) {
    return stream << pair.Name;
}

std::vector<std::string> ordersOf(std::size_t first, std::size_t second) {
    std::vector<std::string> orders;
    std::string order = std::string(first, c_First) + std::string(second, c_Second);
    do {
        orders.push_back(order);
    } while (std::ranges::next_permutation(order).found);
    return orders;
}

Interleaving::Interleaving(const SessionPair& pair, const std::string& url)
    : pair_(pair),
      observer_(openAs(url, "svoboda")),
      first_(openAs(url, "novakova")),
      second_(openAs(url, pair.SecondUser)) {}

std::string Interleaving::endOf(const std::string& order) {
    observer_->runScript(pair_.Restore);
    std::string toldFirst;
    std::string toldSecond;
    auto ofFirst = pair_.First.begin();
    auto ofSecond = pair_.Second.begin();
    for (const char session : order) {
        if (session == c_First) {
            add(toldFirst, toldBy(*first_, *ofFirst++));
        } else {
            add(toldSecond, toldBy(*second_, *ofSecond++));
        }
    }
    return orAccepted(toldFirst) + " / " + orAccepted(toldSecond) + "\n" + rows(*observer_, pair_.Picture);
}

void expectRightEnds(const SessionPair& pair, Engine engine) {
    const std::string url = newDatabaseUrl(engine);
    addContractCompany(*openAs(url, "novakova"));
    Interleaving sessions(pair, url);
    std::set<std::string> right(pair.OtherEnds.begin(), pair.OtherEnds.end());
    right.insert({pair.FirstThenSecond, pair.SecondThenFirst});
    std::set<std::string> seen;

    const std::vector<std::string> orders = ordersOf(pair.First.size(), pair.Second.size());
    for (const std::string& order : orders) {
        const std::string end = sessions.endOf(order);
        seen.insert(end);
        EXPECT_THAT(right, testing::Contains(end)) << "in the order " << order;
    }
    EXPECT_EQ(sessions.endOf(orders.front()), pair.FirstThenSecond);
    EXPECT_EQ(sessions.endOf(orders.back()), pair.SecondThenFirst);
    EXPECT_EQ(seen, right) << "an end that no order leads to is not to be allowed";
}

} // namespace refhost
