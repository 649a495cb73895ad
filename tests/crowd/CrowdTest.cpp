#include "tests/crowd/Crowd.h"

#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace {

using crowd::Diary;
using crowd::DiaryPen;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Key;
using testing::Pair;

// A short share of what tests/fifty-clerks does.
TEST(Crowd, OfFourClerksSavesWhatEachHasTypedAndIsToldNothingStrange) {
    const crowd::CrowdResult result =
        crowd::runCrowd({.Program = MANY_CLERKS, .Clerks = 4, .Seconds = 5, .DocumentsBefore = 1, .Seed = 3});
    EXPECT_THAT(result.Wrong, IsEmpty());
    EXPECT_GE(result.All.Saved.size(), 4U);
    EXPECT_THAT(result.All.Waits, IsSupersetOf({Key("cell"), Key("opening"), Key("saving")}));
    EXPECT_TRUE(result.All.Calls.contains("MELVARKEDITORDodakVypocetCen"));
    EXPECT_GT(result.Early.Hosts.Megabytes, 0);
    EXPECT_GT(result.Late.Server.ProcessorSeconds, result.Early.Server.ProcessorSeconds);
}

TEST(Crowd, UnderstandsWhatIsAboutDocumentsAndNotWhatIsAboutTheDatabase) {
    EXPECT_TRUE(crowd::isUnderstood("ML054"));
    for (const char* const code : {"ML910", "ML916", "ML041", ""}) {
        EXPECT_FALSE(crowd::isUnderstood(code)) << code;
    }
}

TEST(Diary, IsReadAsItWasWritten) {
    const TemporaryFolder folder("diary");
    DiaryPen pen(folder.path() / "diary");
    pen.called("select NAZEV from SKLAD_V", 1.5);
    pen.beginsToWait();
    pen.called("select NAZEV from SKLAD_V", 2.5);
    pen.waited("cell", 4);
    pen.told("ML021");
    pen.saved(17);
    pen.trouble("an editor was closed without a reason");
    Diary all;
    all.add(crowd::readDiary(folder.path() / "diary"));
    all.add(crowd::readDiary(folder.path() / "diary"));
    EXPECT_THAT(all.Calls, ElementsAre(Pair("select NAZEV from SKLAD_V", ElementsAre(1.5, 2.5, 1.5, 2.5))));
    EXPECT_THAT(all.Waits, ElementsAre(Pair("cell", ElementsAre(4, 4))));
    EXPECT_THAT(all.Served, ElementsAre(Pair("cell", ElementsAre(2.5, 2.5))));
    EXPECT_THAT(all.Told, ElementsAre(Pair("ML021", 2)));
    EXPECT_THAT(all.Saved, ElementsAre(17, 17));
    EXPECT_THAT(all.Troubles, testing::SizeIs(2));
}

TEST(Quantile, IsTheLeastValueThatTheShareDoesNotExceed) {
    EXPECT_EQ(crowd::quantile({3, 1, 2}, 0.5), 2);
    EXPECT_EQ(crowd::quantile({4, 1, 2, 3}, 0.95), 4);
    EXPECT_EQ(crowd::quantile({7}, 0.99), 7);
}

} // namespace
