#include "editors/EditTypes.h"
#include "host/widgets/Guard.h"
#include "tests/editors/DodObjEditorFixture.h"
#include "tests/editors/DodakEditorFixture.h"
#include "tests/editors/UnsavedWorkFixture.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* c_Question = "MELVARKEDITORDodakObnovData";
constexpr const char* c_Unreadable =
    "16: Bylo zjištěno, že poslední úpravy nebyly uloženy, k editace se však nelze vrátit, protože soubor má špatný "
    "formát";

/// Work that a clerk did not save: three lines, so that no fill of the scripts looks like it.
std::vector<LineCells> unsavedLines() {
    return {{{"SKLADPOL", "Máslo"}, {"MNOZSTVI", "1,5"}, {"DPH", "12 %"}},
            {{"SKLADPOL", "Sýr"}, {"MNOZSTVI", "2"}, {"CENABSESLEVOU", "30"}},
            {{"SKLADPOL", "Tvaroh"}, {"TRVANLIVOST", "1.3.2027"}}};
}

class RestoringANote : public UnsavedWorkFixture {
protected:
    RestoringANote() { scriptDodakEditor(host_.connection); }

    std::unique_ptr<TDodakEditBox> open(const AnsiString& editType = "SABLONA") {
        return std::make_unique<TDodakEditBox>(qApp, &manager_, editType, 7, 40);
    }
    void leaveWork(int documentId = 7, const AnsiString& editType = "SABLONA") {
        leave(fileOf("DODAK", editType), fileText(documentId, dodakKeys(), unsavedLines()));
    }
    static AnsiString names(const TEditBox& editor) {
        AnsiString all;
        for (int gridRow = 1; gridRow <= editor.DataGrid().GetRowCount(); ++gridRow) {
            all += (gridRow == 1 ? "" : ", ") + stored(editor, gridRow, "SKLADPOL");
        }
        return all;
    }
    static constexpr const char* c_Unsaved = "Máslo, Sýr, Tvaroh";
    static constexpr const char* c_Filled = "Mléko, Žitný chléb";

    const std::filesystem::path file_ = fileOf("DODAK", "SABLONA");
};

TEST_F(RestoringANote, AsksTheDatabaseAndNobodyElseAndFillsTheGrid) {
    leaveWork();
    const auto editor = open();
    EXPECT_THAT(host_.connection.calls(), Contains("MELVARKEDITORDodakObnovData(a_DODKID=7)"));
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakGetPolozky"), IsEmpty());
    EXPECT_THAT(manager_.boxes(), IsEmpty());
    EXPECT_EQ(names(*editor), c_Unsaved);
    EXPECT_EQ(row(*editor, 2, {"SKLADPOL", "MNOZSTVI", "CENABSESLEVOU"}), "Sýr | 2 | 30");
    EXPECT_EQ(row(*editor, 3, {"SKLADPOL", "TRVANLIVOST"}), "Tvaroh | 1.3.2027");
    for (int gridRow = 1; gridRow <= 3; ++gridRow) {
        for (const AnsiString& key : dodakKeys()) {
            EXPECT_FALSE(isModified(*editor, gridRow, key)) << key;
        }
    }
    showAnd(*editor, [&] { EXPECT_EQ(openAt(*editor), "MNOZSTVI in row 1"); });
    EXPECT_THAT(manager_.messages(), IsEmpty()) << "it is this document's work";
}

TEST_F(RestoringANote, ComesBeforeEachSourcesDialog) {
    for (const std::string_view source : c_DodakEditType) {
        leaveWork(7, AnsiString(source));
        const auto editor = open(AnsiString(source));
        EXPECT_EQ(names(*editor), c_Unsaved) << source;
    }
}

TEST_F(RestoringANote, SavesIntoTheDocumentOfTheWorkAndSaysSoOnce) {
    leaveWork(9);
    const auto editor = open();
    EXPECT_THAT(host_.connection.calls(), Contains("MELVARKEDITORDodakObnovData(a_DODKID=9)"));
    EXPECT_EQ(showAnd(*editor,
                      [&] {
                          ASSERT_TRUE(QTest::qWaitFor([&] { return !manager_.messages().empty(); }));
                          QTest::keyClick(editor->ActiveEditor(), Qt::Key_Return, Qt::ControlModifier);
                      }),
              c_ResultOk);
    EXPECT_THAT(manager_.messages(),
                ElementsAre("O#: Obnovená rozepsaná práce patří k jinému dokladu, než který jste otevřeli. Uloží se do "
                            "onoho dokladu."));
    EXPECT_THAT(host_.connection.calls(),
                Contains("MELVARKEDITORDodakTempUloz(a_DODKID=9, a_DODKID_ZDROJ=null, a_DDOBID_ZDROJ=null)"));
}

TEST_F(RestoringANote, IsWrittenAgainForItsOwnDocument) {
    leaveWork(9);
    const auto editor = open();
    editor->AutoSave(nullptr);
    EXPECT_EQ(content()[file_.filename()], fileText(9, dodakKeys(), unsavedLines()));
}

TEST_F(RestoringANote, FindsItsColumnsByTheirKeysInWhicheverOrder) {
    std::vector<AnsiString> keys = dodakKeys();
    std::ranges::reverse(keys);
    leave(file_, fileText(7, keys, unsavedLines()));
    const auto editor = open();
    EXPECT_EQ(row(*editor, 2, {"SKLADPOL", "MNOZSTVI", "CENABSESLEVOU"}), "Sýr | 2 | 30");
}

TEST_F(RestoringANote, KeepsTheLayoutInForce) {
    host_.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
        .returns({resultTable({"ID", "DATA"}, {{"5", "<settings><columns><column><name>TRVANLIVOST</name></column>"
                                                     "<column><name>SKLADPOL</name></column></columns></settings>"}})});
    leaveWork();
    const auto editor = open();
    EXPECT_EQ(editor->GetVisibleColumn(1).Name, "TRVANLIVOST");
    EXPECT_EQ(editor->StringGrid->Cells(1, 3), "1.3.2027");
    EXPECT_EQ(editor->StringGrid->Cells(2, 3), "Tvaroh");
}

TEST_F(RestoringANote, WithoutRowsGivesOneEmptyRow) {
    leave(file_, fileText(7, dodakKeys(), {}));
    const auto editor = open();
    EXPECT_EQ(editor->DataGrid().GetRowCount(), 1);
    EXPECT_EQ(names(*editor), "");
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakGetPolozky"), IsEmpty());
}

TEST_F(RestoringANote, DeclinedWorkIsGoneForGood) {
    host_.connection.procedure(c_Question).setsOutputs({{"a_OBNOVDATA", false}});
    leaveWork(9);
    leave(file_.string() + ".kept", fileText(9, dodakKeys(), {}));
    const auto editor = open();
    EXPECT_EQ(names(*editor), c_Filled);
    EXPECT_EQ(listing(), "");
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakGetPolozky"), ElementsAre(testing::HasSubstr("a_DODKID=7")))
        << "the opened document";
    showAnd(*editor, [] {});
    EXPECT_THAT(manager_.boxes(), IsEmpty());
    EXPECT_THAT(manager_.messages(), IsEmpty());
}

TEST_F(RestoringANote, ASourceWithFewerLinesLeavesNothingOfDeclinedWork) {
    host_.connection.procedure(c_Question).setsOutputs({{"a_OBNOVDATA", false}});
    host_.connection.procedure("MELVARKEDITORDodakGetPolozkyByDodak").returns({dodakLines({})});
    leaveWork();
    const auto editor = open();
    EXPECT_EQ(editor->DataGrid().GetRowCount(), 1);
    for (const AnsiString& key : dodakKeys()) {
        EXPECT_EQ(stored(*editor, 1, key), "") << key;
    }
}

TEST_F(RestoringANote, AnUnreadableFileIsToldOnceAndGone) {
    leave(file_, "7\n1\nSKLADPOL\n");
    auto editor = open();
    EXPECT_EQ(names(*editor), c_Filled);
    EXPECT_THAT(manager_.boxes(), ElementsAre(c_Unreadable));
    EXPECT_EQ(listing(), "") << "before the editor is closed";
    editor.reset();
    EXPECT_THAT(host_.connection.callsOf(c_Question), IsEmpty());
    open();
    EXPECT_THAT(manager_.boxes(), SizeIs(1));
}

TEST_F(RestoringANote, AFileOfOtherColumnsIsUnreadable) {
    std::vector<AnsiString> renamed = dodakKeys();
    renamed.back() = "BALENI";
    std::vector<AnsiString> more = dodakKeys();
    more.emplace_back("BALENI");
    std::vector<AnsiString> fewer = dodakKeys();
    fewer.pop_back();
    std::size_t told = 0;
    for (const std::vector<AnsiString>& keys : {renamed, more, fewer, dodObjKeys()}) {
        leave(file_, fileText(7, keys, unsavedLines()));
        const auto editor = open();
        EXPECT_EQ(names(*editor), c_Filled);
        EXPECT_EQ(listing(), "");
        ASSERT_THAT(manager_.boxes(), SizeIs(++told));
        EXPECT_EQ(manager_.boxes().back(), c_Unreadable);
    }
}

TEST_F(RestoringANote, AFileThatIsWrongInItsLastLineChangesNothing) {
    const auto editor = open();
    showAnd(*editor, [&] {
        type(*editor, "77");
        AnsiString text = fileText(9, dodakKeys(), unsavedLines());
        text.insert(text.size() - 1, "\r");
        leave(file_, text);
        int id = 5;
        EXPECT_FALSE(editor->LoadDataFromTempFile(id));
        EXPECT_EQ(id, 5);
        EXPECT_EQ(names(*editor), c_Filled);
        EXPECT_EQ(stored(*editor, 1, "MNOZSTVI"), "77");
        EXPECT_TRUE(isModified(*editor, 1, "MNOZSTVI"));
        EXPECT_EQ(row(*editor, 1, {"SKLADPOL", "MNOZSTVI"}), "Mléko | 77");
        EXPECT_EQ(editor->StringGrid->RowCount(), 3);
    });
}

TEST_F(RestoringANote, AQuestionWithoutAnAnswerKeepsTheWorkForTheNextTime) {
    leaveWork();
    host_.connection.procedure(c_Question).breaksAtCall(1, "Spojení je přerušeno.").failsCall(2);
    EXPECT_THROW(open(), EDatabaseError);
    EXPECT_EQ(listing(), file_.filename().string() + ".kept");
    const DirectoryContent left = content();
    {
        const auto editor = open();
        EXPECT_EQ(names(*editor), c_Filled) << "a failure without an error: the document is opened anew";
        EXPECT_EQ(listing(), file_.filename().string() + ".kept");
    }
    putBack(left);
    EXPECT_EQ(names(*open()), c_Unsaved);
}

TEST_F(RestoringANote, AnEditorThatIsNotOpenedLeavesTheFile) {
    leaveWork();
    host_.connection.procedure("MELVARKEDITORDodakCheckMaster").refusesCall(1, "Doklad je uzavřený.");
    EXPECT_THROW(open(), EDatabaseError);
    EXPECT_EQ(listing(), file_.filename());
    EXPECT_EQ(names(*open()), c_Unsaved);
}

TEST_F(RestoringANote, ASecondCrashRightAfterARestoreLosesNothing) {
    leaveWork(9);
    for (int crash = 1; crash <= 3; ++crash) {
        auto editor = open();
        DirectoryContent atCrash;
        showAnd(*editor, [&] { atCrash = content(); });
        editor.reset();
        putBack(atCrash);
        EXPECT_EQ(listing(), file_.filename().string() + ".kept") << "crash " << crash;
    }
    EXPECT_EQ(names(*open()), c_Unsaved);
}

TEST_F(RestoringANote, ACrashRightAfterALayoutChangeGivesTheWorkOfTheLastTick) {
    auto editor = open();
    DirectoryContent atCrash;
    showAnd(*editor, [&] {
        type(*editor, "77");
        editor->AutoSave(nullptr);
        editor->ApplyColumnsSettingsToGrid();
        atCrash = content();
    });
    editor.reset();
    EXPECT_EQ(listing(), "");
    putBack(atCrash);
    const auto next = open();
    EXPECT_EQ(stored(*next, 1, "MNOZSTVI"), "77");
    EXPECT_EQ(names(*next), c_Filled);
}

TEST_F(RestoringANote, OfAnotherDatabaseOrUserIsNotOffered) {
    leaveWork();
    host_.databaseDigest = "fedcba";
    EXPECT_EQ(names(*open()), c_Filled);
    host_.databaseDigest = RecordingHost().databaseDigest;
    host_.connection.procedure("MELVARKEDITORDodakInit")
        .returns({resultTable({"UZIVATEL", "DPHBLIC"}, {{"svoboda", "0"}}), resultTable({"NAZEV"}, {}),
                  resultTable({"NAZEV"}, {})});
    EXPECT_EQ(names(*open()), c_Filled);
    EXPECT_EQ(listing(), file_.filename());
    EXPECT_THAT(host_.connection.callsOf(c_Question), IsEmpty());
}

class RestoringAnOrder : public UnsavedWorkFixture {
protected:
    RestoringAnOrder() { scriptDodObjEditor(host_.connection); }

    void leaveWork(bool isTemplate, std::string_view source, int documentId) {
        leave(fileOf(isTemplate ? "DODOBJVZOR" : "DODOBJ", AnsiString(source)),
              fileText(documentId, dodObjKeys(),
                       {{{"SKLADPOL", "Sůl"}, {"MNOZSTVIHL", "3"}, {"SKPLIDHL", "301"}, {"POPIS", "jemná"}},
                        {{"SKLADPOL", "Ocet"}, {"KOMENTAR", "do 12:00"}}}));
    }
};

TEST_F(RestoringAnOrder, ComesBeforeEachSourcesDialogAndNamesNoSource) {
    for (const bool isTemplate : {false, true}) {
        for (const std::string_view source : c_DodObjEditType) {
            SCOPED_TRACE(source);
            leaveWork(isTemplate, source, 12);
            TDodObjEditBox editor(qApp, &manager_, isTemplate, AnsiString(source), 12, 3, 0, "Praha", "", {});
            EXPECT_THAT(host_.connection.takeCalls(), Contains("MELVARKEDITORDodObjObnovData(a_DDOBID=12)"));
            EXPECT_EQ(row(editor, 1, {"SKLADPOL", "MNOZSTVIHL", "POPIS"}), "Sůl | 3 | jemná");
            EXPECT_EQ(row(editor, 2, {"SKLADPOL", "KOMENTAR"}), "Ocet | do 12:00");
            EXPECT_TRUE(editor.SaveData());
            const std::vector<AnsiString> calls = host_.connection.takeCalls();
            EXPECT_THAT(calls, SizeIs(4)) << "emptied, two rows, closed";
            EXPECT_EQ(calls.back(), "MELVARKEDITORDodObjTempUloz(a_DDOBID=12, a_DDOBID_ZDROJ=null, "
                                    "a_DDOBIDVZOR_ZDROJ=null, a_DODKID_ZDROJ=null)");
        }
    }
}

TEST_F(RestoringAnOrder, TellsOfAnotherDocumentAndSavesIntoIt) {
    leaveWork(false, "SABLONA", 13);
    TDodObjEditBox editor(qApp, &manager_, false, "SABLONA", 12, 3, 5, "Praha", "Lípa", {});
    EXPECT_THAT(host_.connection.calls(), Contains("MELVARKEDITORDodObjObnovData(a_DDOBID=13)"));
    showAnd(editor, [&] { ASSERT_TRUE(QTest::qWaitFor([&] { return !manager_.messages().empty(); })); });
    EXPECT_THAT(manager_.messages(), ElementsAre(StartsWith("O#: Obnovená rozepsaná práce patří k jinému dokladu")));
    EXPECT_TRUE(editor.SaveData());
    EXPECT_THAT(host_.connection.calls().back(), StartsWith("MELVARKEDITORDodObjTempUloz(a_DDOBID=13, "));
}

TEST_F(RestoringAnOrder, DeclinedWorkIsGoneAndTheSourceFills) {
    host_.connection.procedure("MELVARKEDITORDodObjObnovData").setsOutputs({{"a_OBNOVDATA", false}});
    leaveWork(false, "SABLONA", 12);
    const TDodObjEditBox editor(qApp, &manager_, false, "SABLONA", 12, 3, 5, "Praha", "Lípa", {});
    EXPECT_EQ(stored(editor, 1, "SKLADPOL"), "Mouka");
    EXPECT_EQ(listing(), "");
}

TEST_F(RestoringAnOrder, AnUnreadableFileIsToldOnceAndGoneAndTheSourceFills) {
    std::size_t told = 0;
    for (const bool isTemplate : {false, true}) {
        leave(fileOf(isTemplate ? "DODOBJVZOR" : "DODOBJ", "SABLONA"), fileText(12, dodakKeys(), {}));
        for (int opening = 1; opening <= 2; ++opening) {
            const TDodObjEditBox editor(qApp, &manager_, isTemplate, "SABLONA", 12, 3, 5, "Praha", "Lípa", {});
            EXPECT_EQ(stored(editor, 1, "SKLADPOL"), "Mouka");
            EXPECT_EQ(listing(), "");
        }
        ASSERT_THAT(manager_.boxes(), SizeIs(++told));
        EXPECT_EQ(manager_.boxes().back(), c_Unreadable);
    }
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodObjObnovData"), IsEmpty());
}

TEST_F(RestoringAnOrder, AQuestionWithoutAnAnswerKeepsTheWorkForTheNextTime) {
    for (const bool isTemplate : {false, true}) {
        SCOPED_TRACE(isTemplate);
        const AnsiString copy = fileOf(isTemplate ? "DODOBJVZOR" : "DODOBJ", "SABLONA").filename().string() + ".kept";
        const auto open = [&] {
            return std::make_unique<TDodObjEditBox>(qApp, &manager_, isTemplate, "SABLONA", 12, 3, 5, "Praha", "Lípa",
                                                    TDateTime());
        };
        leaveWork(isTemplate, "SABLONA", 12);
        const int asked = isTemplate ? 3 : 0;
        host_.connection.procedure("MELVARKEDITORDodObjObnovData")
            .breaksAtCall(asked + 1, "Spojení je přerušeno.")
            .failsCall(asked + 2);
        EXPECT_THROW(open(), EDatabaseError);
        EXPECT_EQ(listing(), copy);
        const DirectoryContent left = content();
        {
            const auto editor = open();
            EXPECT_EQ(stored(*editor, 1, "SKLADPOL"), "Mouka") << "a failure without an error";
            EXPECT_EQ(listing(), copy);
        }
        putBack(left);
        EXPECT_EQ(stored(*open(), 1, "SKLADPOL"), "Sůl");
    }
}

TEST_F(RestoringAnOrder, WorkThatAnotherEditorHoldsIsNeitherTakenNorTouched) {
    for (const bool isTemplate : {false, true}) {
        SCOPED_TRACE(isTemplate);
        const std::size_t told = manager_.messages().size();
        TDodObjEditBox first(qApp, &manager_, isTemplate, "SABLONA", 12, 3, 5, "Praha", "Lípa", {});
        first.AutoSave(nullptr);
        const DirectoryContent before = content();
        host_.connection.takeCalls();
        TDodObjEditBox second(qApp, &manager_, isTemplate, "SABLONA", 12, 3, 5, "Praha", "Lípa", {});
        EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodObjObnovData"), IsEmpty());
        EXPECT_EQ(stored(second, 1, "SKLADPOL"), "Mouka");
        showAnd(second, [&] {
            ASSERT_TRUE(QTest::qWaitFor([&] { return manager_.messages().size() > told; }));
            second.AutoSave(nullptr);
            EXPECT_EQ(content(), before);
        });
        ASSERT_THAT(manager_.messages(), SizeIs(told + 1));
        EXPECT_THAT(manager_.messages().back(),
                    StartsWith("O#: Rozepsanou práci z tohoto zdroje průběžně ukládá jiné"));
    }
}

} // namespace
