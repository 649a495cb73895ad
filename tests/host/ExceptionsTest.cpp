#include "host/Exceptions.h"

#include <gtest/gtest.h>
#include <string>
#include <type_traits>

namespace {

TEST(Exceptions, CarryTheirSentence) {
    const EConvertError error("Hodnota x není celé číslo");
    EXPECT_EQ(error.Message(), "Hodnota x není celé číslo");
    EXPECT_STREQ(error.what(), "Hodnota x není celé číslo");
}

TEST(Exceptions, AreCaughtAsTheFrameworksBase) {
    try {
        throw EInOutError("Soubor nelze zapsat");
    } catch (const Exception& error) {
        EXPECT_EQ(error.Message(), "Soubor nelze zapsat");
    }
}

TEST(Exceptions, KeepADatabaseRefusalsCodeAndDetailsOutOfItsSentence) {
    const EDatabaseError error("Doklad je uzavřen.", "MV001", "engine: line 7");
    EXPECT_EQ(error.Message(), "Doklad je uzavřen.");
    EXPECT_EQ(error.Code(), "MV001");
    EXPECT_EQ(error.Details(), "engine: line 7");
}

TEST(Exceptions, ADatabaseErrorNeedsNoCode) {
    const EDatabaseError error("Spojení je přerušeno.");
    EXPECT_EQ(error.Code(), "");
    EXPECT_EQ(error.Details(), "");
}

TEST(Exceptions, ADatabaseRefusalMayNameTheLineThatItIsAbout) {
    const EDatabaseError refusal("Sklad neexistuje.", "MV001", "engine: line 7");
    const EDatabaseError named = refusal.AboutRow(2);
    EXPECT_EQ(refusal.Row(), std::nullopt);
    EXPECT_EQ(named.Row(), 2);
    EXPECT_EQ(named.Message() + "|" + named.Code() + "|" + named.Details(), "Sklad neexistuje.|MV001|engine: line 7");
}

TEST(Exceptions, ADatabaseErrorIsARefusalUnlessTheDatabaseItselfFailed) {
    EXPECT_EQ(EDatabaseError("Sklad neexistuje.").Cause(), TDatabaseCause::Refusal);
    EXPECT_EQ(EDatabaseError("Spojení je přerušeno.", {}, {}, TDatabaseCause::Failure).Cause(),
              TDatabaseCause::Failure);
}

TEST(Exceptions, KindsAreNotMistakenForOneAnother) {
    EXPECT_FALSE((std::is_base_of_v<EDatabaseError, EHostError>));
    EXPECT_FALSE((std::is_base_of_v<EConvertError, EInOutError>));
    EXPECT_TRUE((std::is_base_of_v<Exception, EHostError>));
}

TEST(Exceptions, CopiesOutliveTheOriginal) {
    std::exception_ptr kept;
    try {
        throw EDatabaseError("Řádek byl odmítnut.", "MV002");
    } catch (const EDatabaseError&) {
        kept = std::current_exception();
    }
    try {
        std::rethrow_exception(kept);
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Code(), "MV002");
    }
}

} // namespace
