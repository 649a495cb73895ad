#include "host/widgets/Buttons.h"

#include "tests/support/RecordingHost.h"
#include "tests/widgets/ModalDriver.h"
#include "tests/widgets/ProbeForm.h"

#include <QLineEdit>
#include <QMenu>
#include <QPixmap>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class ButtonsTest : public testing::Test {
protected:
    RecordingHost host;
    TScopedHost scope{host};
    ProbeForm form;
    QVBoxLayout layout{&form};

    template <class Button>
    Button* add() {
        auto* button = new Button(&form);
        layout.addWidget(button);
        return button;
    }

    void show() {
        form.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    }
};

} // namespace

TEST_F(ButtonsTest, AClickClosesTheFormWithTheButtonsResult) {
    auto* button = add<TQelPngBitBtn>();
    button->SetModalResult(c_ResultOk);
    ModalDriver driver(form.objectName(), [&](QWidget&) { QTest::mouseClick(button, Qt::LeftButton); });
    EXPECT_EQ(form.ShowModal(), c_ResultOk);
}

TEST_F(ButtonsTest, TheHandlerSeesTheResultAndMayTakeItBack) {
    auto* button = add<TQelPngBitBtn>();
    button->SetModalResult(c_ResultOk);
    int seen = -1;
    TObject* sender = nullptr;
    button->SetOnClick([&](TObject* from) {
        sender = from;
        seen = form.ModalResult();
        form.SetModalResult(0);
    });
    show();
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::qWait(0);
    EXPECT_EQ(seen, c_ResultOk);
    EXPECT_EQ(sender, button);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(ButtonsTest, AnErrorInTheHandlerIsShownAndKeepsTheFormOpen) {
    auto* button = add<TQelPngBitBtn>();
    button->SetModalResult(c_ResultOk);
    button->SetOnClick([](TObject*) { throw Exception("Doklad je uzavřen"); });
    show();
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_THAT(host.errors(), ElementsAre("Doklad je uzavřen"));
    QTest::qWait(0);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(ButtonsTest, AButtonWithoutResultClearsTheFormsOne) {
    auto* button = add<TQelPngBitBtn>();
    int seen = -1;
    button->SetOnClick([&](TObject*) { seen = form.ModalResult(); });
    show();
    button->click();
    EXPECT_EQ(seen, 0);
    EXPECT_TRUE(form.isVisible());
}

TEST_F(ButtonsTest, EnterClicksTheFocusedButtonEvenBesideADefaultOne) {
    auto* ok = add<TQelPngBitBtn>();
    auto* cancel = add<TQelPngBitBtn>();
    std::vector<std::string> clicked;
    ok->SetDefault(true);
    ok->SetOnClick([&](TObject*) { clicked.emplace_back("ok"); });
    cancel->SetOnClick([&](TObject*) { clicked.emplace_back("cancel"); });
    show();
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    QTest::keyClick(cancel, Qt::Key_Space);
    QTest::keyClick(cancel, Qt::Key_Return, Qt::ControlModifier); // another command's key
    EXPECT_THAT(clicked, ElementsAre("cancel", "cancel"));
}

TEST_F(ButtonsTest, AButtonOutsideAFormOnlyRunsItsHandler) {
    QWidget window;
    TQelPngBitBtn button(&window);
    button.SetModalResult(c_ResultOk);
    int clicks = 0;
    button.SetOnClick([&](TObject*) { ++clicks; });
    button.click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonsTest, AGlyphIsShownAsLargeAsOtherButtonIconsHoweverLargeItsImageIs) {
    auto* button = add<TQelPngBitBtn>();
    const int side = button->style()->pixelMetric(QStyle::PM_ButtonIconSize, nullptr, button);
    QPixmap png(64, 64);
    png.fill(Qt::red);
    button->SetGlyph(png);
    EXPECT_FALSE(button->icon().isNull());
    EXPECT_EQ(button->iconSize(), QSize(side, side));
    button->SetGlyph(QPixmap());
    EXPECT_TRUE(button->icon().isNull());
}

TEST_F(ButtonsTest, ASpeedButtonLeavesTheFocusWhereItWas) {
    auto* edit = new QLineEdit(&form);
    layout.addWidget(edit);
    auto* button = add<TQelPngSpeedButton>();
    bool editHadFocus = false;
    button->SetOnClick([&](TObject*) { editHadFocus = edit->hasFocus(); });
    show();
    edit->setFocus();
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(editHadFocus);
    EXPECT_TRUE(edit->hasFocus());
    QTest::keyClick(edit, Qt::Key_Tab); // there is no other control that takes the focus
    EXPECT_TRUE(edit->hasFocus());
}

TEST_F(ButtonsTest, AnErrorInASpeedButtonsHandlerIsShown) {
    auto* button = add<TQelPngSpeedButton>();
    button->SetOnClick([](TObject*) { throw Exception("Seznam nelze otevřít"); });
    button->click();
    EXPECT_THAT(host.errors(), ElementsAre("Seznam nelze otevřít"));
}

TEST_F(ButtonsTest, AMenuButtonShowsItsCaptionLetterForLetter) {
    auto* button = add<TMenuButton>();
    button->SetCaption("R&D");
    EXPECT_EQ(button->text(), QStringLiteral("R&&D"));
    EXPECT_EQ(button->Caption(), "R&D");
}

TEST_F(ButtonsTest, AMenuButtonHasRoomForItsArrow) {
    auto* button = add<TMenuButton>();
    button->SetCaption("Žádný vzor");
    const int captionAlone = button->sizeHint().width();
    QMenu menu;
    button->SetPopupMenu(&menu);
    const int arrow = button->style()->pixelMetric(QStyle::PM_MenuButtonIndicator, nullptr, button);
    EXPECT_GT(button->sizeHint().width(), captionAlone + arrow); // and a little between them
}

TEST_F(ButtonsTest, AMenuButtonsArrowFitsIntoTheLeastWidthOfAButton) {
    auto* button = add<TMenuButton>();
    button->SetCaption("-");
    const QSize least = button->sizeHint();
    QMenu menu;
    button->SetPopupMenu(&menu);
    EXPECT_EQ(button->sizeHint(), least);
}

TEST_F(ButtonsTest, AMenuButtonOfLimitedWidthCutsALongCaption) {
    struct MenuButton : TMenuButton {
        using TMenuButton::TMenuButton;
        QString shownText() const {
            QStyleOptionButton option;
            initStyleOption(&option);
            return option.text;
        }
    };
    auto* button = add<MenuButton>();
    QMenu menu;
    button->SetPopupMenu(&menu);
    button->SetCaption("Žádný vzor");
    button->LimitWidth();
    const QSize needed = button->sizeHint();
    button->resize(needed);
    EXPECT_EQ(button->shownText(), QStringLiteral("Žádný vzor")) << "it was wide enough";
    button->SetCaption("Příjem zeleniny");
    button->resize(button->sizeHint());
    EXPECT_EQ(button->shownText(), QStringLiteral("Příjem zeleniny"));
    const AnsiString longName = "Příjem zeleniny & ovoce od všech dodavatelů na obě pobočky";
    button->SetCaption(longName);
    button->resize(button->sizeHint());
    EXPECT_EQ(button->sizeHint(), QSize(2 * needed.width(), needed.height()));
    EXPECT_EQ(button->Caption(), longName);
    EXPECT_EQ(button->toolTip().toStdString(), longName);
    EXPECT_TRUE(button->shownText().startsWith(QStringLiteral("Příjem")));
    EXPECT_TRUE(button->shownText().endsWith(u'…'));
    button->SetCaption("-");
    EXPECT_LT(button->sizeHint().width(), needed.width()) << "a short one still asks for less";
}

TEST_F(ButtonsTest, AnEmptyMenuIsNeverOpened) {
    auto* button = add<TMenuButton>();
    show();
    button->click(); // without any menu
    QMenu menu;
    menu.addSeparator();
    menu.addAction(QStringLiteral("Hidden"))->setVisible(false);
    button->SetPopupMenu(&menu);
    button->click();
    EXPECT_FALSE(menu.isVisible());
}
