#include "refhost/Refusals.h"

#include "host/Exceptions.h"
#include "refhost/Languages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace refhost {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::optional<std::string> inEnglish(const char* sentence, const char* code) {
    return translateRefusal(EDatabaseError(sentence, code), Languages("en"));
}

TEST(Refusals, ThingsAreTakenOutInTheirOrder) {
    const RefusalSentence sentence =
        takeThingsOut("Zapsáno je „OV7“, ale vybráno bylo „OV8“. Vyberte ze seznamu znovu.");
    EXPECT_EQ(sentence.pattern, "Zapsáno je „%1“, ale vybráno bylo „%2“. Vyberte ze seznamu znovu.");
    EXPECT_THAT(sentence.things, ElementsAre("OV7", "OV8"));
}

TEST(Refusals, ASentenceThatNamesNothingIsItsOwnPattern) {
    for (const char* text : {"Zdroj není zadán.", "", "Bez konce „OV7", "Bez začátku OV7“"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(takeThingsOut(text).pattern, text);
        EXPECT_THAT(takeThingsOut(text).things, IsEmpty());
    }
}

TEST(Refusals, TheTranslationNamesTheSameThings) {
    EXPECT_EQ(inEnglish("Dodací list „DL9“ je uzavřený. Otevřete jej, nebo vyberte jiný.", "ML011"),
              "Delivery note “DL9” is closed. Open it, or choose another one.");
    EXPECT_EQ(inEnglish("Zapsáno je „OV7“, ale vybráno bylo „OV8“. Vyberte ze seznamu znovu.", "ML022"),
              "“OV7” is typed, but “OV8” was chosen. Choose from the list again.");
}

TEST(Refusals, FormsOfOneCodeAreTranslatedApart) {
    EXPECT_EQ(inEnglish("Objednávka „OV7“ je uzavřená. Otevřete ji, nebo vyberte jinou.", "ML013"),
              "Order “OV7” is closed. Open it, or choose another one.");
    EXPECT_EQ(inEnglish("Vzor objednávky „V1“ je uzavřený. Otevřete jej, nebo vyberte jiný.", "ML013"),
              "Order template “V1” is closed. Open it, or choose another one.");
}

TEST(Refusals, AThingThatLooksLikeAPlaceStaysAsItIs) {
    EXPECT_EQ(inEnglish("Zapsáno je „%2“, ale vybráno bylo „%1 a 50 %“. Vyberte ze seznamu znovu.", "ML022"),
              "“%2” is typed, but “%1 a 50 %” was chosen. Choose from the list again.");
}

TEST(Refusals, ASentenceThatLacksAThingIsLeftToTheDatabase) {
    EXPECT_EQ(inEnglish("Dodací list je uzavřený.", "ML011"), std::nullopt);
}

TEST(Refusals, UnknownCodesAndTheBuiltInLanguageAreLeftToTheDatabase) {
    EXPECT_EQ(inEnglish("Cizí pravidlo „X“.", "ML999"), std::nullopt);
    EXPECT_EQ(inEnglish("Bez kódu.", ""), std::nullopt);
    EXPECT_EQ(translateRefusal(EDatabaseError("Dodací list „DL9“ je uzavřený.", "ML011"), Languages("cs")),
              std::nullopt);
}

} // namespace

} // namespace refhost
