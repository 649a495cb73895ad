#include "editwin/model/EditExceptions.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace {

template <typename Error>
class EditExceptionsOf : public testing::Test {};
using AllErrors = testing::Types<EBadValue, EEditBox, EEditBoxCanceled>;
TYPED_TEST_SUITE(EditExceptionsOf, AllErrors);

TYPED_TEST(EditExceptionsOf, CarryTheirMessageToWhoeverCatchesTheFrameworksException) {
    try {
        throw TypeParam("Hodnota x není datum");
    } catch (const Exception& error) {
        EXPECT_EQ(error.Message(), "Hodnota x není datum");
    }
}

TEST(EditExceptions, AreNotKindsOfOneAnother) {
    // A handler of failures would otherwise show a quiet cancel to the user.
    EXPECT_FALSE((std::is_base_of_v<EEditBox, EEditBoxCanceled>));
    EXPECT_FALSE((std::is_base_of_v<EEditBox, EBadValue>));
    EXPECT_FALSE((std::is_base_of_v<EEditBoxCanceled, EEditBox>));
}

} // namespace
