#include "main/MelvarkEditorMain.h"
#include "tests/main/LibraryItemFixture.h"

#include <QAction>
#include <QCursor>
#include <QElapsedTimer>
#include <QMenu>
#include <QProcess>
#include <QTimer>

#include <memory>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Acts on the next popup menu while the code under test is blocked in it; one that does not come is a failure, also
/// when the code under test was not blocked at all.
class PopupDriver : public QObject {
public:
    explicit PopupDriver(std::function<void(QMenu&)> action) : action_(std::move(action)) {
        QObject::connect(&timer_, &QTimer::timeout, this, [this] { look(); });
        timer_.start(5);
        waited_.start();
    }
    ~PopupDriver() override {
        if (timer_.isActive()) {
            ADD_FAILURE() << "no popup menu was there to act on";
        }
    }

private:
    void look() {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            timer_.stop();
            action_(*menu);
        } else if (waited_.hasExpired(5000)) {
            timer_.stop();
            ADD_FAILURE() << "no popup menu appeared";
        }
    }

    std::function<void(QMenu&)> action_;
    QTimer timer_;
    QElapsedTimer waited_;
};

std::vector<AnsiString> captions(const QMenu& menu) {
    std::vector<AnsiString> texts;
    for (const QAction* item : menu.actions()) {
        texts.push_back(item->text().toStdString());
    }
    return texts;
}

void dismiss(QMenu& menu) {
    QTest::keyClick(&menu, Qt::Key_Escape);
}

/// Keys as the window system delivers them.
void realKeys(const QStringList& keys) {
    QProcess::startDetached(QStringLiteral("xdotool"),
                            QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("50")} + keys);
}

/// The library item on a screen of its own.
class SourcePopupMenu : public LibraryItemFixture {
protected:
    SourcePopupMenu() { showScreen(); }

    void showScreen() {
        screen_ = std::make_unique<QWidget>();
        screen_->resize(600, 400);
        screen_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(screen_.get()));
    }

    /// What the editor was opened with, as its settings type, once it was closed.
    std::vector<AnsiString> openedSettings() { return host_.connection.callsOf("MELVARKEDITORNASTAVENINactiDef"); }

    std::unique_ptr<QWidget> screen_;
};

TEST_F(SourcePopupMenu, AppearsAtTheMouseWithTheScreensEntriesInOrder) {
    QCursor::setPos(screen_->mapToGlobal(QPoint(120, 90)));
    ASSERT_TRUE(QTest::qWaitFor([&] { return QCursor::pos() == screen_->mapToGlobal(QPoint(120, 90)); }));
    PopupDriver menu([&](QMenu& popup) {
        EXPECT_LE((popup.pos() - QCursor::pos()).manhattanLength(), 2);
        EXPECT_THAT(captions(popup),
                    ElementsAre("Vložit položky na základě objednávky", "Vložit položky na základě dodacího listu",
                                "Vložit položky pomocí šablony dodacího listu"));
        EXPECT_EQ(popup.actions()[2]->toolTip().toStdString(),
                  "Zobrazí editor položek dodacího listu a seznam předvyplní položkami z posledních dodacích listů");
        EXPECT_EQ(popup.parentWidget(), screen_.get());
        dismiss(popup);
    });
    EXPECT_FALSE(item_.Execute("DODAK", &dataSet_, nullptr));
}

TEST_F(SourcePopupMenu, AnEntryPickedByKeysOpensTheEditorWithItsCode) {
    PopupDriver menu([](QMenu&) {
        realKeys({QStringLiteral("Down"), QStringLiteral("Down"), QStringLiteral("Down"), QStringLiteral("Return")});
    });
    ModalDriver editor({}, [](QWidget& window) { window.close(); });
    EXPECT_FALSE(item_.Execute("DODAK", &dataSet_, nullptr));
    EXPECT_TRUE(editor.hasActed());
    EXPECT_THAT(openedSettings(), ElementsAre("MELVARKEDITORNASTAVENINactiDef(a_TYPEDITACE=3) open"));
}

TEST_F(SourcePopupMenu, AnEntryPickedByTheMouseOpensTheEditorWithItsCode) {
    PopupDriver menu([](QMenu& popup) {
        const QRect entry = popup.actionGeometry(popup.actions()[1]);
        QTest::mouseClick(&popup, Qt::LeftButton, Qt::NoModifier, entry.center());
    });
    ModalDriver dialog({}, [](QWidget& window) { window.close(); });
    EXPECT_FALSE(item_.Execute("DODAK", &dataSet_, nullptr));
    EXPECT_TRUE(dialog.hasActed());
    EXPECT_THAT(openedSettings(), ElementsAre("MELVARKEDITORNASTAVENINactiDef(a_TYPEDITACE=2) open"));
}

TEST_F(SourcePopupMenu, DismissedWithoutAChoiceOpensNothing) {
    for (const char* screen : {"DODAK", "DODOBJ", "DODOBJVZOR"}) {
        SCOPED_TRACE(screen);
        PopupDriver menu(dismiss);
        EXPECT_FALSE(item_.Execute(screen, &dataSet_, nullptr));
    }
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
    EXPECT_THAT(manager_.messages(), IsEmpty());
}

TEST_F(SourcePopupMenu, AChoiceOfBeforeDoesNotCarryOver) {
    PopupDriver first([](QMenu& popup) { popup.actions()[2]->trigger(), dismiss(popup); });
    ModalDriver editor({}, [](QWidget& window) { window.close(); });
    item_.Execute("DODAK", &dataSet_, nullptr);
    EXPECT_TRUE(editor.hasActed());
    EXPECT_THAT(host_.connection.takeCalls(), testing::Not(IsEmpty()));
    PopupDriver second(dismiss);
    EXPECT_FALSE(item_.Execute("DODAK", &dataSet_, nullptr));
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

TEST_F(SourcePopupMenu, IsRebuiltForEachScreenInTheSameMenu) {
    QPointer<QMenu> first;
    const std::pair<const char*, std::size_t> screens[] = {
        {"DODAK", 3}, {"DODOBJ", 7}, {"DODOBJVZOR", 6}, {"DODAK", 3}};
    for (const auto& [screen, entries] : screens) {
        SCOPED_TRACE(screen);
        PopupDriver menu([&, count = entries, isFirst = &entries == &screens[0].second](QMenu& popup) {
            if (isFirst) {
                first = &popup;
            }
            EXPECT_EQ(first, &popup);
            EXPECT_THAT(captions(popup), SizeIs(count));
            dismiss(popup);
        });
        item_.Execute(screen, &dataSet_, nullptr);
    }
}

TEST_F(SourcePopupMenu, TheOrdersDeliveryNoteEntryStandsBeforeTheTemplates) {
    PopupDriver menu([](QMenu& popup) {
        EXPECT_EQ(captions(popup)[2], "Vložit položky z dodacího listu");
        EXPECT_EQ(popup.actions()[2]->data().toInt(), 4);
        EXPECT_EQ(popup.actions()[3]->data().toInt(), 3);
        popup.setActiveAction(popup.actions()[2]);
        QTest::keyClick(&popup, Qt::Key_Return);
    });
    showOrder();
    ModalDriver dialog(QStringLiteral("SelectBox"), [](QWidget& window) { window.close(); });
    EXPECT_FALSE(item_.Execute("DODOBJ", &dataSet_, nullptr));
    EXPECT_TRUE(dialog.hasActed());
    EXPECT_THAT(openedSettings(), ElementsAre("MELVARKEDITORNASTAVENINactiDef(a_TYPEDITACE=14) open"));
}

TEST_F(SourcePopupMenu, TheTemplatesMenuLacksTheTemplateAndItsEntriesDoWhatTheySay) {
    PopupDriver menu([](QMenu& popup) {
        EXPECT_THAT(captions(popup),
                    ElementsAre("Vložit položky z objednávky", "Vložit položky ze vzoru objednávky",
                                "Vložit položky z dodacího listu", "Vložit položky dle skupin skladových položek",
                                "Vložit položky dle ceníku dodavatele", "Vložit položky dle dodávek dodavatele"));
        EXPECT_EQ(popup.actions()[0]->toolTip().toStdString(),
                  "Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami z objednávky, kterou si "
                  "uživatel zvolí v editoru");
        EXPECT_EQ(popup.actions()[5]->data().toInt(), 7);
        popup.setActiveAction(popup.actions()[5]);
        QTest::keyClick(&popup, Qt::Key_Return);
    });
    showOrder();
    ModalDriver dialog(QStringLiteral("SelectBox"), [](QWidget& window) { window.close(); });
    EXPECT_FALSE(item_.Execute("DODOBJVZOR", &dataSet_, nullptr));
    EXPECT_TRUE(dialog.hasActed());
    EXPECT_THAT(openedSettings(), ElementsAre("MELVARKEDITORNASTAVENINactiDef(a_TYPEDITACE=27) open"));
}

TEST_F(SourcePopupMenu, CaptionsAreShownLetterForLetter) {
    host_.translations[R"(KORDAN30\MELVARKEDITOR\VLOZPOLOZKYDODAKUNAZAKLADEMELVARK)"] = "Lines & prices";
    PopupDriver menu([](QMenu& popup) {
        EXPECT_EQ(captions(popup)[2], "Lines && prices") << "a doubled ampersand is shown as one";
        dismiss(popup);
    });
    item_.Execute("DODAK", &dataSet_, nullptr);
}

TEST_F(SourcePopupMenu, AnotherSenderThanAMenuItemChangesNothing) {
    showOrder();
    for (const char* screen : {"DODAK", "DODOBJ", "DODOBJVZOR"}) {
        SCOPED_TRACE(screen);
        QAction strange; // an item, but its tag is no source's
        strange.setData(8);
        PopupDriver menu([&](QMenu& popup) {
            for (TObject* const sender : {static_cast<TObject*>(screen_.get()), static_cast<TObject*>(&popup),
                                          static_cast<TObject*>(&strange), static_cast<TObject*>(nullptr)}) {
                item_.OnPopupMenuClickDodak(sender);
                item_.OnPopupMenuClickDodObj(sender);
                item_.OnPopupMenuClickDodObjVzor(sender);
            }
            dismiss(popup);
        });
        EXPECT_FALSE(item_.Execute(screen, &dataSet_, nullptr));
    }
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

TEST_F(SourcePopupMenu, IsMadeAgainWhenItsScreenIsGone) {
    PopupDriver first(dismiss);
    item_.Execute("DODAK", &dataSet_, nullptr);
    screen_.reset();
    showScreen();
    PopupDriver second([&](QMenu& popup) {
        EXPECT_EQ(popup.parentWidget(), screen_.get());
        EXPECT_THAT(captions(popup), SizeIs(3));
        dismiss(popup);
    });
    EXPECT_FALSE(item_.Execute("DODAK", &dataSet_, nullptr));
}

TEST_F(SourcePopupMenu, GoesWithItsScreenWhileItIsOpen) {
    PopupDriver menu([&](QMenu&) { screen_.reset(); });
    EXPECT_FALSE(item_.Execute("DODAK", &dataSet_, nullptr));
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

TEST_F(SourcePopupMenu, GoesWithItsItemWhileTheScreenLivesOn) {
    auto item = std::make_unique<TMelvarkEditor>(&manager_);
    PopupDriver menu(dismiss);
    item->Execute("DODAK", &dataSet_, nullptr);
    ASSERT_THAT(screen_->findChildren<QMenu*>(), SizeIs(1));
    item.reset();
    EXPECT_THAT(screen_->findChildren<QMenu*>(), IsEmpty());
}

} // namespace
