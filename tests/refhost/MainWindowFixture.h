#pragma once

#include "host/DataSet.h"
#include "refhost/Languages.h"
#include "refhost/screens/MainWindow.h"
#include "refhost/tables/ResultTable.h"
#include "tests/refhost/FocusedWidget.h"
#include "tests/refhost/ScreenRows.h"
#include "tests/support/RecordingHost.h"

#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace refhost {

inline const std::string c_documentsQuery = "select * from SCREEN_DODAK_V order by _ID";
inline const std::string c_createdQuery = "select _ID from SCREEN_DODOBJ_CREATED_V";

/// The host's window over a recorded database with three delivery notes and one order.
class MainWindowFixture : public testing::Test {
protected:
    MainWindowFixture() {
        host_.connection.answerQuery(c_documentsQuery, deliveryNotes());
        host_.connection.answerQuery("select * from SCREEN_DODOBJ_V order by _ID",
                                     {.Columns = {"_ID", "CISLO"}, .Rows = {{std::int64_t{9}, AnsiString("OB-1")}}});
        host_.connection.answerQuery("select * from SCREEN_DODOBJVZOR_V order by _ID",
                                     {.Columns = {"_ID", "CISLO"}, .Rows = {}});
        answerCreated({});
        for (const int document : {101, 102, 103}) {
            host_.connection.answerQuery(linesQuery("DODAK", document), linesOf(document));
        }
        host_.connection.answerQuery(linesQuery("DODOBJ", 9), linesOf(9));
        insertLines_ = [this](const std::string& params, TDataSet& dataSet) {
            executed_.push_back(params + " " + dataSet.FieldByName("_ID").AsString());
            whileInserting_();
            return changed_;
        };
    }

    void answerOrders(const std::vector<std::pair<std::int64_t, const char*>>& orders) {
        TResultTable table{.Columns = {"_ID", "CISLO"}, .Rows = {}};
        for (const auto& [id, number] : orders) {
            table.Rows.push_back({id, AnsiString(number)});
        }
        host_.connection.answerQuery("select * from SCREEN_DODOBJ_V order by _ID", table);
    }
    /// The orders that this session's saves have made.
    void answerCreated(const std::vector<std::int64_t>& orders) {
        TResultTable table{.Columns = {"_ID"}, .Rows = {}};
        for (const std::int64_t id : orders) {
            table.Rows.push_back({id});
        }
        host_.connection.answerQuery(c_createdQuery, table);
    }
    const QLabel& newDocuments() const { return *window_->findChild<QLabel*>(QStringLiteral("newDocumentsLabel")); }

    static std::string linesQuery(const std::string& screen, int document) {
        return "select * from SCREEN_" + screen + "_LINES_V where _DOCID = " + std::to_string(document) +
               " order by PORADI, _ID";
    }

    MainWindowParts parts(const std::string& moduleMissing = {}) {
        return {.connection = host_.connection,
                .settings = settings_,
                .languages = languages_,
                .user = "novakova",
                .database = "/data/firma.sqlite",
                .insertLines = moduleMissing.empty() ? insertLines_ : nullptr,
                .moduleMissing = moduleMissing,
                .look = look_,
                .writeReport = writeReport_};
    }

    void open(const std::string& moduleMissing = {}) {
        window_ = std::make_unique<MainWindow>(parts(moduleMissing));
        window_->start();
        window_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        host_.connection.takeCalls();
    }

    QWidget& screen() const { return *window_->findChild<QTabWidget*>(QStringLiteral("screens"))->currentWidget(); }
    ResultTable& documents() const { return *screen().findChild<ResultTable*>(QStringLiteral("documentsTable")); }
    QAbstractItemModel& shownDocuments() const { return *static_cast<QTableView&>(documents()).model(); }
    ResultTable& lines() const { return *screen().findChild<ResultTable*>(QStringLiteral("linesTable")); }
    QLineEdit& search() const { return *screen().findChild<QLineEdit*>(QStringLiteral("searchEdit")); }
    QString linesTitle() const { return screen().findChild<QLabel*>(QStringLiteral("linesTitle"))->text(); }
    static void press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(focusedWidget(), static_cast<Qt::Key>(key), modifiers);
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
    TFormatSettings settings_ = TFormatSettings::Czech();
    Languages languages_{"cs"};
    std::function<bool(const std::string&, TDataSet&)> insertLines_;
    std::vector<std::string> executed_;
    std::function<void()> whileInserting_ = [] {};
    bool changed_ = false;
    WindowLook look_;
    std::function<void()> writeReport_;
    std::unique_ptr<MainWindow> window_;
};

} // namespace refhost
