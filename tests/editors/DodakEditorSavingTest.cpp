#include "host/Exceptions.h"
#include "tests/editors/DodakEditorFixture.h"

#include <QPushButton>

// The delivery note's editor from OK to the closing call.

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class DodakEditorSaving : public DodakEditorFixture {
protected:
    /// More lines than the grid shows at once.
    void scriptManyLines() {
        std::vector<LineCells> lines;
        for (int line = 1; line <= 60; ++line) {
            lines.push_back({{"SKLADPOL", "Položka " + std::to_string(line)}, {"MNOZSTVI", "1"}});
        }
        scriptDodakEditor(host_.connection, lines);
    }

    std::vector<AnsiString> names(const std::vector<AnsiString>& lines) {
        std::vector<AnsiString> found;
        for (const AnsiString& line : lines) {
            found.push_back(line.substr(0, line.find('(')));
        }
        return found;
    }
};

TEST_F(DodakEditorSaving, EmptiesStagesTakesOverAndClosesWithOk) {
    const auto editor = open();
    EXPECT_EQ(showAnd(*editor, [&] { type(*editor, "1,5", Qt::Key_Return, Qt::ControlModifier); }), c_ResultOk);
    EXPECT_FALSE(wasLeftOpen_);
    EXPECT_THAT(names(host_.connection.calls()),
                ElementsAre("MELVARKEDITORDodakVypocetCen", "MELVARKEDITORResetTemp", "MELVARKEDITORDodakInsertToTemp",
                            "MELVARKEDITORDodakInsertToTemp", "MELVARKEDITORDodakTempUloz",
                            "MELVARKEDITORNASTAVENIUlozNastaveniOkna"));
    EXPECT_THAT(host_.connection.calls()[2],
                AllOf(StartsWith("MELVARKEDITORDodakInsertToTemp(a_DOBSID=null, a_SKLADPOL=\"Mléko\", "
                                 "a_SKLAD=\"Praha\", a_MNOZSTVI=\"1.5\", a_DPH=\"12 %\", a_SLEVA=\"5\", "),
                      HasSubstr("a_CENABSL=\"190.00\""), HasSubstr("a_TRVANLIVOST=\"15.2.2027\")")));
    EXPECT_EQ(host_.connection.calls()[4],
              "MELVARKEDITORDodakTempUloz(a_DODKID=7, a_DODKID_ZDROJ=null, a_DDOBID_ZDROJ=null)");
}

TEST_F(DodakEditorSaving, TheOkButtonSavesToo) {
    const auto editor = open();
    const int result = showAnd(*editor, [&] { press(*editor, "OkBtn"); });
    EXPECT_EQ(result, c_ResultOk);
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakTempUloz"), SizeIs(1));
}

TEST_F(DodakEditorSaving, ARefusedLineKeepsTheEditorOpenWithEverythingTyped) {
    host_.connection.procedure("MELVARKEDITORDodakInsertToTemp").refusesCall(2, "Sklad Brno neexistuje.");
    expectedErrors_ = {"Sklad Brno neexistuje."};
    const auto editor = open();
    const int result = showAnd(*editor, [&] {
        type(*editor, "12", Qt::Key_Return, Qt::ControlModifier);
        EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakTempUloz"), IsEmpty());
        EXPECT_TRUE(editor->isVisible());
        EXPECT_EQ(row(*editor, 1, {"SKLADPOL", "MNOZSTVI"}), "Mléko | 12");
        // The next try empties the staged rows first, so that none is stored twice.
        host_.connection.takeCalls();
        press(*editor, "OkBtn");
    });
    EXPECT_EQ(result, c_ResultOk);
    EXPECT_EQ(names(host_.connection.calls()).front(), "MELVARKEDITORResetTemp");
}

TEST_F(DodakEditorSaving, ARefusedLineBecomesTheCurrentOneAndIsScrolledTo) {
    const std::function<void(TDodakEditBox&)> ways[] = {
        [](TDodakEditBox& editor) { type(editor, "", Qt::Key_Return, Qt::ControlModifier); },
        [](TDodakEditBox& editor) { press(editor, "OkBtn"); },
    };
    expectedErrors_ = {"Sklad Brno neexistuje.", "Sklad Brno neexistuje."};
    for (const auto& confirm : ways) {
        scriptManyLines();
        host_.connection.procedure("MELVARKEDITORDodakInsertToTemp").refusesCall(45, "Sklad Brno neexistuje.");
        const auto editor = open();
        showAnd(*editor, [&] {
            type(*editor, "");
            ASSERT_EQ(openAt(*editor), "JEDNCENABSESLEVOU in row 1");
            confirm(*editor);
            EXPECT_EQ(currentLine(*editor), "JEDNCENABSESLEVOU in row 45");
            EXPECT_THAT(host_.connection.calls(), SizeIs(46)) << "the rows are emptied once and 45 sent";
        });
        EXPECT_TRUE(wasLeftOpen_);
        host_.connection.dropProcedure("MELVARKEDITORDodakInsertToTemp");
    }
}

TEST_F(DodakEditorSaving, ALineThatTheClosingCallRefusesBecomesTheCurrentOne) {
    scriptManyLines();
    host_.connection.procedure("MELVARKEDITORDodakTempUloz").answersCall(1, [](const TProcedureCall&) -> TCallResult {
        throw EDatabaseError("Sazba DPH 22 % neplatí.").AboutRow(29);
    });
    expectedErrors_ = {"Sazba DPH 22 % neplatí."};
    const auto editor = open();
    showAnd(*editor, [&] {
        press(*editor, "OkBtn");
        EXPECT_EQ(currentLine(*editor), "MNOZSTVI in row 30");
    });
}

TEST_F(DodakEditorSaving, ARefusalOrFailureOfNoLineLeavesTheCursor) {
    scriptManyLines();
    host_.connection.procedure("MELVARKEDITORDodakTempUloz").refusesCall(1, "Dodací list 7 je uzavřen.");
    host_.connection.procedure("MELVARKEDITORDodakInsertToTemp").breaksAtCall(70, "Spojení se přerušilo.");
    expectedErrors_ = {"Dodací list 7 je uzavřen.", "Spojení se přerušilo."};
    const auto editor = open();
    showAnd(*editor, [&] {
        press(*editor, "OkBtn");
        EXPECT_EQ(currentLine(*editor), "MNOZSTVI in row 1");
        press(*editor, "OkBtn");
        EXPECT_EQ(currentLine(*editor), "MNOZSTVI in row 1");
    });
}

TEST_F(DodakEditorSaving, OneEmptyRowIsStagedAsNullsAndTakenOver) {
    scriptDodakEditor(host_.connection, {});
    const auto editor = open();
    EXPECT_EQ(showAnd(*editor, [&] { press(*editor, "OkBtn"); }), c_ResultOk);
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORResetTemp()",
                            "MELVARKEDITORDodakInsertToTemp(a_DOBSID=null, a_SKLADPOL=null, a_SKLAD=null, "
                            "a_MNOZSTVI=null, a_DPH=null, a_SLEVA=null, a_JEDNCENABSL=null, a_JEDNDPHASL=null, "
                            "a_JEDNDPHBSL=null, a_JEDNCENASSL=null, a_JEDNCENAB=null, a_JEDNDPHA=null, "
                            "a_JEDNDPHB=null, a_JEDNCENAS=null, a_CENABSL=null, a_DPHASL=null, a_DPHBSL=null, "
                            "a_CENASSL=null, a_CENAB=null, a_DPHA=null, a_DPHB=null, a_CENAS=null, "
                            "a_TRVANLIVOST=null)",
                            "MELVARKEDITORDodakTempUloz(a_DODKID=7, a_DODKID_ZDROJ=null, a_DDOBID_ZDROJ=null)",
                            StartsWith("MELVARKEDITORNASTAVENIUlozNastaveniOkna(")));
}

TEST_F(DodakEditorSaving, InAPointLocaleThePointGoesAllTheWay) {
    host_.formatSettings = TFormatSettings::English();
    scriptDodakEditor(host_.connection, {{{"SKLADPOL", "Mléko"},
                                          {"MNOZSTVI", "10"},
                                          {"SLEVA", "2.5"},
                                          {"JEDNCENABSESLEVOU", "19.5"},
                                          {"CENABSESLEVOU", "195.00"}}});
    const auto editor = open();
    EXPECT_EQ(showAnd(*editor,
                      [&] {
                          type(*editor, "1,5"); // the comma of a habit
                          EXPECT_EQ(row(*editor, 1, {"MNOZSTVI"}), "1.5");
                          type(*editor, "20.25", Qt::Key_Return, Qt::ControlModifier);
                      }),
              c_ResultOk);
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakVypocetCen"),
                ElementsAre(AllOf(HasSubstr("a_JEDNCENABSESLEVOU=19.5, "), HasSubstr("a_CENABSESLEVOU=195, "),
                                  HasSubstr("a_SLEVA=2.5, a_MNOZSTVI=1.5)")),
                            AllOf(HasSubstr("a_JEDNCENABSESLEVOU=20.25, "), HasSubstr("a_MNOZSTVI=1.5)"))));
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakInsertToTemp"),
                ElementsAre(AllOf(HasSubstr("a_MNOZSTVI=\"1.5\""), HasSubstr("a_SLEVA=\"2.5\""),
                                  HasSubstr("a_JEDNCENABSL=\"20.25\""), HasSubstr("a_CENABSL=\"195.00\""))));
}

} // namespace
