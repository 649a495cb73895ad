#include "host/Package.h"

#include "host/ClassRegistry.h"
#include "main/MelvarkEditorMain.h"

#include <memory>

namespace {

int initializations = 0;

} // namespace

extern "C" {

/// Registers the library item with the current host, once however often the package is initialised.
void Initialize() {
    if (initializations == 0) {
        RegisterClasses({{"TMelvarkEditor", [](TLibraryManager* libraryManager) {
                              return std::make_unique<TMelvarkEditor>(libraryManager);
                          }}});
    }
    ++initializations;
}

/// Undoes one initialisation's count. The class stays registered: the host may still hold items of it.
void Finalize() {
    if (initializations > 0) {
        --initializations;
    }
}

const TPackageInfo* GetPackageInfoTable() {
    static constexpr TPackageInfo info{c_ContractVersion, "MelvarkEditor"};
    return &info;
}
}
