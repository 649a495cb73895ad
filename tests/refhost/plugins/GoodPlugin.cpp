#include "host/ClassRegistry.h"
#include "host/HostServices.h"
#include "host/LibraryItem.h"
#include "host/Package.h"

#include <memory>

namespace {

/// Says true for the parameters "yes".
class TestItem : public TLibraryItem {
public:
    using TLibraryItem::TLibraryItem;
    bool Execute(AnsiString params, TDataSet*, TXBookmarkList*) override { return params == "yes"; }
};

const TPackageInfo c_info{c_ContractVersion, "GoodPlugin"};

} // namespace

extern "C" {

const TPackageInfo* GetPackageInfoTable() {
    return &c_info;
}

void Initialize() {
    RegisterClasses({{"TTestItem", [](TLibraryManager* manager) { return std::make_unique<TestItem>(manager); }}});
}

/// Leaves a mark that the test can see.
void Finalize() {
    RegisterClasses({{"TFinalized", [](TLibraryManager*) { return std::unique_ptr<TLibraryItem>(); }}});
}
}
