#include "host/widgets/MessageBox.h"

#include "tests/support/RecordingHost.h"
#include "tests/widgets/ModalDriver.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

const QString c_Box = QStringLiteral("MessageBox");

QPushButton* buttonOf(QWidget& box, const char* name) {
    return box.findChild<QPushButton*>(QLatin1String(name));
}

struct Answer {
    const char* name;
    int flags;
    void (*give)(QWidget&);
    int result;
};

class MessageBoxAnswerTest : public testing::TestWithParam<Answer> {
protected:
    RecordingHost host;
    TScopedHost scope{host};
};

void press(QWidget& box, int key) {
    QTest::keyClick(&box, static_cast<Qt::Key>(key));
}

void click(QWidget& box, const char* name) {
    QPushButton* button = buttonOf(box, name);
    if (button) {
        QTest::mouseClick(button, Qt::LeftButton);
    } else {
        ADD_FAILURE() << "no button " << name;
    }
}

} // namespace

TEST_P(MessageBoxAnswerTest, GivesTheButtonsCode) {
    ModalDriver driver(c_Box, [](QWidget& box) { GetParam().give(box); });
    EXPECT_EQ(ApplicationMessageBox("Text", "Titulek", GetParam().flags), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Answers, MessageBoxAnswerTest,
    testing::Values(
        Answer{"OkByMouse", c_MessageBoxError, [](QWidget& box) { click(box, "OkBtn"); }, c_ResultOk},
        Answer{"OkByEnter", c_MessageBoxError, [](QWidget& box) { press(box, Qt::Key_Return); }, c_ResultOk},
        Answer{"OkByEscape", c_MessageBoxError, [](QWidget& box) { press(box, Qt::Key_Escape); }, c_ResultOk},
        Answer{"OkByCloseBox", c_MessageBoxError, [](QWidget& box) { box.close(); }, c_ResultOk},
        Answer{"YesByMouse", c_MessageBoxQuestion, [](QWidget& box) { click(box, "YesBtn"); }, c_ResultYes},
        Answer{"YesByEnter", c_MessageBoxQuestion, [](QWidget& box) { press(box, Qt::Key_Return); }, c_ResultYes},
        Answer{"YesByItsLetter", c_MessageBoxQuestion, [](QWidget& box) { press(box, Qt::Key_A); }, c_ResultYes},
        Answer{"NoByMouse", c_MessageBoxQuestion, [](QWidget& box) { click(box, "NoBtn"); }, c_ResultNo},
        Answer{"NoByItsLetter", c_MessageBoxQuestion, [](QWidget& box) { press(box, Qt::Key_N); }, c_ResultNo},
        Answer{"NoByEscape", c_MessageBoxQuestion, [](QWidget& box) { press(box, Qt::Key_Escape); }, c_ResultNo},
        Answer{"NoByCloseBox", c_MessageBoxQuestion, [](QWidget& box) { box.close(); }, c_ResultNo}),
    [](const auto& instance) { return std::string(instance.param.name); });

TEST(MessageBox, ShowsTextCaptionIconAndCzechButtons) {
    RecordingHost host;
    const TScopedHost scope(host);
    ModalDriver driver(c_Box, [](QWidget& widget) {
        auto& box = dynamic_cast<QMessageBox&>(widget);
        EXPECT_EQ(box.text(), QStringLiteral("Obnovit <b>rozepsaná</b> data?"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText); // letter for letter, never as markup
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Potvrzení"));
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(buttonOf(box, "YesBtn")->text(), QStringLiteral("&Ano"));
        EXPECT_EQ(buttonOf(box, "NoBtn")->text(), QStringLiteral("&Ne"));
        box.close();
    });
    ApplicationMessageBox("Obnovit <b>rozepsaná</b> data?", "Potvrzení", c_MessageBoxQuestion);
    EXPECT_TRUE(driver.hasActed());
}

TEST(MessageBox, ButtonsSpeakTheUsersLanguage) {
    RecordingHost host;
    const TScopedHost scope(host);
    host.translations[R"(KORDAN30\MESSAGEBOX\YES)"] = "&Yes";
    ModalDriver driver(c_Box, [](QWidget& box) {
        EXPECT_EQ(buttonOf(box, "YesBtn")->text(), QStringLiteral("&Yes"));
        box.close();
    });
    ApplicationMessageBox("Text", "Potvrzení", c_MessageBoxQuestion);
}

TEST(MessageBox, ComesUpBeforeAHostIsInstalled) {
    ModalDriver driver(c_Box, [](QWidget& box) {
        EXPECT_EQ(dynamic_cast<QMessageBox&>(box).icon(), QMessageBox::Critical);
        EXPECT_EQ(buttonOf(box, "OkBtn")->text(), QStringLiteral("OK"));
        box.close();
    });
    EXPECT_EQ(ApplicationMessageBox("Databáze nelze otevřít", "Chyba", c_MessageBoxError), c_ResultOk);
}
