#include "host/Exceptions.h"
#include "host/Package.h"

#include <cstdlib>

namespace {

const TPackageInfo c_info{c_ContractVersion, "FailingPlugin"};

} // namespace

extern "C" {

const TPackageInfo* GetPackageInfoTable() {
    return &c_info;
}

void Initialize() {
    throw EHostError("Chybí licence.");
}

/// What never started has nothing to end.
void Finalize() {
    std::abort();
}
}
