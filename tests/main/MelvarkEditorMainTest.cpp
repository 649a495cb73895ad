#include "main/MelvarkEditorMain.h"

#include "host/Exceptions.h"
#include "host/LibraryManager.h"
#include "tests/main/LibraryItemFixture.h"

#include <QPointer>
#include <QPushButton>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* c_NotInstalled = "O#: Editor položek tohoto dokladu zatím není nainstalován";

class LibraryItem : public LibraryItemFixture {
protected:
    static void press(QWidget& window, const char* button) {
        QTest::mouseClick(window.findChild<QPushButton*>(QString::fromUtf8(button)), Qt::LeftButton);
    }
};

TEST_F(LibraryItem, AGivenSourceOpensTheEditorWithoutAMenu) {
    ModalDriver editor({}, [&](QWidget& window) {
        EXPECT_NE(qobject_cast<TDodakEditBox*>(&window), nullptr);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        window.close();
    });
    item_.Execute("DODAK,SABLONA", &dataSet_, nullptr);
    EXPECT_TRUE(editor.hasActed());
    EXPECT_THAT(host_.connection.calls(), Contains("MELVARKEDITORDodakCheckMaster(a_DODKID=7)"));
    EXPECT_THAT(host_.connection.calls(), Contains("MELVARKEDITORNASTAVENINactiDef(a_TYPEDITACE=3) open"));
}

TEST_F(LibraryItem, TheDocumentIsReadBeforeItsSupplier) {
    ModalDriver editor({}, [](QWidget& window) { window.close(); });
    item_.Execute("DODAK,SABLONA", &dataSet_, nullptr);
    // Once to see that the screen has it, then for the editor.
    EXPECT_THAT(dataSet_.askedFor, ElementsAre("_ID", "_ID", "_DODVID"));
}

TEST_F(LibraryItem, OnlyOkIsTrueAndTheEditorIsFreedInAnyCase) {
    struct {
        const char* remark;
        std::function<void(QWidget&)> leave;
        bool result;
    } const ways[] = {
        {"OK", [](QWidget& window) { press(window, "OkBtn"); }, true},
        {"cancel", [](QWidget& window) { press(window, "CancelBtn"); }, false},
        {"the close box", [](QWidget& window) { window.close(); }, false},
    };
    for (const auto& way : ways) {
        SCOPED_TRACE(way.remark);
        ModalDriver editor({}, [&](QWidget& window) {
            EXPECT_EQ(editorsAlive(), 1u);
            way.leave(window);
        });
        EXPECT_EQ(item_.Execute("DODAK,SABLONA", &dataSet_, nullptr), way.result);
        EXPECT_EQ(editorsAlive(), 0u);
    }
}

TEST_F(LibraryItem, AnErrorOfTheEditorReachesTheHostAndTheEditorIsFreed) {
    QPointer<QWidget> form;
    host_.connection.procedure("MELVARKEDITORDodakCheckMaster")
        .answersCall(1, [&](const TProcedureCall&) -> TCallResult {
            form = QApplication::topLevelWidgets().value(0);
            throw EDatabaseError("Dodací list 7 je uzavřen.");
        });
    const auto ownedByTheApplication = qApp->children().size();
    EXPECT_THROW(item_.Execute("DODAK,SABLONA", &dataSet_, nullptr), EDatabaseError);
    EXPECT_TRUE(form.isNull()) << "the form was built by then and is to be gone";
    EXPECT_THAT(QApplication::topLevelWidgets(), IsEmpty());
    EXPECT_EQ(qApp->children().size(), ownedByTheApplication);
}

TEST_F(LibraryItem, ACancelledPreparationIsQuiet) {
    host_.connection.procedure("MELVARKEDITORDodakCheckMaster").failsCall(1);
    EXPECT_FALSE(item_.Execute("DODAK,SABLONA", &dataSet_, nullptr));
    EXPECT_THAT(manager_.boxes(), IsEmpty());
    EXPECT_THAT(manager_.messages(), IsEmpty());
    EXPECT_EQ(editorsAlive(), 0u);
}

TEST_F(LibraryItem, ACancelledSourceDialogIsQuiet) {
    ModalDriver dialog({}, [](QWidget& window) { press(window, "CancelBtn"); });
    EXPECT_FALSE(item_.Execute("DODAK,DODOBJ", &dataSet_, nullptr));
    EXPECT_THAT(manager_.boxes(), IsEmpty());
    EXPECT_EQ(editorsAlive(), 0u);
}

TEST_F(LibraryItem, AnUnknownEditTypeIsTheEditorsRefusal) {
    EXPECT_THROW(item_.Execute("DODAK,dodak", &dataSet_, nullptr), EDodakEditBox);
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

TEST_F(LibraryItem, AnUnknownDocumentTypeIsSaidInOneMessage) {
    for (const char* params : {"dodak", "", "DODAK ", "FAKTURA,SABLONA", ",SABLONA"}) {
        RecordingLibraryManager manager;
        TMelvarkEditor item(&manager);
        EXPECT_FALSE(item.Execute(params, &dataSet_, nullptr)) << params;
        EXPECT_THAT(manager.messages(), ElementsAre("O#: Nepodporovaný typ editace dokladu")) << params;
    }
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

TEST_F(LibraryItem, TheMessageIsInTheUsersLanguage) {
    host_.translations[R"(KORDAN30\MELVARKEDITOR\NEPLATNYTYPEDITACEDOKLADU)"] = "Unsupported document type";
    EXPECT_FALSE(item_.Execute("X", &dataSet_, nullptr));
    EXPECT_THAT(manager_.messages(), ElementsAre("O#: Unsupported document type"));
}

TEST_F(LibraryItem, WithoutALibraryManagerTheApplicationsBoxTells) {
    ModalDriver box(QStringLiteral("MessageBox"), [](QWidget& shown) { QTest::keyClick(&shown, Qt::Key_Return); });
    TMelvarkEditor item(nullptr);
    EXPECT_FALSE(item.Execute("X", &dataSet_, nullptr));
    EXPECT_TRUE(box.hasActed());
}

TEST_F(LibraryItem, AnEmptyDatasetIsFalseWithoutAWord) {
    dataSet_.isEmpty = true;
    dataSet_.fields.clear();
    for (const char* params : {"DODAK", "DODAK,SABLONA", "DODOBJ,SABLONA", "unknown"}) {
        EXPECT_FALSE(item_.Execute(params, &dataSet_, nullptr)) << params;
    }
    EXPECT_FALSE(item_.Execute("DODAK,SABLONA", nullptr, nullptr));
    EXPECT_THAT(manager_.messages(), IsEmpty());
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

TEST_F(LibraryItem, AScreenWithoutAnIdIsTheDatasetsErrorOnceItIsNotEmpty) {
    dataSet_.fields.erase("_ID");
    for (const char* params : {"DODAK", "DODAK,SABLONA", "unknown"}) {
        try {
            item_.Execute(params, &dataSet_, nullptr);
            ADD_FAILURE() << "no error for " << params;
        } catch (const EDatabaseError& error) {
            EXPECT_THAT(error.Message(), HasSubstr("_ID"));
        }
    }
    EXPECT_THAT(manager_.messages(), IsEmpty()) << "the field is asked for before the document type is";
}

TEST_F(LibraryItem, AScreenWithoutASupplierIsTheDatasetsError) {
    dataSet_.fields.erase("_DODVID");
    try {
        item_.Execute("DODAK,SABLONA", &dataSet_, nullptr);
        FAIL() << "no error";
    } catch (const EDatabaseError& error) {
        EXPECT_THAT(error.Message(), HasSubstr("_DODVID"));
    }
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

TEST_F(LibraryItem, OrdersAndTemplatesSayThatTheirEditorIsNotInstalled) {
    EXPECT_FALSE(item_.Execute("DODOBJ,OBJEDNAVKA", &dataSet_, nullptr));
    // A code that the template's menu never offers is taken as given.
    EXPECT_FALSE(item_.Execute("DODOBJVZOR,SABLONA", &dataSet_, nullptr));
    EXPECT_THAT(manager_.messages(), ElementsAre(c_NotInstalled, c_NotInstalled));
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

} // namespace
