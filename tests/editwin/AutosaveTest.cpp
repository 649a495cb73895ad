#include "editwin/model/KeptFile.h"
#include "host/Exceptions.h"
#include "host/widgets/Guard.h"
#include "tests/editwin/TestEditBox.h"

#include <QTest>
#include <QTimer>

#include <filesystem>
#include <gmock/gmock.h>
#include <ostream>
#include <utility>

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
    EXPECT_EQ(timer().timerType(), Qt::PreciseTimer);
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

TEST_F(Autosave, OnlyTheFirstErrorIsShownUntilASaveHasSucceeded) {
    open();
    bool isDiskFull = true;
    form->SetOnSaveDataToTempFile([&] {
        if (isDiskFull) {
            throw EInOutError("disk je plný");
        }
    });
    const auto tickOnce = [&] { melvark::Guarded([&] { form->AutoSave(&timer()); }); };
    tickOnce();
    tickOnce();
    EXPECT_THAT(host.errors(), ElementsAre("disk je plný"));
    isDiskFull = false;
    tickOnce();
    isDiskFull = true;
    tickOnce();
    tickOnce();
    EXPECT_THAT(host.errors(), ElementsAre("disk je plný", "disk je plný"));
}

TEST_F(Autosave, TheFileIsNamedByUserEditorAndSourceInADirectoryOfTheDatabase) {
    make();
    const std::filesystem::path file = form->TempFileName();
    EXPECT_EQ(file.filename(), "melvarkeditor_novak_ZKOUSKA_SABLONA.dat");
    const std::filesystem::path directory = file.parent_path();
    host.databaseDigest = "another";
    make();
    EXPECT_EQ(std::filesystem::path(form->TempFileName()).filename(), file.filename());
    EXPECT_NE(std::filesystem::path(form->TempFileName()).parent_path(), directory);
}

TEST_F(Autosave, TheFileStaysInItsDirectoryWhateverTheUserIsCalled) {
    make();
    const std::filesystem::path directory = std::filesystem::path(form->TempFileName()).parent_path();
    const std::pair<AnsiString, AnsiString> users[] = {
        {"../x", "..%2Fx"}, {"/etc/x", "%2Fetc%2Fx"}, {"..", ".."}, {"novak/../../x", "novak%2F..%2F..%2Fx"}};
    for (const auto& [user, part] : users) {
        const TEditBox editor(nullptr, &manager, 30, "ZKOUSKA", 2, "SABLONA", user, testColumns(log));
        const std::filesystem::path file = editor.TempFileName();
        EXPECT_EQ(file.parent_path(), directory) << user;
        EXPECT_EQ(file.filename(), "melvarkeditor_" + part + "_ZKOUSKA_SABLONA.dat");
    }
}

TEST_F(Autosave, LayingOutSetsTheFileAsideAndClosingRemovesIt) {
    open();
    const std::filesystem::path file = form->TempFileName();
    form->SetOnSaveDataToTempFile([&] { form->TempFile().Write([](std::ostream& out) { out << "lines"; }); });
    form->AutoSave(nullptr);
    EXPECT_TRUE(std::filesystem::exists(file));
    form->ApplyColumnsSettingsToGrid();
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_TRUE(form->TempFile().HasContent());
    form.reset();
    EXPECT_TRUE(std::filesystem::is_empty(file.parent_path()));
}

TEST_F(Autosave, WhatIsToBeToldWaitsForTheFirstShow) {
    make();
    form->TellWhenShown("Jiné okno");
    settle();
    EXPECT_THAT(manager.messages(), testing::IsEmpty());
    form->show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !manager.messages().empty(); }));
    form->hide();
    form->show();
    settle();
    EXPECT_THAT(manager.messages(), ElementsAre("O#: Jiné okno"));
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
