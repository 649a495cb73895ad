#include "host/widgets/Guard.h"
#include "tests/editors/DodObjEditorFixture.h"
#include "tests/editors/DodakEditorFixture.h"
#include "tests/editors/UnsavedWorkFixture.h"

#include <QTimer>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

void tick(TEditBox& editor) {
    melvark::Guarded([&] { editor.AutoSave(nullptr); });
}

class SavingANoteToTempFile : public UnsavedWorkFixture {
protected:
    SavingANoteToTempFile() { scriptDodakEditor(host_.connection); }

    std::unique_ptr<TDodakEditBox> open(const AnsiString& editType = "SABLONA") {
        return std::make_unique<TDodakEditBox>(qApp, &manager_, editType, 7, 40);
    }
    AnsiString written() const { return content()[file_.filename()]; }

    const std::filesystem::path file_ = fileOf("DODAK", "SABLONA");
};

/// The lines of the template, whose order lines are left out.
std::vector<LineCells> templateLines() {
    std::vector<LineCells> lines = sampleLines();
    for (LineCells& line : lines) {
        line.erase("DOBSID");
    }
    return lines;
}

TEST_F(SavingANoteToTempFile, WritesDocumentRowsKeysAndCells) {
    const auto editor = open();
    tick(*editor);
    EXPECT_EQ(written(), fileText(7, dodakKeys(), templateLines()));
}

TEST_F(SavingANoteToTempFile, WritesWhatTheStoreHasAndNotWhatIsBeingTyped) {
    const auto editor = open();
    showAnd(*editor, [&] {
        type(*editor, "2,5");
        type(*editor, "");
        type(*editor, "");
        ASSERT_EQ(openAt(*editor), "MNOZSTVI in row 2");
        type(*editor, "7");
        QTest::keyClicks(editor->ActiveEditor(), QStringLiteral("99"));
        ASSERT_EQ(openAt(*editor), "JEDNCENABSESLEVOU in row 2");
        tick(*editor);
        auto lines = templateLines();
        lines[0]["MNOZSTVI"] = "2,5";
        lines[1]["MNOZSTVI"] = "7";
        EXPECT_EQ(written(), fileText(7, dodakKeys(), lines));
        EXPECT_EQ(openAt(*editor), "JEDNCENABSESLEVOU in row 2") << "a tick disturbs nobody";
    });
}

TEST_F(SavingANoteToTempFile, IsTheSameForMovedHiddenAndRepeatedColumns) {
    host_.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
        .returns({resultTable(
            {"ID", "DATA"},
            {{"5", "<settings><columns><column><name>TRVANLIVOST</name></column><column><name>MNOZSTVI</name></column>"
                   "<column><name>MNOZSTVI</name></column><column><name>SKLADPOL</name><visible>0</visible></column>"
                   "</columns></settings>"}})});
    const auto editor = open();
    tick(*editor);
    EXPECT_EQ(written(), fileText(7, dodakKeys(), templateLines()));
}

TEST_F(SavingANoteToTempFile, ACellOfTwoLinesShiftsNoOther) {
    const auto editor = open();
    editor->DataGrid().SetCells(4, 1, "Žitný\nchléb");
    tick(*editor);
    auto lines = templateLines();
    lines[1]["SKLADPOL"] = R"(\Žitný\nchléb)";
    EXPECT_EQ(written(), fileText(7, dodakKeys(), lines));
}

TEST_F(SavingANoteToTempFile, TheClockTicksByItself) {
    const auto editor = open();
    showAnd(*editor, [&] {
        EXPECT_EQ(listing(), "");
        auto* const clock = editor->findChild<QTimer*>(QStringLiteral("AutosaveTimer"));
        ASSERT_TRUE(clock->isActive());
        clock->setInterval(0);
        ASSERT_TRUE(QTest::qWaitFor([&] { return listing() == file_.filename(); }));
    });
}

TEST_F(SavingANoteToTempFile, ClosingRemovesTheFileWhicheverWay) {
    for (const bool isSaved : {true, false}) {
        auto editor = open();
        const int result = showAnd(*editor, [&] {
            tick(*editor);
            if (isSaved) {
                QTest::keyClick(editor->ActiveEditor(), Qt::Key_Return, Qt::ControlModifier);
            }
        });
        EXPECT_EQ(result, isSaved ? c_ResultOk : c_ResultCancel);
        EXPECT_EQ(listing(), file_.filename()) << "until the editor is freed";
        editor.reset();
        EXPECT_THAT(content(), IsEmpty());
    }
}

TEST_F(SavingANoteToTempFile, ARefusedSaveLeavesTheFile) {
    host_.connection.procedure("MELVARKEDITORDodakTempUloz").refusesCall(1, "Doklad je uzavřený.");
    expectedErrors_ = {"Doklad je uzavřený."};
    const auto editor = open();
    showAnd(*editor, [&] {
        tick(*editor);
        QTest::keyClick(editor->ActiveEditor(), Qt::Key_Return, Qt::ControlModifier);
        EXPECT_TRUE(editor->isVisible());
        EXPECT_EQ(listing(), file_.filename());
    });
}

TEST_F(SavingANoteToTempFile, WhatIsInTheWayIsToldOnceUntilAWriteHasSucceeded) {
    const auto editor = open();
    std::filesystem::create_directory(file_);
    tick(*editor);
    tick(*editor);
    EXPECT_THAT(host_.errors(), SizeIs(1));
    EXPECT_THAT(host_.errors().front(), HasSubstr(file_.string()));
    std::filesystem::remove(file_);
    tick(*editor);
    EXPECT_EQ(written(), fileText(7, dodakKeys(), templateLines()));
    std::filesystem::remove(file_);
    std::filesystem::create_directory(file_);
    tick(*editor);
    EXPECT_THAT(host_.errors(), SizeIs(2));
    expectedErrors_ = host_.errors();
}

TEST_F(SavingANoteToTempFile, ASecondEditorIsToldAndLeavesTheFileAlone) {
    const auto first = open();
    tick(*first);
    const DirectoryContent before = content();
    {
        const auto second = open();
        EXPECT_EQ(row(*second, 1, {}), "");
        showAnd(*second, [&] {
            ASSERT_TRUE(QTest::qWaitFor([&] { return !manager_.messages().empty(); }));
            tick(*second);
            second->ApplyColumnsSettingsToGrid();
            EXPECT_EQ(content(), before);
        });
    }
    EXPECT_THAT(manager_.messages(),
                ElementsAre("O#: Rozepsanou práci z tohoto zdroje průběžně ukládá jiné okno. Práce v tomto okně se "
                            "průběžně neukládá."));
    EXPECT_EQ(content(), before);
}

TEST_F(SavingANoteToTempFile, AnEditorOfAnotherSourceHasAFileOfItsOwn) {
    scriptDodObjEditor(host_.connection);
    const auto note = open();
    const TDodObjEditBox order(qApp, &manager_, false, "SABLONA", 7, 3, 5, "Praha", "Lípa", {});
    const TDodObjEditBox orderTemplate(qApp, &manager_, true, "SABLONA", 7, 3, 5, "Praha", "Lípa", {});
    EXPECT_THAT(manager_.messages(), IsEmpty());
    tick(*note);
    EXPECT_EQ(listing(), file_.filename());
}

TEST_F(SavingANoteToTempFile, TwoNotesOfOneSourceShareAFileAndTwoSourcesDoNot) {
    const auto first = open();
    tick(*first);
    const DirectoryContent before = content();
    {
        TDodakEditBox another(qApp, &manager_, "SABLONA", 9, 40);
        tick(another);
        EXPECT_EQ(content(), before) << "held by the first note's editor";
    }
    const std::filesystem::path fromOrder = fileOf("DODAK", "DODOBJ");
    leave(fromOrder, fileText(7, dodakKeys(), sampleLines())); // so that no source is asked for
    const auto second = open("DODOBJ");
    tick(*second);
    EXPECT_EQ(listing(), fromOrder.filename().string() + " " + file_.filename().string());
    EXPECT_EQ(written(), fileText(7, dodakKeys(), templateLines()));
}

class SavingAnOrderToTempFile : public UnsavedWorkFixture {
protected:
    SavingAnOrderToTempFile() { scriptDodObjEditor(host_.connection); }
};

TEST_F(SavingAnOrderToTempFile, WritesDocumentRowsKeysAndCells) {
    for (const bool isTemplate : {false, true}) {
        TDodObjEditBox editor(qApp, &manager_, isTemplate, "SABLONA", 12, 3, 5, "Praha", "Lípa", {});
        tick(editor);
        EXPECT_EQ(content()[fileOf(isTemplate ? "DODOBJVZOR" : "DODOBJ", "SABLONA").filename()],
                  fileText(12, dodObjKeys(), sampleOrderLines()));
    }
}

} // namespace
