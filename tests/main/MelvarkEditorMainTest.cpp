#include "main/MelvarkEditorMain.h"

#include "host/Exceptions.h"
#include "host/LibraryManager.h"
#include "tests/main/LibraryItemFixture.h"

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class LibraryItem : public LibraryItemFixture {
protected:
    static void press(QWidget& window, const char* button) {
        QTest::mouseClick(window.findChild<QPushButton*>(QString::fromUtf8(button)), Qt::LeftButton);
    }

    /// Opens the editor and leaves it in each way that there is: only OK says that lines were inserted.
    void leaveInEachWay(const char* params) {
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
            SCOPED_TRACE(std::string(params) + " left by " + way.remark);
            ModalDriver editor({}, [&](QWidget& window) {
                EXPECT_EQ(editorsAlive(), 1u);
                way.leave(window);
            });
            EXPECT_EQ(item_.Execute(params, &dataSet_, nullptr), way.result);
            EXPECT_TRUE(editor.hasActed());
            EXPECT_EQ(editorsAlive(), 0u);
        }
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
    leaveInEachWay("DODAK,SABLONA");
}

TEST_F(LibraryItem, AnErrorOfTheEditorReachesTheHostAndTheEditorIsFreed) {
    QPointer<QWidget> form;
    host_.connection.procedure("MELVARKEDITORDodakCheckMaster")
        .answersCall(1, [&](const TProcedureCall&) -> TCallResult {
            form = QApplication::topLevelWidgets().value(0);
            EXPECT_FALSE(form.isNull()) << "the form is built before the check";
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

// ---- Orders and order templates ----

class OrderWorkflow : public LibraryItem {
protected:
    OrderWorkflow() { showOrder(); }

    /// Opens the price list's dialog of a document without a supplier and leaves it; what its list was asked.
    AnsiString priceListAskedFor(const char* params) {
        dataSet_.fields["_DODVID"] = std::monostate{};
        ModalDriver dialog({}, [](QWidget& box) {
            QTest::keyClick(box.findChild<QLineEdit*>(QStringLiteral("editSelect")), Qt::Key_F5);
            press(box, "CancelBtn");
        });
        EXPECT_FALSE(item_.Execute(params, &dataSet_, nullptr));
        return manager_.lookups().empty() ? "nothing" : manager_.lookups().back();
    }
};

TEST_F(OrderWorkflow, TheScreensFieldsAreReadInTheirOrder) {
    ModalDriver order({}, [](QWidget& window) { window.close(); });
    item_.Execute("DODOBJ,SABLONA", &dataSet_, nullptr);
    EXPECT_THAT(dataSet_.askedFor,
                ElementsAre("_ID", "_ID", "_SKLDID", "_DODVID", "SKLAD", "DODAVATEL", "OBJEDNANIDC"));
    dataSet_.askedFor.clear();
    ModalDriver orderTemplate({}, [](QWidget& window) { window.close(); });
    item_.Execute("DODOBJVZOR,SABLONA", &dataSet_, nullptr);
    EXPECT_THAT(dataSet_.askedFor, ElementsAre("_ID", "_ID", "_SKLDID", "_DODVID", "SKLAD", "DODAVATEL"));
}

TEST_F(OrderWorkflow, TheDocumentsWarehouseAndSupplierReachTheEditor) {
    ModalDriver dialog({}, [](QWidget& box) {
        QTest::keyClick(box.findChild<QLineEdit*>(QStringLiteral("editSelect")), Qt::Key_F5);
        press(box, "CancelBtn");
    });
    item_.Execute("DODOBJ,OBJEDNAVKA", &dataSet_, nullptr);
    EXPECT_THAT(manager_.lookups(), ElementsAre(HasSubstr("(_ID, _SKLDID, _DODVID, 7, 3, 40)=1")));
    ModalDriver deliveries({}, [](QWidget& box) {
        EXPECT_EQ(box.findChild<QLineEdit*>(QStringLiteral("editSelect"))->text(), QStringLiteral("Vrba"));
        press(box, "CancelBtn");
    });
    item_.Execute("DODOBJ,DODAVKY", &dataSet_, nullptr);
    EXPECT_TRUE(deliveries.hasActed());
}

TEST_F(OrderWorkflow, TheEditorHasWhatTheScreenShows) {
    ModalDriver editor({}, [](QWidget& window) {
        const auto* const order = qobject_cast<TDodObjEditBox*>(&window);
        ASSERT_TRUE(order);
        EXPECT_EQ(order->Document().SkldID, 3);
        EXPECT_EQ(order->Document().DodvID, 40);
        EXPECT_EQ(order->Document().Sklad, "Praha");
        EXPECT_EQ(order->Document().Dodavatel, "Vrba");
        window.close();
    });
    item_.Execute("DODOBJ,SABLONA", &dataSet_, nullptr);
    EXPECT_TRUE(editor.hasActed());
}

TEST_F(OrderWorkflow, AnOrdersPricesAreThoseOfTheMomentWhenItWasOrdered) {
    EXPECT_THAT(priceListAskedFor("DODOBJ,DODAVATEL"), HasSubstr("'5.3.2026 14:30:00'"));
}

TEST_F(OrderWorkflow, ATemplateAlwaysGetsTheCurrentDateAndTime) {
    EXPECT_THAT(priceListAskedFor("DODOBJVZOR,DODAVATEL"), HasSubstr("'1.2.2027 13:45:00'"))
        << "also where the screen has a moment";
    dataSet_.fields.erase("OBJEDNANIDC");
    EXPECT_THAT(priceListAskedFor("DODOBJVZOR,DODAVATEL"), HasSubstr("'1.2.2027 13:45:00'"));
}

TEST_F(OrderWorkflow, TheTemplatesEditorIsOpenedWithASourceThatItsMenuNeverOffers) {
    ModalDriver editor({}, [](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Vložení položek do vzorové objednávky zboží"));
        window.close();
    });
    EXPECT_FALSE(item_.Execute("DODOBJVZOR,SABLONA", &dataSet_, nullptr));
    EXPECT_TRUE(editor.hasActed());
    EXPECT_THAT(host_.connection.calls(), Contains("MELVARKEDITORNASTAVENINactiDef(a_TYPEDITACE=23) open"));
}

TEST_F(OrderWorkflow, OnlyOkIsTrueAndTheEditorIsFreedInAnyCase) {
    leaveInEachWay("DODOBJ,SABLONA");
    leaveInEachWay("DODOBJVZOR,SABLONA");
}

TEST_F(OrderWorkflow, AMissingFieldIsTheDatasetsError) {
    const auto complete = dataSet_.fields;
    const auto expectError = [&](const char* params, const char* field) {
        dataSet_.fields = complete;
        dataSet_.fields.erase(field);
        try {
            item_.Execute(params, &dataSet_, nullptr);
            ADD_FAILURE() << params << ": no error without " << field;
        } catch (const EDatabaseError& error) {
            EXPECT_THAT(error.Message(), HasSubstr(field));
        }
    };
    for (const char* field : {"_ID", "_SKLDID", "_DODVID", "SKLAD", "DODAVATEL"}) {
        expectError("DODOBJ,SABLONA", field);
        expectError("DODOBJVZOR,SABLONA", field);
    }
    expectError("DODOBJ,SABLONA", "OBJEDNANIDC");
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

TEST_F(OrderWorkflow, ACancelledSourceIsQuietAndNoEditorIsLeft) {
    for (const char* params : {"DODOBJ,SKUPSKLADPOL", "DODOBJVZOR,SKUPSKLADPOL", "DODOBJVZOR,OBJEDNAVKA"}) {
        SCOPED_TRACE(params);
        ModalDriver dialog({}, [](QWidget& window) { press(window, "CancelBtn"); });
        EXPECT_FALSE(item_.Execute(params, &dataSet_, nullptr));
        EXPECT_TRUE(dialog.hasActed());
        EXPECT_EQ(editorsAlive(), 0u);
    }
    EXPECT_THAT(manager_.boxes(), IsEmpty());
    EXPECT_THAT(manager_.messages(), IsEmpty());
}

TEST_F(OrderWorkflow, ARefusedDocumentIsTheHostsErrorAndNoEditorIsLeft) {
    const AnsiString refusal = "Objednávka je uzavřená.";
    host_.connection.procedure("MELVARKEDITORDodObjCheckMaster").refusesCall(1, refusal).refusesCall(2, refusal);
    for (const char* params : {"DODOBJ,SABLONA", "DODOBJVZOR,SABLONA"}) {
        SCOPED_TRACE(params);
        EXPECT_THROW(item_.Execute(params, &dataSet_, nullptr), EDatabaseError);
        EXPECT_EQ(editorsAlive(), 0u);
    }
}

TEST_F(OrderWorkflow, AnUnknownSourceIsTheEditorsRefusal) {
    EXPECT_THROW(item_.Execute("DODOBJ,sablona", &dataSet_, nullptr), EDodObjEditBox);
}

} // namespace
