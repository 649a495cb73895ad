#include "benchmarks/editors/ClerkConnection.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>

namespace benchmark {

std::vector<TProcedureCall> ClerkConnection::take() {
    keeps_ = isRehearsal_ = false;
    return std::exchange(kept_, {});
}

TCallResult ClerkConnection::Execute(const TProcedureCall& call) {
    const auto isChosen = [this](const TDbParam& param) {
        return param.Name == choice_.first && std::holds_alternative<std::monostate>(param.Value);
    };
    const bool chooses = std::ranges::any_of(call.Params, isChosen);
    if (!chooses && !keeps_) {
        return target_.Execute(call);
    }
    TProcedureCall sent = call;
    for (TDbParam& param : sent.Params) {
        if (isChosen(param)) {
            param.Value = choice_.second;
        }
    }
    if (keeps_) {
        kept_.push_back(std::move(sent));
        return isRehearsal_ ? TCallResult{} : target_.Execute(kept_.back());
    }
    return target_.Execute(sent);
}

TDateTime BenchmarkHost::Now() const {
    return std::chrono::local_days(std::chrono::year(2026) / 5 / 4);
}

void BenchmarkHost::ShowError(std::exception_ptr error) noexcept {
    try {
        std::rethrow_exception(error);
    } catch (const std::exception& shown) {
        std::fprintf(stderr, "%s\n", shown.what());
    } catch (...) {
        std::fputs("an unknown error\n", stderr);
    }
    std::abort();
}

} // namespace benchmark
