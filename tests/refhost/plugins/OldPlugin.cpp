#include "host/Package.h"

#include <cstdlib>

namespace {

const TPackageInfo c_info{c_ContractVersion - 1, "OldPlugin"};

} // namespace

extern "C" {

const TPackageInfo* GetPackageInfoTable() {
    return &c_info;
}

/// A package of another version must never get so far.
void Initialize() {
    std::abort();
}

void Finalize() {}
}
