#include "host/Package.h"

/// Nothing defines this: the library fits no program.
void functionOfAnotherProgram();

namespace {

const TPackageInfo c_info{c_ContractVersion, "UnboundPlugin"};

} // namespace

extern "C" {

const TPackageInfo* GetPackageInfoTable() {
    return &c_info;
}

void Initialize() {
    functionOfAnotherProgram();
}

void Finalize() {}
}
