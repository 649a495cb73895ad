#include "host/Exceptions.h"
#include "tests/editwin/TestEditBox.h"

#include <QTimer>

#include <gmock/gmock.h>

using testing::ElementsAre;

class Autosave : public EditBoxTest {
protected:
    QTimer& timer() { return *form->findChild<QTimer*>(QStringLiteral("AutosaveTimer")); }

    /// One tick, without waiting a minute for it.
    void tick() {
        timer().setInterval(0);
        settle();
        timer().stop();
    }
};

TEST_F(Autosave, TheTimerWaitsForTheFirstLayingOutOfTheGrid) {
    make();
    EXPECT_FALSE(timer().isActive());
    EXPECT_EQ(timer().interval(), 60000);
    form->ApplyColumnsSettingsToGrid();
    EXPECT_TRUE(timer().isActive());
}

TEST_F(Autosave, ATickRunsTheHookOfTheDocumentEditor) {
    open();
    int writes = 0;
    form->SetOnSaveDataToTempFile([&] { ++writes; });
    tick();
    EXPECT_GE(writes, 1);
}

TEST_F(Autosave, ATickWithoutAHookDoesNothing) {
    open();
    tick();
    EXPECT_TRUE(host.errors().empty());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(Autosave, AnErrorOfATickIsShownAndTheEditingGoesOn) {
    open();
    int writes = 0;
    form->SetOnSaveDataToTempFile([&] {
        if (++writes == 1) {
            throw EInOutError("disk je plný");
        }
    });
    tick();
    EXPECT_THAT(host.errors(), ElementsAre("disk je plný"));
    EXPECT_EQ(openCellText(), "1,1");
}
