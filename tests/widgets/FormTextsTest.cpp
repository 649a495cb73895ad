#include "host/widgets/FormTexts.h"

#include "host/widgets/Text.h"

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include <gmock/gmock.h>

using namespace melvark;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class FormTextsTest : public testing::Test {
protected:
    QDialog form;

    template <class Control>
    Control* named(const QString& name, const QString& text) {
        auto* control = new Control(text, &form);
        control->setObjectName(name);
        return control;
    }

    /// All texts as "Control.Property=Text".
    std::vector<std::string> texts() {
        std::vector<std::string> result;
        VisitFormTexts(form, [&](const TLocalizableForm::TText& text) {
            result.push_back(text.Control + "." + text.Property + "=" + text.Text);
        });
        return result;
    }

    void replaceAll(const AnsiString& replacement) {
        VisitFormTexts(form, [&](const TLocalizableForm::TText& text) { text.Replace(replacement); });
    }
};

} // namespace

TEST_F(FormTextsTest, VisitsCaptionsOfAllKindsOfControlsInTheOrderOfCreation) {
    form.setWindowTitle(QStringLiteral("Výběr"));
    named<QLabel>(QStringLiteral("lblSelect"), QStringLiteral("Číslo:"));
    named<QCheckBox>(QStringLiteral("chbCeny"), QStringLiteral("ceny"));
    named<QRadioButton>(QStringLiteral("rbAlignLeft"), QStringLiteral("Zleva"));
    named<QGroupBox>(QStringLiteral("gbPraceScenami"), QStringLiteral(" Způsob práce s cenami  "));
    named<QPushButton>(QStringLiteral("OkBtn"), QStringLiteral("&OK"));
    EXPECT_THAT(texts(), ElementsAre("Form.Caption=Výběr", "lblSelect.Caption=Číslo:", "chbCeny.Caption=ceny",
                                     "rbAlignLeft.Caption=Zleva", "gbPraceScenami.Caption= Způsob práce s cenami  ",
                                     "OkBtn.Caption=&OK"));
}

TEST_F(FormTextsTest, VisitsHintsBesideCaptions) {
    auto* edit = named<QLineEdit>(QStringLiteral("editSelect"), QStringLiteral("typed text is no caption"));
    edit->setToolTip(QStringLiteral("F5 otevře seznam"));
    EXPECT_THAT(texts(), ElementsAre("editSelect.Hint=F5 otevře seznam"));
}

TEST_F(FormTextsTest, VisitsMenuItemsAndSubmenus) {
    auto* menu = new QMenu(&form);
    menu->addAction(QStringLiteral("Skrýt sloupec"))->setObjectName(QStringLiteral("SkrytSloupec"));
    menu->addMenu(QStringLiteral("Skryté sloupce"))->setObjectName(QStringLiteral("SkryteSloupce"));
    EXPECT_THAT(texts(), testing::UnorderedElementsAre("SkrytSloupec.Caption=Skrýt sloupec",
                                                       "SkryteSloupce.Caption=Skryté sloupce"));
}

TEST_F(FormTextsTest, VisitsTheHintOfAMenuItemThatHasOneOfItsOwn) {
    auto* menu = new QMenu(&form);
    QAction* hide = menu->addAction(QStringLiteral("&Skrýt…"));
    hide->setObjectName(QStringLiteral("SkrytSloupec"));
    EXPECT_THAT(texts(), ElementsAre("SkrytSloupec.Caption=&Skrýt…")) << "its caption is no hint of its own";
    hide->setToolTip(QStringLiteral("Sloupec zůstane v seznamu skrytých"));
    EXPECT_THAT(texts(),
                ElementsAre("SkrytSloupec.Caption=&Skrýt…", "SkrytSloupec.Hint=Sloupec zůstane v seznamu skrytých"));
    replaceAll("Hide");
    EXPECT_EQ(hide->toolTip(), QStringLiteral("Hide"));
}

TEST_F(FormTextsTest, LeavesOutEmptyTextsAndControlsWithoutAName) {
    named<QLabel>(QStringLiteral("lblEmpty"), QString());
    new QLabel(QStringLiteral("Bez jména"), &form);
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(FormTextsTest, LeavesOutPartsThatQtMade) {
    auto* memo = named<QPlainTextEdit>(QStringLiteral("memHint"), QString());
    memo->viewport()->setToolTip(QStringLiteral("inner")); // the viewport is named by Qt
    ASSERT_FALSE(memo->viewport()->objectName().isEmpty());
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(FormTextsTest, LeavesOutOtherWindowsOfTheForm) {
    auto* box = new QDialog(&form);
    auto* label = new QLabel(QStringLiteral("Chyba"), box);
    label->setObjectName(QStringLiteral("lblError"));
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(FormTextsTest, ReplacesWhatItVisits) {
    form.setWindowTitle(QStringLiteral("Výběr"));
    auto* label = named<QLabel>(QStringLiteral("lblSelect"), QStringLiteral("Číslo:"));
    auto* box = named<QGroupBox>(QStringLiteral("gb"), QStringLiteral("Ceny"));
    auto* button = named<QPushButton>(QStringLiteral("OkBtn"), QStringLiteral("OK"));
    button->setToolTip(QStringLiteral("Uloží"));
    replaceAll("Translated");
    for (const QString& text : {form.windowTitle(), label->text(), box->title(), button->text(), button->toolTip()}) {
        EXPECT_EQ(text, QStringLiteral("Translated"));
    }
}

TEST_F(FormTextsTest, AReplacementAfterTheControlWentIsHarmless) {
    auto* label = named<QLabel>(QStringLiteral("lblSelect"), QStringLiteral("Číslo:"));
    std::function<void(const AnsiString&)> replace;
    VisitFormTexts(form, [&](const TLocalizableForm::TText& text) { replace = text.Replace; });
    delete label;
    ASSERT_TRUE(replace);
    replace("Number:");
    EXPECT_THAT(texts(), IsEmpty());
}
