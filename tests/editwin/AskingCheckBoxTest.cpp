#include "editwin/AskingCheckBox.h"

#include "host/Exceptions.h"
#include "tests/support/RecordingHost.h"

#include <QTest>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class AskingCheckBox : public testing::Test {
protected:
    AskingCheckBox() {
        box.setChecked(true);
        box.SetMayChange([this] {
            seen.push_back(box.isChecked());
            return answer;
        });
    }

    melvark::AskingCheckBox box;
    std::vector<bool> seen; ///< The state at each question.
    bool answer = true;
};

} // namespace

TEST_F(AskingCheckBox, AClickAndTheSpaceBarAskWhileTheStateIsStillTheOldOne) {
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(5, box.height() / 2));
    EXPECT_THAT(seen, ElementsAre(true));
    EXPECT_FALSE(box.isChecked());
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_THAT(seen, ElementsAre(true, false));
    EXPECT_TRUE(box.isChecked());
}

TEST_F(AskingCheckBox, ANoLeavesTheStateEachTime) {
    answer = false;
    for (int attempt = 0; attempt < 2; ++attempt) {
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(5, box.height() / 2));
        EXPECT_TRUE(box.isChecked());
    }
    EXPECT_THAT(seen, ElementsAre(true, true));
}

TEST_F(AskingCheckBox, AnErrorOfTheQuestionIsShownAndCountsAsNo) {
    RecordingHost host;
    const TScopedHost installed(host);
    box.SetMayChange([]() -> bool { throw EHostError("spojení ztraceno"); });
    box.click();
    EXPECT_THAT(host.errors(), ElementsAre("spojení ztraceno"));
    EXPECT_TRUE(box.isChecked());
}

TEST_F(AskingCheckBox, TheProgramSetsItUnasked) {
    box.setChecked(false);
    EXPECT_FALSE(box.isChecked());
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(AskingCheckBox, WithoutAQuestionItChangesAtOnce) {
    box.SetMayChange(nullptr);
    box.click();
    EXPECT_FALSE(box.isChecked());
}
