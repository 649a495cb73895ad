#include "refhost/ErrorDialog.h"

#include "refhost/Languages.h"
#include "tests/refhost/FocusedWidget.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>

namespace refhost {

namespace {

class ErrorDialogTest : public testing::Test {
protected:
    void open(const ErrorReport& report, std::function<void()> writeReport = nullptr) {
        dialog_ = std::make_unique<ErrorDialog>(report, languages_, nullptr, std::move(writeReport));
        dialog_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
    }

    template <typename Widget>
    Widget* find(const char16_t* name) const {
        return dialog_->findChild<Widget*>(QString::fromUtf16(name));
    }

    Languages languages_{"cs"};
    std::unique_ptr<ErrorDialog> dialog_;
};

const ErrorReport c_report{.sentence = "Doklad je <uzavřený>.", .details = "Kód: ML003"};

TEST_F(ErrorDialogTest, ShowsTheSentenceLetterForLetterAndFoldsTheDetailsAway) {
    open(c_report);

    EXPECT_EQ(dialog_->windowTitle(), u"Chyba");
    EXPECT_EQ(find<QLabel>(u"errorSentence")->text(), u"Doklad je <uzavřený>.");
    EXPECT_EQ(find<QLabel>(u"errorSentence")->textFormat(), Qt::PlainText);
    EXPECT_FALSE(find<QPlainTextEdit>(u"errorDetails")->isVisible());
}

TEST_F(ErrorDialogTest, AReportIsWrittenByKeyAndTheErrorStays) {
    int reports = 0;
    open(c_report, [&] { ++reports; });

    QTest::keyClick(focusedWidget(), Qt::Key_H, Qt::AltModifier);

    EXPECT_TRUE(QTest::qWaitFor([&] { return reports == 1; }));
    EXPECT_TRUE(dialog_->isVisible());
}

TEST_F(ErrorDialogTest, WithoutSomebodyWhoWritesReportsThereIsNoButtonForThem) {
    open(c_report);
    EXPECT_EQ(find<QPushButton>(u"reportButton"), nullptr);
}

TEST_F(ErrorDialogTest, EnterClosesIt) {
    open(c_report);
    EXPECT_TRUE(find<QPushButton>(u"closeButton")->hasFocus());

    QTest::keyClick(focusedWidget(), Qt::Key_Return);

    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(ErrorDialogTest, EscapeClosesIt) {
    open(c_report);
    QTest::keyClick(focusedWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(ErrorDialogTest, TheDetailsUnfoldByKeyAndFoldAgain) {
    open(c_report);
    const QPlainTextEdit& details = *find<QPlainTextEdit>(u"errorDetails");

    QTest::keyClick(focusedWidget(), Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return details.isVisible(); })); // a button shows for a moment that it is down
    EXPECT_EQ(details.toPlainText(), u"Kód: ML003");

    QTest::keyClick(focusedWidget(), Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !details.isVisible(); }));
}

TEST_F(ErrorDialogTest, TheCopyKeyCopiesSentenceAndDetails) {
    open(c_report);
    QApplication::clipboard()->clear();

    QTest::keyClick(focusedWidget(), Qt::Key_C, Qt::ControlModifier);

    EXPECT_EQ(QApplication::clipboard()->text(), u"Doklad je <uzavřený>.\n\nKód: ML003");
}

TEST_F(ErrorDialogTest, WithoutDetailsThereIsNoButtonForThem) {
    open({.sentence = "Server neodpovídá.", .details = {}});
    QApplication::clipboard()->clear();

    QTest::mouseClick(find<QPushButton>(u"copyButton"), Qt::LeftButton);

    EXPECT_EQ(find<QPushButton>(u"detailsButton"), nullptr);
    EXPECT_EQ(QApplication::clipboard()->text(), u"Server neodpovídá.");
}

} // namespace

} // namespace refhost
