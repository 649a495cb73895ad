#include "tests/session/ContractTrace.h"

#include "refhost/dbcheck/DatabaseContract.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <set>

namespace {

using Names = std::set<std::string>;

bool isOfContract(const QJsonObject& line) {
    const refhost::DatabaseContract& contract = refhost::contract();
    const std::string name = line.value(QStringLiteral("call")).toString().toStdString();
    const auto procedure = contract.Procedures.find(name);
    if (procedure == contract.Procedures.end()) {
        return std::ranges::count(contract.Queries, name, &refhost::DatabaseContract::FixedQuery::Sql) == 1;
    }
    Names sent;
    for (const QJsonValue& parameter : line.value(QStringLiteral("params")).toArray()) {
        sent.insert(parameter.toArray().at(0).toString().toStdString());
    }
    Names declared;
    for (const refhost::DeclaredName& input : procedure->second.Inputs) {
        declared.insert(input.Name);
    }
    return sent == declared;
}

} // namespace

std::vector<std::string> callsOutsideContract(const std::vector<std::string>& trace) {
    std::vector<std::string> calls;
    std::ranges::copy_if(trace, std::back_inserter(calls), [](const std::string& line) {
        const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
        return object.contains(QStringLiteral("call")) && !isOfContract(object);
    });
    return calls;
}
