#include "refhost/ErrorDisplay.h"

#include "host/Exceptions.h"
#include "refhost/Languages.h"
#include "refhost/database/StopSignal.h"

#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>

namespace refhost {

namespace {

template <typename Error>
ErrorReport describe(const Error& error) {
    return describeError(std::make_exception_ptr(error), Languages("cs"));
}

TEST(ErrorDisplay, PutsTheSentenceOfTheDatabaseInFrontAndTheRestIntoTheDetails) {
    const ErrorReport report = describe(EDatabaseError("Doklad je uzavřený.", "ML003", "SQLite: constraint 19"));

    EXPECT_EQ(report.sentence, "Doklad je uzavřený.");
    EXPECT_EQ(report.details, "Kód: ML003\nSQLite: constraint 19");
}

TEST(ErrorDisplay, NamesTheLineThatARefusalIsAbout) {
    const EDatabaseError refusal =
        EDatabaseError("Sklad „Brno %1“ neexistuje. Vyberte sklad ze seznamu skladů.", "ML044", "row 3").AboutRow(2);

    EXPECT_EQ(describe(refusal).sentence, "Řádek 3: Sklad „Brno %1“ neexistuje. Vyberte sklad ze seznamu skladů.");
    EXPECT_EQ(describe(refusal).details, "Kód: ML044\nrow 3");
}

TEST(ErrorDisplay, HasNoDetailsWhereThereIsNothingToAdd) {
    EXPECT_EQ(describe(EDatabaseError("Server neodpovídá.")).details, "");
    EXPECT_EQ(describe(EHostError("Seznam tu není.")).details, "");
    EXPECT_EQ(describe(EHostError("Seznam tu není.")).sentence, "Seznam tu není.");
}

TEST(ErrorDisplay, TellsWhoAsksThatHeHasStoppedTheWork) {
    const ErrorReport report = describeError(std::make_exception_ptr(EStopped("SQLite 9")), Languages("en"));

    EXPECT_EQ(report.sentence, "The work was stopped.");
    EXPECT_EQ(report.details, "");
}

TEST(ErrorDisplay, HidesTheWordsOfAnErrorThatWasNotMeantForPeople) {
    const ErrorReport report = describe(std::out_of_range("vector::_M_range_check"));

    EXPECT_EQ(report.sentence, "Nastala neočekávaná chyba. Program běží dál, poslední krok se neprovedl.");
    EXPECT_EQ(report.details, "Druh: vector::_M_range_check");
}

TEST(ErrorDisplay, KnowsWhatToSayOfAThingThatIsNoException) {
    EXPECT_EQ(describe(7).sentence, "Nastala neočekávaná chyba. Program běží dál, poslední krok se neprovedl.");
}

TEST(ErrorDisplay, WritesSentenceAndDetailsToAStream) {
    std::ostringstream stream;
    StreamErrorDisplay(stream).show({.sentence = "Doklad je uzavřený.", .details = "Kód: ML003"});
    StreamErrorDisplay(stream).show({.sentence = "Konec.", .details = {}});

    EXPECT_EQ(stream.str(), "Doklad je uzavřený.\nKód: ML003\nKonec.\n");
}

} // namespace

} // namespace refhost
