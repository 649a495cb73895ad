#include "refhost/HostLibraryManager.h"

#include "host/Exceptions.h"
#include "refhost/HostApplication.h"
#include "refhost/Languages.h"
#include "refhost/Trace.h"
#include "tests/refhost/FocusedWidget.h"
#include "tests/refhost/ScreenRows.h"
#include "tests/refhost/TableRows.h"
#include "tests/support/RecordingHost.h"
#include "tests/widgets/ModalDriver.h"

#include <QMessageBox>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace refhost {

namespace {

using testing::HasSubstr;

/// A form of two texts whose replaced captions are kept.
class TestForm : public TLocalizableForm {
public:
    void VisitTexts(const std::function<void(const TText&)>& visit) override {
        visit({"TestLabel", "Caption", "Zkouška", [this](const AnsiString& text) { caption = text; }});
        visit({"CancelBtn", "Caption", "&Zrušit", [this](const AnsiString& text) { button = text; }});
    }

    AnsiString caption;
    AnsiString button;
};

class HostLibraryManagerTest : public testing::Test {
protected:
    std::shared_ptr<RowReader> openRows(const AnsiString& sql) {
        lastOpened_ = sql;
        return rowsOf(host_.connection.Query(sql));
    }
    /// The view's answer to a condition, as the list asks for its columns and as it asks for its rows.
    void answerList(const AnsiString& query) {
        host_.connection.answerQuery(query, deliveryNotes());
        host_.connection.answerQuery(query + " order by CISLO", deliveryNotes());
    }

    AnsiString lastOpened_;
    RecordingHost host_;
    TScopedHost scope_{host_};
    Languages languages_{"cs"};
    std::ostringstream* output_ = new std::ostringstream; // owned by the trace
    Trace trace_{std::unique_ptr<std::ostream>(output_)};
    HostLibraryManager manager_{{.openRows = [this](const AnsiString& sql) { return openRows(sql); },
                                 .settings = TFormatSettings::Czech(),
                                 .languages = languages_,
                                 .trace = trace_}};
};

TEST_F(HostLibraryManagerTest, AQuestionIsAnsweredByKeyAndTraced) {
    QString caption;
    const ModalDriver driver({}, [&](QWidget& box) {
        caption = box.windowTitle();
        QTest::keyClick(&box, Qt::Key_Return); // the first button
    });

    EXPECT_EQ(manager_.MessageBox("Obnovit neuložená data?", c_MessageBoxQuestion), c_ResultYes);

    EXPECT_EQ(caption, u"Potvrzení");
    EXPECT_EQ(output_->str(), "{\"box\":\"Obnovit neuložená data?\",\"flags\":36,\"result\":6}\n");
}

TEST_F(HostLibraryManagerTest, AnErrorBoxIsNamedSo) {
    QString caption;
    const ModalDriver driver({}, [&](QWidget& box) {
        caption = box.windowTitle();
        QTest::keyClick(&box, Qt::Key_Escape);
    });

    EXPECT_EQ(manager_.MessageBox("Chybná hodnota", c_MessageBoxError), c_ResultOk);

    EXPECT_EQ(caption, u"Chyba");
    EXPECT_EQ(output_->str(), "{\"box\":\"Chybná hodnota\",\"flags\":16,\"result\":1}\n");
}

TEST_F(HostLibraryManagerTest, ANoteIsShownAndTraced) {
    QString text;
    const ModalDriver driver({}, [&](QWidget& box) {
        text = qobject_cast<QMessageBox*>(&box)->text();
        QTest::keyClick(&box, Qt::Key_Return);
    });

    manager_.Message("Nepodporovaný typ editace dokladu", "O#");

    EXPECT_EQ(text, u"Nepodporovaný typ editace dokladu");
    EXPECT_EQ(output_->str(), "{\"message\":\"Nepodporovaný typ editace dokladu\",\"style\":\"O#\"}\n");
}

TEST_F(HostLibraryManagerTest, ALookupGivesDisplayAndKeyOfThePickedRow) {
    answerList("select * from DODAK_NORMAL_V where _DODVID=3");
    const ModalDriver driver(QStringLiteral("lookupDialog"), [](QWidget&) {
        QTest::keyClicks(focusedWidget(), QStringLiteral("chladek"));
        QTest::keyClick(focusedWidget(), Qt::Key_Return);
    });

    const auto pick = manager_.LookupList("Kordan3:DODAK.Normal", "CISLO", "_ID", "_DODVID=3");

    ASSERT_TRUE(pick);
    EXPECT_EQ(pick->Display, "DL-11");
    EXPECT_EQ(pick->Key, "103");
    EXPECT_EQ(output_->str(), "{\"lookup\":\"Kordan3:DODAK.Normal\",\"display\":\"CISLO\",\"key\":\"_ID\","
                              "\"condition\":\"_DODVID=3\",\"picked\":\"103\"}\n");
}

TEST_F(HostLibraryManagerTest, ALookupListIsReadInTheOrderInWhichItIsShown) {
    answerList("select * from DODAK_NORMAL_V where _DODVID=3");
    const ModalDriver driver(QStringLiteral("lookupDialog"),
                             [](QWidget&) { QTest::keyClick(focusedWidget(), Qt::Key_Escape); });

    manager_.LookupList("Kordan3:DODAK.Normal", "CISLO", "_ID", "_DODVID=3");

    EXPECT_EQ(lastOpened_, "select * from DODAK_NORMAL_V where _DODVID=3 order by CISLO");
}

TEST_F(HostLibraryManagerTest, ALookupThatIsLeftGivesNothing) {
    answerList("select * from DODAK_NORMAL_V");
    const ModalDriver driver(QStringLiteral("lookupDialog"),
                             [](QWidget&) { QTest::keyClick(focusedWidget(), Qt::Key_Escape); });

    EXPECT_FALSE(manager_.LookupList("Kordan3:DODAK.Normal", "CISLO", "_ID", ""));
    EXPECT_THAT(output_->str(), HasSubstr("\"picked\":null"));
}

TEST_F(HostLibraryManagerTest, AListThatLacksAColumnIsNamed) {
    answerList("select * from DODAK_NORMAL_V");
    try {
        manager_.LookupList("Kordan3:DODAK.Normal", "JMENO", "_ID", "");
        FAIL() << "opened";
    } catch (const EHostError& error) {
        EXPECT_EQ(error.Message(), "Seznam „Kordan3:DODAK.Normal“ nemá sloupec JMENO.");
    }
}

TEST_F(HostLibraryManagerTest, AConditionThatTheDatabaseRefusesReachesTheCaller) {
    host_.connection.refuseQuery("select * from DODAK_NORMAL_V where V_NENI(_ID)=1", "Funkce V_NENI neexistuje.");
    EXPECT_THROW(manager_.LookupList("Kordan3:DODAK.Normal", "CISLO", "_ID", "V_NENI(_ID)=1"), EDatabaseError);
}

TEST_F(HostLibraryManagerTest, ReplacesTheTextsOfAFormThatTheLanguageHas) {
    const Languages english("en");
    HostLibraryManager manager({.openRows = [this](const AnsiString& sql) { return openRows(sql); },
                                .settings = TFormatSettings::Czech(),
                                .languages = english,
                                .trace = trace_});
    TestForm form;

    manager.LocalizeForm(form, R"(KORDAN30\MelvarkEditorSelectWin)");

    EXPECT_EQ(form.button, "&Cancel");
    EXPECT_EQ(form.caption, ""); // the catalogue has none: the built-in text stays
}

} // namespace

} // namespace refhost
