#include "editors/DocumentEditBox.h"

#include "host/Exceptions.h"
#include "tests/editors/DodObjEditorFixture.h"
#include "tests/editors/DodakEditorFixture.h"

#include <functional>

// What the editors of all kinds of document do alike, seen on each of them.

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

struct DeliveryNotes : DodakEditorFixture {
    static constexpr const char* c_Kind = "Dodak";
    static constexpr const char* c_FirstItem = "Mléko";
    static constexpr const char* c_Quantity = "MNOZSTVI";
    void scriptAnew() { scriptDodakEditor(host_.connection); }
};

struct Orders : DodObjEditorFixture {
    static constexpr const char* c_Kind = "DodObj";
    static constexpr const char* c_FirstItem = "Mouka";
    static constexpr const char* c_Quantity = "MNOZSTVIHL";
    void scriptAnew() { scriptDodObjEditor(host_.connection); }
};

struct OrderTemplates : Orders {
    OrderTemplates() { isTemplate_ = true; }
};

template <class Kind>
class DocumentEditBox : public Kind {
protected:
    /// The name of the kind's procedure.
    static AnsiString of(const char* what) { return AnsiString("MELVARKEDITOR") + Kind::c_Kind + what; }
    ProcedureScript& procedure(const char* what) { return this->host_.connection.procedure(of(what)); }
    std::vector<AnsiString> callsOf(const char* what) const { return this->host_.connection.callsOf(of(what)); }
};

struct KindName {
    template <class Kind>
    static std::string GetName(int) {
        return std::is_same_v<Kind, OrderTemplates> ? "OrderTemplates" : Kind::c_Kind;
    }
};

using Kinds = testing::Types<DeliveryNotes, Orders, OrderTemplates>;
TYPED_TEST_SUITE(DocumentEditBox, Kinds, KindName);

TYPED_TEST(DocumentEditBox, LeavesNoCellModifiedWhenItIsFilled) {
    const auto editor = this->open();
    ASSERT_GE(editor->DataGrid().GetRowCount(), 2);
    EXPECT_EQ(this->stored(*editor, 1, "SKLADPOL"), TypeParam::c_FirstItem);
    for (const RColumn& column : editor->DefaultColumns()) {
        for (int row = 1; row <= editor->DataGrid().GetRowCount(); ++row) {
            EXPECT_FALSE(this->isModified(*editor, row, column.Name)) << column.Name;
        }
    }
}

TYPED_TEST(DocumentEditBox, ARefusedMasterCheckIsTheDatabasesErrorAndNothingIsFilled) {
    this->procedure("CheckMaster").refusesCall(1, "Doklad 7 je uzavřen.");
    try {
        this->open();
        FAIL() << "no error";
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Message(), "Doklad 7 je uzavřen.");
    }
    EXPECT_THAT(this->callsOf("Get"), IsEmpty());
}

TYPED_TEST(DocumentEditBox, AMasterCheckThatAnswersNoIsAQuietCancel) {
    this->procedure("CheckMaster").failsCall(1);
    try {
        this->open();
        FAIL() << "no error";
    } catch (const EEditBoxCanceled& canceled) {
        EXPECT_EQ(canceled.Message(), "Canceled");
    }
    EXPECT_THAT(this->manager_.boxes(), IsEmpty());
    EXPECT_THAT(this->callsOf("Get"), IsEmpty());
}

TYPED_TEST(DocumentEditBox, ARefusedClosingCallKeepsTheEditorOpenWithEverythingTyped) {
    this->procedure("TempUloz").refusesCall(1, "Doklad 7 je uzavřen.");
    this->expectedErrors_ = {"Doklad 7 je uzavřen."};
    const auto editor = this->open();
    const int result = this->showAnd(*editor, [&] {
        this->type(*editor, "12", Qt::Key_Return, Qt::ControlModifier);
        EXPECT_TRUE(editor->isVisible());
        EXPECT_EQ(this->row(*editor, 1, {"SKLADPOL", TypeParam::c_Quantity}),
                  AnsiString(TypeParam::c_FirstItem) + " | 12");
        // The next try empties the staged rows first, so that none is stored twice.
        this->host_.connection.takeCalls();
        press(*editor, "OkBtn");
    });
    EXPECT_EQ(result, c_ResultOk);
    EXPECT_EQ(this->host_.connection.calls().front(), "MELVARKEDITORResetTemp()");
    EXPECT_THAT(this->callsOf("InsertToTemp"), SizeIs(editor->DataGrid().GetRowCount()));
}

TYPED_TEST(DocumentEditBox, AReportedFailureKeepsTheEditorOpen) {
    const std::pair<const char*, std::size_t> cases[] = {{"InsertToTemp", 0}, {"TempUloz", 1}};
    for (const auto& [failing, closingCalls] : cases) {
        this->scriptAnew();
        this->procedure(failing).failsCall(1);
        const auto editor = this->open();
        EXPECT_EQ(this->showAnd(*editor, [&] { this->type(*editor, "", Qt::Key_Return, Qt::ControlModifier); }),
                  c_ResultCancel);
        EXPECT_TRUE(this->wasLeftOpen_) << failing;
        EXPECT_THAT(this->callsOf("TempUloz"), SizeIs(closingCalls));
        this->host_.connection.dropProcedure(this->of(failing));
    }
}

TYPED_TEST(DocumentEditBox, CancelAndTheCloseBoxStoreNothing) {
    const std::function<void(TEditBox&)> ways[] = {
        [](TEditBox& editor) { press(editor, "CancelBtn"); },
        [](TEditBox& editor) { editor.close(); },
    };
    for (const auto& leave : ways) {
        const auto editor = this->open();
        EXPECT_EQ(this->showAnd(*editor,
                                [&] {
                                    QTest::keyClicks(editor->ActiveEditor(), QStringLiteral("abc"));
                                    leave(*editor);
                                }),
                  c_ResultCancel);
        EXPECT_FALSE(this->wasLeftOpen_);
        EXPECT_THAT(this->manager_.boxes(), IsEmpty()) << "a half-typed value is dropped unasked";
        EXPECT_THAT(this->host_.connection.calls(),
                    ElementsAre(StartsWith("MELVARKEDITORNASTAVENIUlozNastaveniOkna(")));
    }
}

} // namespace
