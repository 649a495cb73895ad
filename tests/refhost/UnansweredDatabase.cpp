#include "tests/refhost/UnansweredDatabase.h"

#include "host/Exceptions.h"
#include "refhost/database/RefusalTable.h"

#include <utility>

namespace refhost {

std::string UnansweredDatabase::takeCalls() {
    return std::exchange(calls_, {});
}

TProcedureInfo UnansweredDatabase::Describe(const AnsiString& procedure) {
    if (procedure == hidden_) {
        throw refusal("ML918", {procedure});
    }
    return database_.Describe(procedure);
}

TCallResult UnansweredDatabase::Execute(const TProcedureCall& call) {
    constexpr std::string_view c_Prefix = "MELVARKEDITOR";
    calls_ += (calls_.empty() ? "" : " ") + call.Name.substr(c_Prefix.size());
    const Loss loss = call.Name == procedure_ ? std::exchange(loss_, Loss::None) : Loss::None;
    if (loss == Loss::None) {
        return database_.Execute(call);
    }
    if (loss == Loss::OfAnswer) {
        database_.Execute(call);
    }
    throw refusal("ML916", {"firma"}, "the link is cut", TDatabaseCause::Failure);
}

} // namespace refhost
