#include "host/Package.h"

/// Of the later contract's library.
void somethingNew();

namespace {

const TPackageInfo c_info{c_ContractVersion + 1, "LaterPlugin"};

} // namespace

extern "C" {

const TPackageInfo* GetPackageInfoTable() {
    return &c_info;
}

void Initialize() {
    somethingNew();
}

void Finalize() {}
}
