#include "host/ContractTexts.h"

#include "tests/host/FakeHost.h"

#include <gtest/gtest.h>

namespace {

using namespace melvark;

constexpr ContractText c_Text{"KEY", "Procedura %s nemá parametr %s."};

TEST(ContractTexts, SpeakTheBuiltInLanguageWhileNoHostIsInstalled) {
    EXPECT_EQ(Sentence(c_Text, {"X", "a_ID"}), "Procedura X nemá parametr a_ID.");
}

TEST(ContractTexts, SpeakTheLanguageOfTheHost) {
    FakeHost host;
    const TScopedHost installed(host);
    host.translations[{"KEY", AnsiString(c_Text.BuiltIn)}] = "Procedure %s has no parameter %s.";
    EXPECT_EQ(Sentence(c_Text, {"X", "a_ID"}), "Procedure X has no parameter a_ID.");
}

TEST(ContractTexts, PutAThingThatLooksLikeAPlaceInAsItIs) {
    EXPECT_EQ(Sentence(c_Text, {"%s%d", "100 %"}), "Procedura %s%d nemá parametr 100 %.");
}

TEST(ContractTexts, SurviveATranslationWithFewerPlaces) {
    FakeHost host;
    const TScopedHost installed(host);
    host.translations[{"KEY", AnsiString(c_Text.BuiltIn)}] = "No such parameter, 100 %.";
    EXPECT_EQ(Sentence(c_Text, {"X", "a_ID"}), "No such parameter, 100 %.");
}

} // namespace
