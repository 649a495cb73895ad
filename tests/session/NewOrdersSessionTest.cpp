#include "refhost/CommandLine.h"
#include "refhost/Languages.h"
#include "refhost/RunRecords.h"
#include "refhost/WindowedHost.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/Engines.h"
#include "tests/session/OnBothEngines.h"
#include "tests/session/SessionWords.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

// What the main window tells after a save, with the real module, window and database in this process.

namespace {

using refhost::Database;
using refhost::Engine;

constexpr int c_LimitMs = 20000;

/// What a clerk does, each step as soon as its window is there, also within the loops of menus and modal windows.
class Clerk {
public:
    void when(std::function<bool()> isThere, std::function<void()> act) {
        steps_.push_back({std::move(isThere), std::move(act)});
    }

    void begin() {
        waited_.start();
        lookAgain();
    }

    bool isDone() const { return steps_.empty(); }

private:
    struct Step {
        std::function<bool()> IsThere;
        std::function<void()> Act;
    };

    // A timer of its own each time: one that is at work does not fire in the loop that it has entered.
    void lookAgain() {
        QTimer::singleShot(10, &context_, [this] { look(); });
    }

    void look() {
        if (steps_.empty()) {
            return;
        }
        if (waited_.hasExpired(c_LimitMs)) {
            ADD_FAILURE() << steps_.size() << " steps were never possible";
            steps_.clear();
            QCoreApplication::exit(1);
            for (QWidget* const window : QApplication::topLevelWidgets()) {
                window->close();
            }
            return;
        }
        lookAgain();
        if (steps_.front().IsThere()) {
            const auto act = steps_.front().Act;
            steps_.pop_front();
            waited_.restart();
            act();
        }
    }

    std::deque<Step> steps_;
    QElapsedTimer waited_;
    QObject context_;
};

bool isActive(const char* objectName) {
    const QWidget* const window = QApplication::activeWindow();
    return window && window->objectName() == QLatin1String(objectName) && QApplication::focusWidget();
}

std::function<bool()> active(const char* objectName) {
    return [=] { return isActive(objectName); };
}

bool isMenuOpen() {
    return QApplication::activePopupWidget() != nullptr;
}

std::function<bool()> editorOpen(const SessionWords& words) {
    return [title = QString::fromUtf8(words.OrderEditor)] {
        const QWidget* const window = QApplication::activeModalWidget();
        return window && window->isActiveWindow() && window->windowTitle() == title;
    };
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(isMenuOpen() ? QApplication::activePopupWidget() : QApplication::focusWidget(), key, modifiers);
}

void type(const char* text) {
    for (const QChar letter : QString::fromUtf8(text)) {
        QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
    }
}

/// Another clerk's save, which makes an order of "Nápoje Švec" beside OBJ-10.
void saveAsAnotherClerk(Database& database) {
    const auto call = [&](const char* name, std::vector<TDbParam> params) {
        database.Execute({name, std::move(params), false});
    };
    call("MELVARKEDITORResetTemp", {});
    call("MELVARKEDITORDodObjInsertToTemp", {{"a_SKLADPOL", AnsiString("Sirup")},
                                             {"a_DODAVATEL", AnsiString("Nápoje Švec")},
                                             {"a_SKPLID", AnsiString("71")},
                                             {"a_MNOZSTVI", AnsiString("1")},
                                             {"a_JEDNOTKY", AnsiString("l")}});
    call("MELVARKEDITORDodObjTempUloz", {{"a_DDOBID", std::int64_t{refhost::c_EarlierOrder}}});
}

/// What the status line says, and its hint.
struct Told {
    QString Status;
    QString Hint;
};

/// OBJ-1 is filled from the template VZ-1, whose third line is of a third supplier, and saved.
Told fillFromTheTemplate(const std::string& url, Database& database, const TFormatSettings& settings,
                         const SessionWords& words, const std::function<void()>& beforeTheSave) {
    database.runScript("insert into DODOBJPOL (ID, DDOBID, PORADI, SKLPID, SKPLID, SKLDID, DODVID, MNOZSTVI) "
                       "values (703, 7, 3, 4, 41, 1, 3, '2')");
    const refhost::Languages languages(words.Language);
    refhost::CommandLine commandLine{};
    commandLine.database = url;
    refhost::RunRecords records(commandLine);
    refhost::WindowedHost host(commandLine, database, settings, languages, records);

    Told told;
    Clerk clerk;
    clerk.when(active("mainWindow"), [] {
        press(Qt::Key_2, Qt::ControlModifier);
        type("8:30"); // OBJ-1
        press(Qt::Key_Return);
        press(Qt::Key_Escape);
        press(Qt::Key_F8);
    });
    clerk.when(isMenuOpen, [] {
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        press(Qt::Key_Return);
    });
    clerk.when(active("SelectBox"), [] {
        type("VZ-1");
        press(Qt::Key_Return);
    });
    clerk.when(editorOpen(words), [&] {
        beforeTheSave();
        press(Qt::Key_Return, Qt::ControlModifier);
    });
    clerk.when(active("mainWindow"), [&] {
        const auto* const label = QApplication::activeWindow()->findChild<QLabel*>(QStringLiteral("newDocumentsLabel"));
        told = {.Status = label->text(), .Hint = label->toolTip()};
        QApplication::activeWindow()->close();
    });
    clerk.begin();
    EXPECT_EQ(host.openMainWindow(), 0);
    EXPECT_TRUE(clerk.isDone());
    return told;
}

std::size_t newOrders(Database& database) {
    return database.Query("select _ID from SCREEN_DODOBJ_V where _ID > 10").Rows.size();
}

class NewOrdersSession : public testing::TestWithParam<Engine> {
protected:
    NewOrdersSession() { refhost::addContractCompany(*database_); }

    Told fillInCzech(const std::function<void()>& beforeTheSave) const {
        return fillFromTheTemplate(url_, *database_, TFormatSettings::Czech(), c_Czech, beforeTheSave);
    }

    const std::string url_ = refhost::newDatabaseUrl(GetParam());
    const std::unique_ptr<Database> database_ = refhost::openAs(url_, "novakova");
};

TEST_P(NewOrdersSession, OfThreeSuppliersAreNamedInTheStatusLineAndAnotherClerksIsNot) {
    const auto others = refhost::openAs(url_, "dvorak");
    const Told told = fillInCzech([&] { saveAsAnotherClerk(*others); }); // OV2026-000011
    EXPECT_EQ(told.Status, QStringLiteral("Nové doklady: OV2026-000012, OV2026-000013"));
    EXPECT_EQ(told.Hint, told.Status);
    EXPECT_EQ(newOrders(*database_), 3U);
}

TEST_P(NewOrdersSession, AreNamedInEnglish) {
    const TFormatSettings settings = TFormatSettings::English();
    const auto english = refhost::openAs(url_, "novakova", settings);
    const Told told = fillFromTheTemplate(url_, *english, settings, c_English, [] {});
    EXPECT_EQ(told.Status, QStringLiteral("New documents: OV2026-000011, OV2026-000012"));
    EXPECT_EQ(newOrders(*database_), 2U);
}

TEST_P(NewOrdersSession, OfADatabaseThatCannotTellThemAreMadeAndNotNamed) {
    database_->runScript("drop view SCREEN_DODOBJ_CREATED_V");
    const Told told = fillInCzech([] {});
    EXPECT_EQ(told.Status, QString());
    EXPECT_EQ(newOrders(*database_), 2U);
}

INSTANTIATE_TEST_SUITE_P(Engines, NewOrdersSession, c_BothEngines, engineOf);

} // namespace
