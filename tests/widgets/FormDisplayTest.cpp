#include "host/widgets/Buttons.h"
#include "host/widgets/MessageBox.h"
#include "tests/support/RecordingHost.h"
#include "tests/widgets/ModalDriver.h"
#include "tests/widgets/ProbeForm.h"
#include "tests/widgets/RealInput.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class FormOnDisplay : public testing::Test {
protected:
    RecordingHost host;
    TScopedHost scope{host};
    ProbeForm form;

    void show() {
        form.show();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    }
};

} // namespace

TEST_F(FormOnDisplay, AMinimisedWindowThatComesBackIsNoNewShowing) {
    show();
    form.showMinimized();
    ASSERT_TRUE(QTest::qWaitFor([this] { return form.isMinimized(); }));
    form.showNormal();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !form.isMinimized() && form.isActiveWindow(); }));
    EXPECT_THAT(form.events, ElementsAre("show"));
    form.Close();
    EXPECT_THAT(form.events, ElementsAre("show", "close 2 visible"));
}

TEST_F(FormOnDisplay, TheCloseKeyOfTheWindowManagerCancelsAModalForm) {
    ModalDriver driver(form.objectName(), [this](QWidget&) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        realinput::key(QStringLiteral("Escape"));
        EXPECT_TRUE(form.isVisible()) << "Escape alone does not close";
        EXPECT_TRUE(realinput::keyUntil(QStringLiteral("alt+F4"), [this] { return !form.isVisible(); }));
        form.close();
    });
    EXPECT_EQ(form.ShowModal(), c_ResultCancel);
    EXPECT_THAT(form.events, ElementsAre("show", "close 2 visible"));
}

TEST_F(FormOnDisplay, ABoxInAClickHandlerStandsAboveTheFormAndTheFormClosesAfterIt) {
    auto* button = new TQelPngBitBtn(&form);
    button->SetModalResult(c_ResultOk);
    button->resize(100, 30);
    int answer = 0;
    button->SetOnClick([&](TObject*) {
        ModalDriver box(QStringLiteral("MessageBox"), [this](QWidget& message) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&message));
            EXPECT_TRUE(form.isVisible()) << "the result is looked at after the handler";
            EXPECT_TRUE(realinput::keyUntil(QStringLiteral("n"), [&] { return !message.isVisible(); }));
            message.close();
        });
        answer = ApplicationMessageBox("Opravdu?", "Potvrzení", c_MessageBoxQuestion);
    });
    ModalDriver driver(form.objectName(), [&](QWidget&) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        realinput::click(*button, button->rect().center());
    });
    EXPECT_EQ(form.ShowModal(), c_ResultOk);
    EXPECT_EQ(answer, c_ResultNo);
}
