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
    // A handler of failures would otherwise show a quiet cancel to the user, and the keeper of a cell would take
    // another failure for a refused value.
    EXPECT_FALSE((std::is_base_of_v<EEditBox, EEditBoxCanceled>));
    EXPECT_FALSE((std::is_base_of_v<EEditBox, EBadValue>));
    EXPECT_FALSE((std::is_base_of_v<EEditBoxCanceled, EEditBox>));
    EXPECT_FALSE((std::is_base_of_v<EEditBoxCanceled, EBadValue>));
    EXPECT_FALSE((std::is_base_of_v<EBadValue, EEditBox>));
    EXPECT_FALSE((std::is_base_of_v<EBadValue, EEditBoxCanceled>));
}

} // namespace
