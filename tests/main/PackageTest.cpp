#include "host/Package.h"

#include "host/ClassRegistry.h"
#include "host/LibraryItem.h"
#include "tests/support/RecordingHost.h"

#include <QLibrary>

#include <gmock/gmock.h>

namespace {

/// The plug-in as a host loads it.
class Package : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(library_.load()) << library_.errorString().toStdString(); }

    template <class Function>
    Function entry(const char* symbol) {
        const auto function = reinterpret_cast<Function>(library_.resolve(symbol));
        EXPECT_NE(function, nullptr) << symbol;
        return function;
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
    QLibrary library_{QStringLiteral(MELVARK_PLUGIN)};
};

TEST_F(Package, TellsTheContractThatItWasBuiltFor) {
    const TPackageInfo* info = entry<TGetPackageInfoTable>(c_GetPackageInfoTableSymbol)();
    EXPECT_EQ(info->ContractVersion, c_ContractVersion);
    EXPECT_STREQ(info->Name, "MelvarkEditor");
}

TEST_F(Package, RegistersItsClassOnceForEachTimeItIsFreshlyInitialised) {
    const auto initialize = entry<TInitializePackage>(c_InitializeSymbol);
    const auto finalize = entry<TFinalizePackage>(c_FinalizeSymbol);
    initialize();
    ASSERT_TRUE(host_.Classes().Contains("TMelvarkEditor"));
    EXPECT_NE(host_.Classes().Create("TMelvarkEditor", nullptr), nullptr);
    {
        RecordingHost other;
        TScopedHost otherScope(other);
        initialize();
        EXPECT_FALSE(other.Classes().Contains("TMelvarkEditor")) << "counted, not registered again";
        finalize();
        finalize();
        initialize();
        EXPECT_TRUE(other.Classes().Contains("TMelvarkEditor"));
    }
    finalize();
    EXPECT_TRUE(host_.Classes().Contains("TMelvarkEditor")) << "the end undoes the count only";
}

TEST_F(Package, ShowsNothingButItsEntryPoints) {
    for (const char* symbol : {"_ZTI14TMelvarkEditor", "_ZTI13TDodakEditBox", "_ZTI8TEditBox", "_ZTI9EBadValue"}) {
        EXPECT_EQ(library_.resolve(symbol), nullptr) << symbol;
    }
}

} // namespace
