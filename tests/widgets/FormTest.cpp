#include "host/widgets/Form.h"

#include "host/widgets/Buttons.h"
#include "tests/support/RecordingHost.h"
#include "tests/widgets/ModalDriver.h"
#include "tests/widgets/ProbeForm.h"

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gmock/gmock.h>
#include <stdexcept>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class FormTest : public testing::Test {
protected:
    RecordingHost host;
    TScopedHost scope{host};
    ProbeForm form;

    /// Shows the form modally, acts on it, and gives its result.
    int showAnd(std::function<void()> act) {
        ModalDriver driver(form.objectName(), [act = std::move(act)](QWidget&) { act(); });
        return form.ShowModal();
    }
};

struct WayOut {
    const char* name;
    void (*leave)(TForm&);
    int result;
};

class FormWayOutTest : public FormTest, public testing::WithParamInterface<WayOut> {};

class PlainOwner : public QObject {};

} // namespace

TEST_P(FormWayOutTest, GivesItsResultAndRunsTheCloseEventOnce) {
    EXPECT_EQ(showAnd([this] { GetParam().leave(form); }), GetParam().result);
    EXPECT_THAT(form.events, ElementsAre("show", "close " + std::to_string(GetParam().result) + " visible"));
    EXPECT_FALSE(form.isVisible());
}

INSTANTIATE_TEST_SUITE_P(
    Ways, FormWayOutTest,
    testing::Values(WayOut{"ModalResultOk", [](TForm& form) { form.SetModalResult(c_ResultOk); }, c_ResultOk},
                    WayOut{"ModalResultCancel", [](TForm& form) { form.SetModalResult(c_ResultCancel); },
                           c_ResultCancel},
                    WayOut{"ModalResultYes", [](TForm& form) { form.SetModalResult(c_ResultYes); }, c_ResultYes},
                    WayOut{"CloseBox", [](TForm& form) { static_cast<QWidget&>(form).close(); }, c_ResultCancel},
                    WayOut{"Close", [](TForm& form) { form.Close(); }, c_ResultCancel},
                    WayOut{"Accept", [](TForm& form) { form.accept(); }, c_ResultOk},
                    WayOut{"Reject", [](TForm& form) { form.reject(); }, c_ResultCancel}),
    [](const auto& instance) { return std::string(instance.param.name); });

TEST_F(FormTest, AFormThatIsOnlyHiddenGivesCancel) {
    EXPECT_EQ(showAnd([this] { form.hide(); }), c_ResultCancel);
    EXPECT_THAT(form.events, ElementsAre("show", "close 2 hidden"));
}

TEST_F(FormTest, EachShowingHasItsOwnEventsAndStartsWithoutAResult) {
    EXPECT_EQ(showAnd([this] { form.SetModalResult(c_ResultOk); }), c_ResultOk);
    EXPECT_EQ(showAnd([this] { form.Close(); }), c_ResultCancel);
    EXPECT_THAT(form.events, ElementsAre("show", "close 1 visible", "show", "close 2 visible"));
}

TEST_F(FormTest, AResultSetBeforeTheShowingDoesNotCount) {
    form.SetModalResult(c_ResultOk);
    EXPECT_EQ(showAnd([this] { form.Close(); }), c_ResultCancel);
}

TEST_F(FormTest, AResultTakenBackInTheSameHandlerKeepsTheFormOpen) {
    bool wasOpen = false;
    showAnd([&] {
        form.SetModalResult(c_ResultOk);
        form.SetModalResult(0);
        QTest::qWait(0);
        wasOpen = form.isVisible();
        form.Close();
    });
    EXPECT_TRUE(wasOpen);
}

TEST_F(FormTest, DoesNotCloseUnderAHandlerThatWaitsInALoopOfItsOwn) {
    bool wasOpen = false;
    const int result = showAnd([&] {
        form.SetModalResult(c_ResultOk);
        QEventLoop box;
        QTimer::singleShot(30, &box, &QEventLoop::quit);
        box.exec();
        wasOpen = form.isVisible();
    });
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(result, c_ResultOk);
}

TEST_F(FormTest, AnErrorInTheCloseEventIsShownAndTheFormClosesWithItsResult) {
    form.onClose = [] { throw Exception("Umístění okna nelze uložit"); };
    EXPECT_EQ(showAnd([this] { form.SetModalResult(c_ResultOk); }), c_ResultOk);
    EXPECT_THAT(host.errors(), ElementsAre("Umístění okna nelze uložit"));
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FormTest, AnErrorInTheShowEventIsShownAndTheFormStaysUsable) {
    form.onShow = [] { throw Exception("Nastavení nelze načíst"); };
    bool wasOpen = false;
    showAnd([&] {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !host.errors().empty(); }));
        wasOpen = form.isVisible();
        form.Close();
    });
    EXPECT_TRUE(wasOpen);
    EXPECT_THAT(host.errors(), ElementsAre("Nastavení nelze načíst"));
}

TEST_F(FormTest, AResultSetInTheShowEventCloses) {
    form.onShow = [this] { form.SetModalResult(c_ResultCancel); };
    EXPECT_EQ(form.ShowModal(), c_ResultCancel);
}

TEST_F(FormTest, EscapeDoesNotCloseUnlessTheFormSaysSo) {
    bool wasOpen = false;
    const int result = showAnd([&] {
        QTest::keyClick(&form, Qt::Key_Escape);
        QTest::qWait(0);
        wasOpen = form.isVisible();
        form.SetCloseOnEscape(true);
        QTest::keyClick(&form, Qt::Key_Escape);
    });
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(result, c_ResultCancel);
}

TEST_F(FormTest, EnterClicksNoButtonUnlessOneIsTheDefault) {
    QVBoxLayout layout(&form);
    auto* edit = new QLineEdit(&form);
    auto* button = new TQelPngBitBtn(&form);
    layout.addWidget(edit);
    layout.addWidget(button);
    int clicks = 0;
    button->SetOnClick([&](TObject*) { ++clicks; });
    showAnd([&] {
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_Return);
        EXPECT_EQ(clicks, 0);
        button->SetDefault(true);
        QTest::keyClick(edit, Qt::Key_Return);
        QTest::keyClick(edit, Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_EQ(clicks, 2);
        QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
        button->setEnabled(false);
        QTest::keyClick(edit, Qt::Key_Return);
        EXPECT_EQ(clicks, 2);
        form.Close();
    });
}

TEST_F(FormTest, WithoutALibraryManagerTheBuiltInTextsStay) {
    form.SetCaption("Výběr");
    form.Localize(nullptr, R"(KORDAN30\ProbeForm)");
    EXPECT_EQ(form.Caption(), "Výběr");
}

TEST_F(FormTest, TheLibraryManagerGetsTheSection) {
    RecordingLibraryManager manager;
    manager.formTexts[R"(KORDAN30\ProbeForm\Form\Caption)"] = "Selection";
    form.SetCaption("Výběr");
    form.Localize(&manager, R"(KORDAN30\ProbeForm)");
    EXPECT_THAT(manager.localizedSections(), ElementsAre(R"(KORDAN30\ProbeForm)"));
    EXPECT_EQ(form.Caption(), "Selection");
}

namespace {

/// Does in its destructor what belongs to the destroy event.
class BaseForm : public TForm {
public:
    explicit BaseForm(bool& destroyed) : TForm(nullptr), destroyed_(destroyed) {}
    ~BaseForm() override { destroyed_ = IsConstructed(); }

private:
    bool& destroyed_;
};

class DerivedForm : public BaseForm {
public:
    DerivedForm(bool& destroyed, bool fails) : BaseForm(destroyed) {
        if (fails) {
            throw Exception("Canceled");
        }
        Constructed();
    }
};

} // namespace

TEST(FormLife, TheDestroyEventRunsForACompleteForm) {
    bool destroyed = false;
    { const DerivedForm form(destroyed, false); }
    EXPECT_TRUE(destroyed);
}

TEST(FormLife, TheDestroyEventDoesNotRunForAFormWhoseConstructorFailed) {
    bool destroyed = false;
    EXPECT_THROW(DerivedForm(destroyed, true), Exception);
    EXPECT_FALSE(destroyed);
}

TEST(FormLife, AFormWhoseConstructorHasNotEndedIsNotShown) {
    bool destroyed = false;
    BaseForm form(destroyed);
    QTimer::singleShot(0, &form, [&] { form.Close(); }); // it would wait for ever
    EXPECT_THROW(form.ShowModal(), std::logic_error);
    EXPECT_FALSE(form.isVisible());
}

TEST(FormLife, AnOwnerThatIsNoControlLeavesTheFormWithoutParent) {
    PlainOwner owner;
    const ProbeForm form(&owner);
    EXPECT_EQ(form.parent(), nullptr);
}

TEST(FormLife, AnOwnerThatIsAControlIsTheParent) {
    QWidget owner;
    const ProbeForm form(&owner);
    EXPECT_EQ(form.parentWidget(), &owner);
}

TEST_F(FormTest, ConstraintsBoundTheSize) {
    form.SetConstraints({.MinWidth = 400, .MinHeight = 150, .MaxHeight = 150});
    form.resize(10, 900);
    EXPECT_EQ(form.size(), QSize(400, 150));
}

TEST_F(FormTest, ATextThatNeedsMoreRoomGoesBeforeTheConstraints) {
    QVBoxLayout layout(&form);
    auto* label = new QLabel(&form);
    label->setMinimumSize(500, 220);
    layout.addWidget(label);
    form.SetConstraints({.MinWidth = 400, .MinHeight = 150, .MaxHeight = 150});
    EXPECT_GE(form.minimumWidth(), 500);
    EXPECT_GE(form.minimumHeight(), 220);
    EXPECT_EQ(form.maximumHeight(), form.minimumHeight());
}

TEST_F(FormTest, ConstraintsFollowALayoutThatGrows) {
    QVBoxLayout layout(&form);
    auto* label = new QLabel(&form);
    layout.addWidget(label);
    form.SetConstraints({.MinWidth = 400, .MinHeight = 150});
    form.show();
    label->setMinimumHeight(333);
    EXPECT_TRUE(QTest::qWaitFor([this] { return form.minimumHeight() >= 333; }));
    form.Close();
}

TEST_F(FormTest, ScreenCenterPutsTheFormInTheMiddle) {
    form.SetPosition(TPosition::poScreenCenter);
    form.move(3, 4);
    QPoint position;
    showAnd([&] {
        position = form.geometry().topLeft();
        form.Close();
    });
    const QRect area = form.screen()->geometry();
    EXPECT_EQ(position, area.topLeft() + QPoint((area.width() - 300) / 2, (area.height() - 200) / 2));
}

TEST_F(FormTest, VisibleIsAControlsOwnFlagBeforeTheFormAppears) {
    auto* shown = new QLabel(&form);
    auto* hidden = new QLabel(&form);
    hidden->hide();
    EXPECT_TRUE(melvark::Visible(*shown));
    EXPECT_FALSE(melvark::Visible(*hidden));
}
