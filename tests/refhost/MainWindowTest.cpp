#include "refhost/screens/MainWindow.h"

#include "host/Exceptions.h"
#include "refhost/CompanyOptions.h"
#include "refhost/tables/ResultModel.h"
#include "tests/refhost/MainWindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolBar>
#include <QToolButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace refhost {

namespace {

using testing::ElementsAre;

class MainWindowTest : public MainWindowFixture {};

TEST_F(MainWindowTest, OpensOnTheDeliveryNotesNewestFirstWithTheCursorInThem) {
    open();

    EXPECT_TRUE(documents().hasFocus());
    EXPECT_EQ(rowText(shownDocuments(), 0), "DL-9 | 1.2.2027 | Železárny | otevřený | 2");
    EXPECT_EQ(rowText(shownDocuments(), 2), "DL-10 | 31.12.2026 | Čapek | uzavřený | 10");
    EXPECT_EQ(documents().currentKey(), "101");
    EXPECT_EQ(linesTitle(), u"Položky dokladu DL-9");
    EXPECT_EQ(rowText(lines().result(), 0), "1 | Položka dokladu 101 | 1,5");
}

TEST_F(MainWindowTest, TheLinesFollowTheCurrentDocument) {
    open();

    press(Qt::Key_Down);

    EXPECT_EQ(documents().currentKey(), "103");
    EXPECT_EQ(linesTitle(), u"Položky dokladu DL-11");
    EXPECT_EQ(rowText(lines().result(), 0), "1 | Položka dokladu 103 | 1,5");
    EXPECT_THAT(host_.connection.takeCalls(), ElementsAre(linesQuery("DODAK", 103))); // once
}

TEST_F(MainWindowTest, DocumentsThatInsertedLinesMadeAreNamedInTheStatusLine) {
    changed_ = true;
    open();
    press(Qt::Key_2, Qt::ControlModifier); // the orders
    EXPECT_EQ(newDocuments().text(), QString());

    whileInserting_ = [this] {
        answerOrders({{9, "OB-1"}, {12, "OB-2"}, {13, "OB-3"}});
        answerCreated({12, 13});
    };
    press(Qt::Key_F8);
    EXPECT_EQ(newDocuments().text(), QStringLiteral("Nové doklady: OB-2, OB-3"));
    EXPECT_EQ(newDocuments().toolTip(), newDocuments().text());
    EXPECT_EQ(documents().currentKey(), "9") << "the order that was filled stays current";

    whileInserting_ = [] {};
    press(Qt::Key_F8);
    EXPECT_EQ(newDocuments().text(), QString()) << "nothing came of the next one";
}

TEST_F(MainWindowTest, AnotherClerksNewDocumentIsShownButNotNamed) {
    changed_ = true;
    open();
    press(Qt::Key_2, Qt::ControlModifier);
    whileInserting_ = [this] {
        answerOrders({{9, "OB-1"}, {12, "OB-2 jiného"}, {13, "OB-3"}});
        answerCreated({13});
    };
    press(Qt::Key_F8);
    EXPECT_EQ(newDocuments().text(), QStringLiteral("Nové doklady: OB-3"));
    EXPECT_EQ(shownDocuments().rowCount(), 3);
}

TEST_F(MainWindowTest, ANumberThatLooksLikeMarkupIsShownLetterForLetterAndSoInTheHint) {
    changed_ = true;
    open();
    press(Qt::Key_2, Qt::ControlModifier);
    whileInserting_ = [this] {
        answerOrders({{9, "OB-1"}, {12, "<b>OB-2</b> & 1"}});
        answerCreated({12});
    };
    press(Qt::Key_F8);
    const QString told = QStringLiteral("Nové doklady: <b>OB-2</b> & 1");
    EXPECT_EQ(newDocuments().text(), told);
    EXPECT_EQ(newDocuments().textFormat(), Qt::PlainText);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(newDocuments().toolTip()).toPlainText(), told);
}

TEST_F(MainWindowTest, NothingIsNamedWhenNoLinesWereInserted) {
    open();
    press(Qt::Key_2, Qt::ControlModifier);
    whileInserting_ = [this] {
        answerOrders({{9, "OB-1"}, {12, "OB-2"}});
        answerCreated({12});
    };
    press(Qt::Key_F8);
    EXPECT_EQ(newDocuments().text(), QString());
}

TEST_F(MainWindowTest, ADatabaseThatDoesNotTellNewDocumentsTakesLinesAndNothingIsNamed) {
    changed_ = true;
    open();
    press(Qt::Key_2, Qt::ControlModifier);
    host_.connection.refuseQuery(c_createdQuery, "no such view");
    whileInserting_ = [this] { answerOrders({{9, "OB-1"}, {12, "OB-2"}}); };

    press(Qt::Key_F8);

    EXPECT_THAT(executed_, ElementsAre("DODOBJ 9"));
    EXPECT_THAT(host_.errors(), ElementsAre());
    EXPECT_EQ(shownDocuments().rowCount(), 2);
    EXPECT_EQ(newDocuments().text(), QString());
}

TEST_F(MainWindowTest, ADatabaseThatTellsNewDocumentsInItsOwnWayTakesLinesAndNothingIsNamed) {
    changed_ = true;
    open();
    press(Qt::Key_2, Qt::ControlModifier);
    for (const TDbValue& id : {TDbValue(), TDbValue(AnsiString("12"))}) {
        host_.connection.answerQuery(c_createdQuery, {.Columns = {"_ID"}, .Rows = {{id}}});
        press(Qt::Key_F8);
        EXPECT_EQ(newDocuments().text(), QString());
    }
    EXPECT_THAT(executed_, ElementsAre("DODOBJ 9", "DODOBJ 9"));
    EXPECT_THAT(host_.errors(), ElementsAre());
}

TEST_F(MainWindowTest, WhatWasMadeBeforeADatabaseBeganToTellIsNotNamed) {
    changed_ = true;
    open();
    press(Qt::Key_2, Qt::ControlModifier);
    host_.connection.refuseQuery(c_createdQuery, "no such view");
    whileInserting_ = [this] {
        answerOrders({{9, "OB-1"}, {12, "OB-2"}});
        answerCreated({9, 12});
    };

    press(Qt::Key_F8);

    EXPECT_EQ(newDocuments().text(), QString());
}

TEST_F(MainWindowTest, MovingSidewaysReadsNothing) {
    open();
    press(Qt::Key_Right);
    EXPECT_THAT(host_.connection.takeCalls(), ElementsAre());
}

TEST_F(MainWindowTest, TypingInTheDocumentsSearchesAndEscapeShowsThemAllAgain) {
    open();

    QTest::keyClicks(focusedWidget(), QStringLiteral("capek")); // the first key moves the cursor to the search line
    EXPECT_EQ(search().text(), u"capek");
    EXPECT_EQ(shownDocuments().rowCount(), 1);
    EXPECT_EQ(linesTitle(), u"Položky dokladu DL-10");
    EXPECT_EQ(screen().findChild<QLabel*>(QStringLiteral("countLabel"))->text(), u"1 z 3");

    press(Qt::Key_Escape);
    EXPECT_EQ(shownDocuments().rowCount(), 3);
    EXPECT_EQ(documents().currentKey(), "102"); // what was found stays current
}

TEST_F(MainWindowTest, ASearchThatMatchesNothingLeavesNoDocumentAndNoLines) {
    open();

    search().setFocus();
    QTest::keyClicks(&search(), QStringLiteral("nikde"));

    EXPECT_EQ(linesTitle(), u"Není vybrán žádný doklad");
    EXPECT_EQ(lines().result().rowCount(), 0);
}

TEST_F(MainWindowTest, ColumnsGrowWithLongerTextsUntilSomebodySetsAWidth) {
    open();
    const int before = lines().columnWidth(1);
    TResultTable longer = linesOf(103);
    longer.Rows[0][3] = AnsiString("Mnohem delší název skladové položky");
    host_.connection.answerQuery(linesQuery("DODAK", 103), longer);

    press(Qt::Key_Down);
    const int grown = lines().columnWidth(1);
    EXPECT_GT(grown, before);
    press(Qt::Key_Up);
    EXPECT_EQ(lines().columnWidth(1), grown);

    lines().setColumnWidth(1, before); // what a drag of the heading does
    press(Qt::Key_Down);
    EXPECT_EQ(lines().columnWidth(1), before);
}

TEST_F(MainWindowTest, ARefreshKeepsTheCurrentDocumentAndTheOrder) {
    open();
    press(Qt::Key_Down);
    TResultTable changed = deliveryNotes();
    changed.Rows.insert(changed.Rows.begin(), changed.Rows[0]);
    changed.Rows[0][0] = std::int64_t{104};
    changed.Rows[0][1] = AnsiString("DL-12");
    changed.Rows[0][2] = AnsiString("2.2.2027");
    host_.connection.answerQuery(c_documentsQuery, changed);
    host_.connection.takeCalls();

    press(Qt::Key_F5);

    EXPECT_EQ(rowText(shownDocuments(), 0), "DL-12 | 2.2.2027 | Železárny | otevřený | 2");
    EXPECT_EQ(documents().currentKey(), "103");
    EXPECT_THAT(host_.connection.takeCalls(), ElementsAre(c_documentsQuery, linesQuery("DODAK", 103)));
}

TEST_F(MainWindowTest, ARefreshAfterWhichTheDocumentIsGoneTakesItsNeighbour) {
    open();
    press(Qt::Key_Down);
    TResultTable changed = deliveryNotes();
    changed.Rows.erase(changed.Rows.begin() + 2);
    host_.connection.answerQuery(c_documentsQuery, changed);

    press(Qt::Key_F5);

    EXPECT_EQ(documents().currentKey(), "102");
    EXPECT_EQ(linesTitle(), u"Položky dokladu DL-10");
}

TEST_F(MainWindowTest, TheOtherScreensAreReachedByKeyAndReadWhenTheyComeForward) {
    open();

    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(screen().objectName(), u"DODOBJ");
    EXPECT_TRUE(documents().hasFocus());
    EXPECT_THAT(host_.connection.takeCalls(),
                ElementsAre("select * from SCREEN_DODOBJ_V order by _ID", linesQuery("DODOBJ", 9)));

    press(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(screen().objectName(), u"DODOBJVZOR");
    EXPECT_EQ(linesTitle(), u"Není vybrán žádný doklad");

    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(screen().objectName(), u"DODAK");
}

TEST_F(MainWindowTest, TheKeyInsertsLinesIntoTheCurrentDocumentOfTheScreen) {
    open();
    press(Qt::Key_Down);
    press(Qt::Key_F8);
    press(Qt::Key_2, Qt::ControlModifier);
    press(Qt::Key_F8);

    EXPECT_THAT(executed_, ElementsAre("DODAK 103", "DODOBJ 9"));
}

TEST_F(MainWindowTest, TheButtonAndTheMenuInsertLinesToo) {
    open();
    QAction& action = *window_->findChild<QAction*>(QStringLiteral("insertLinesAction"));
    QWidget* button = window_->findChild<QToolBar*>(QStringLiteral("tools"))->widgetForAction(&action);

    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_THAT(executed_, ElementsAre("DODAK 101"));

    press(Qt::Key_D, Qt::AltModifier); // opens the menu "Doklad"
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_V);
    EXPECT_THAT(executed_, ElementsAre("DODAK 101", "DODAK 101"));
}

TEST_F(MainWindowTest, ChangedLinesAreShownAndTheDocumentStaysCurrent) {
    open();
    press(Qt::Key_Down);
    changed_ = true;
    host_.connection.takeCalls();

    press(Qt::Key_F8);

    EXPECT_EQ(documents().currentKey(), "103");
    EXPECT_THAT(host_.connection.takeCalls(), ElementsAre(c_documentsQuery, linesQuery("DODAK", 103)));
}

TEST_F(MainWindowTest, NothingIsReadAgainWhenNothingChanged) {
    open();
    press(Qt::Key_F8);
    EXPECT_THAT(host_.connection.takeCalls(), ElementsAre());
}

TEST_F(MainWindowTest, AReportOnAProblemIsWrittenByKeyAndFromTheMenu) {
    int reports = 0;
    writeReport_ = [&] { ++reports; };
    open();

    press(Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(reports, 1);

    press(Qt::Key_S, Qt::AltModifier); // opens the menu "Soubor"
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_H);
    EXPECT_EQ(reports, 2);
}

TEST_F(MainWindowTest, AReportThatCannotBeWrittenIsToldAndTheWindowGoesOn) {
    writeReport_ = [] { throw EInOutError("Hlášení nelze zapsat."); };
    open();
    press(Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(host_.errors(), ElementsAre("Hlášení nelze zapsat."));
    press(Qt::Key_Down);
    EXPECT_EQ(documents().currentKey(), "103");
}

TEST_F(MainWindowTest, AnErrorOfTheItemIsShownAndTheWindowGoesOn) {
    insertLines_ = [](const std::string&, TDataSet&) -> bool { throw EDatabaseError("Doklad je uzavřený."); };
    open();

    press(Qt::Key_F8);

    EXPECT_THAT(host_.errors(), ElementsAre("Doklad je uzavřený."));
    press(Qt::Key_Down);
    EXPECT_EQ(documents().currentKey(), "103");
}

TEST_F(MainWindowTest, AnErrorOfARefreshIsShownAndWhatWasReadStays) {
    open();
    host_.connection.refuseQuery(c_documentsQuery, "Spojení se ztratilo.");

    press(Qt::Key_F5);

    EXPECT_THAT(host_.errors(), ElementsAre("Spojení se ztratilo."));
    EXPECT_EQ(shownDocuments().rowCount(), 3);
}

TEST_F(MainWindowTest, AMissingModuleIsToldAndTheScreensWork) {
    open("Modul „MelvarkEditor.so“ nebyl nalezen.");

    EXPECT_EQ(window_->findChild<QLabel*>(QStringLiteral("moduleNotice"))->text(),
              u"Vkládání položek není k dispozici. Modul „MelvarkEditor.so“ nebyl nalezen.");
    EXPECT_FALSE(window_->findChild<QAction*>(QStringLiteral("insertLinesAction"))->isEnabled());
    press(Qt::Key_F8);
    EXPECT_THAT(executed_, ElementsAre());
    press(Qt::Key_Down);
    EXPECT_EQ(documents().currentKey(), "103");
}

TEST_F(MainWindowTest, TheStatusBarNamesUserAndDatabase) {
    open();
    EXPECT_EQ(window_->findChild<QLabel*>(QStringLiteral("userLabel"))->text(), u"Uživatel: novakova");
    EXPECT_EQ(window_->findChild<QLabel*>(QStringLiteral("databaseLabel"))->text(), u"Databáze: /data/firma.sqlite");
}

TEST_F(MainWindowTest, ClosingItSaysSo) {
    open();
    int closed = 0;
    QObject::connect(window_.get(), &MainWindow::closed, [&] { ++closed; });

    press(Qt::Key_Q, Qt::ControlModifier);

    EXPECT_EQ(closed, 1);
    EXPECT_FALSE(window_->isVisible());
}

/// The letters that captions of the texts give to the keyboard, each once.
void expectUniqueMnemonics(const QList<QAction*>& actions) {
    std::set<QString> letters;
    for (const QAction* action : actions) {
        const qsizetype mark = action->text().indexOf(u'&');
        const QString letter = mark >= 0 ? action->text().mid(mark + 1, 1).toLower() : QString();
        EXPECT_FALSE(letter.isEmpty()) << action->text().toStdString();
        EXPECT_TRUE(letters.insert(letter).second) << action->text().toStdString();
    }
}

class MainWindowLanguage : public testing::TestWithParam<const char*> {};

TEST_P(MainWindowLanguage, EveryMenuEntryHasALetterOfItsOwn) {
    RecordingHost host;
    const TFormatSettings settings = TFormatSettings::Czech();
    const Languages languages(GetParam());
    const MainWindow window({.connection = host.connection,
                             .settings = settings,
                             .languages = languages,
                             .user = {},
                             .database = {},
                             .insertLines = {},
                             .moduleMissing = {},
                             .look = {}});

    expectUniqueMnemonics(window.menuBar()->actions());
    for (const QAction* menu : window.menuBar()->actions()) {
        QList<QAction*> entries = menu->menu()->actions();
        entries.removeIf([](const QAction* action) { return action->isSeparator(); });
        expectUniqueMnemonics(entries);
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowLanguage, testing::ValuesIn(refhost::c_languages),
                         [](const auto& row) { return row.param; });

} // namespace

} // namespace refhost
