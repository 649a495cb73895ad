#include "host/Identifier.h"

#include "host/LiveData.h"
#include "tests/host/FakeHost.h"

#include <gtest/gtest.h>

namespace {

TEST(Identifier, NoneTravelsAsNullAndEveryOtherAsItself) {
    FakeHost host;
    const TScopedHost installed(host);
    TLiveParam param("a_ID");
    for (const int id : {31, 0, -2}) {
        melvark::SetIdentifier(param, id);
        EXPECT_EQ(param.Value(), TDbValue(std::int64_t{id}));
    }
    melvark::SetIdentifier(param, c_NullValue);
    EXPECT_TRUE(param.IsNull());
}

} // namespace
