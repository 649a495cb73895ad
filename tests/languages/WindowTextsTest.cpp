#include "dialogs/MelvarkEditorColumnPropWin.h"
#include "dialogs/MelvarkEditorSettingsWin.h"
#include "editors/MelvarkEditorDodObjEditWin.h"
#include "editors/MelvarkEditorDodakEditWin.h"
#include "host/Exceptions.h"
#include "host/widgets/MessageBox.h"
#include "refhost/CompanyOptions.h"
#include "refhost/ErrorDialog.h"
#include "refhost/lookup/LookupDialog.h"
#include "refhost/screens/MainWindow.h"
#include "select/MelvarkEditorMultiSelectWin.h"
#include "select/MelvarkEditorSelectWin.h"
#include "tests/languages/TranslatingHost.h"
#include "tests/refhost/ScreenRows.h"
#include "tests/refhost/TableRows.h"
#include "tests/support/DodObjScripts.h"
#include "tests/support/DodakScripts.h"
#include "tests/widgets/ModalDriver.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTabBar>
#include <QTest>

#include <gmock/gmock.h>
#include <map>

namespace {

/// Every window in one language, shown once on a recording host.
class WindowTexts : public testing::TestWithParam<const char*> {
protected:
    WindowTexts() {
        scriptDodakEditor(host_.connection);
        scriptDodObjEditor(host_.connection);
        host_.connection.answerQuery("select * from SCREEN_DODAK_V order by _ID", deliveryNotes());
        host_.connection.answerQuery("select * from SCREEN_DODAK_LINES_V where _DOCID = 101 order by PORADI, _ID",
                                     linesOf(101));
    }

    /// Shows each window in turn and hands it over under a name.
    void forEachWindow(const std::function<void(const std::string& name, QWidget& window)>& look);

private:
    void showSelections(const std::function<void(const std::string&, QWidget&)>& look);
    void showBoxes(const std::function<void(const std::string&, QWidget&)>& look);

    static void shown(const std::string& name, QWidget& window,
                      const std::function<void(const std::string&, QWidget&)>& look) {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window)) << name;
        look(name, window);
        window.hide();
    }

    TranslatingHost host_{GetParam()};
    TScopedHost scope_{host_};
    TranslatingLibraryManager manager_{host_};
    const TFormatSettings settings_ = TFormatSettings::Czech();
};

void WindowTexts::showSelections(const std::function<void(const std::string&, QWidget&)>& look) {
    const std::pair<const char*, std::function<void(TSelectBox&)>> setUps[] = {
        {"note from order", [](TSelectBox& box) { box.DodakSelectFromObjednavka(1, 1); }},
        {"note from note", [](TSelectBox& box) { box.DodakSelectFromDodak(1, 1); }},
        {"order from template", [](TSelectBox& box) { box.DodObjSelectFromObjednavkaVzor(1, 1, 1); }},
        {"order from order", [](TSelectBox& box) { box.DodObjSelectFromObjednavka(1, 1, 1); }},
        {"order from note", [](TSelectBox& box) { box.DodObjSelectFromDodak(1, 1, 1); }},
        {"order from price list", [](TSelectBox& box) { box.DodObjSelectFromDodCenik(1, {}); }},
        {"order from deliveries", [](TSelectBox& box) { box.DodObjSelectFromDodavky(1, "", {}); }},
        {"order from its supplier's deliveries", [](TSelectBox& box) { box.DodObjSelectFromDodavky(1, "Mlýn", {}); }},
    };
    for (const auto& [name, setUp] : setUps) {
        TSelectBox box(nullptr, &manager_);
        setUp(box);
        shown(name, box, look);
    }
    TMultiSelectBox groups(nullptr, &manager_);
    groups.DodObjSelectSkupSkladPol(1);
    shown("order from stock groups", groups, look);
}

void WindowTexts::showBoxes(const std::function<void(const std::string&, QWidget&)>& look) {
    for (const int flags : {c_MessageBoxError, c_MessageBoxQuestion}) {
        const ModalDriver driver(QStringLiteral("MessageBox"), [&](QWidget& box) {
            look("message box " + std::to_string(flags), box);
            box.close();
        });
        ApplicationMessageBox("Text", "Title", flags);
    }
}

void WindowTexts::forEachWindow(const std::function<void(const std::string& name, QWidget& window)>& look) {
    showSelections(look);
    showBoxes(look);
    TSettingsBox settings(nullptr, &manager_);
    shown("settings", settings, look);
    TColumnPropertyBox column(nullptr, &manager_);
    shown("column properties", column, look);
    {
        TDodakEditBox editor(qApp, &manager_, "SABLONA", 7, 40);
        shown("editor", editor, [&](const std::string& name, QWidget& window) {
            ASSERT_NE(editor.ActiveEditor(), nullptr);
            look(name, window);
        });
    }
    for (const bool isTemplate : {false, true}) {
        TDodObjEditBox editor(qApp, &manager_, isTemplate, "SABLONA", 7, 3, 5, "Praha", "Lípa", {});
        shown(isTemplate ? "template editor" : "order editor", editor, [&](const std::string& name, QWidget& window) {
            ASSERT_NE(editor.ActiveEditor(), nullptr);
            look(name, window);
        });
    }
    refhost::MainWindow main({.connection = host_.connection,
                              .settings = settings_,
                              .languages = host_.languages(),
                              .user = "novakova",
                              .database = "firma.db",
                              .insertLines = [](const std::string&, TDataSet&) { return false; },
                              .moduleMissing = {}});
    main.start();
    shown("main window", main, look);
    refhost::LookupDialog list(rowsOf(deliveryNotes()), "CISLO", "_ID", settings_, host_.languages(), nullptr);
    shown("lookup list", list, look);
    refhost::ErrorDialog error({.sentence = "Sentence.", .details = "Details."}, host_.languages(), nullptr);
    shown("error", error, look);
}

/// The caption that gives a widget its letter; empty for a widget whose caption gives none.
QString captionOf(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->text();
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
        return box->title();
    }
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label && label->buddy() ? label->text() : QString();
}

QString letterOf(const QString& caption) {
    const QKeySequence key = QKeySequence::mnemonic(caption);
    return key.isEmpty() ? QString() : key.toString();
}

TEST_P(WindowTexts, EachLetterBelongsToOneControlOfItsWindow) {
    forEachWindow([](const std::string& name, QWidget& window) {
        SCOPED_TRACE(name);
        std::map<QString, QString> taken;
        const auto take = [&](const QString& caption) {
            const QString letter = letterOf(caption);
            if (letter.isEmpty()) {
                return;
            }
            const auto [other, isFree] = taken.emplace(letter, caption);
            EXPECT_TRUE(isFree) << caption.toStdString() << " against " << other->second.toStdString();
        };
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible()) {
                take(captionOf(*widget));
            }
        }
        for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
            for (const QAction* menu : bar->actions()) {
                take(menu->text());
            }
        }
        const bool hasLetters = name != "message box 16" && name != "settings" && name != "column properties";
        EXPECT_THAT(taken.size(), testing::Ge(hasLetters ? 2u : 0u));
    });
}

TEST_P(WindowTexts, TheEditorLeavesTheLettersOfItsCellsAlone) {
    forEachWindow([](const std::string& name, QWidget& window) {
        if (name != "editor") {
            return;
        }
        // In a cell Alt+C switches the recalculation off and Alt+P on: only the box of the recalculation may bear them.
        for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
            const QString letter = letterOf(button->text());
            EXPECT_NE(letter, u"Alt+C") << button->text().toStdString();
            EXPECT_EQ(letter == u"Alt+P", button->objectName() == u"chbPrepocetCen") << button->text().toStdString();
        }
    });
}

bool isControl(const QWidget& widget) {
    const bool isPartOfAnother = qobject_cast<const QHeaderView*>(&widget) != nullptr ||
                                 widget.inherits("QTableCornerButton") || widget.objectName().startsWith(u"qt_") ||
                                 (qobject_cast<const QAbstractButton*>(&widget) != nullptr &&
                                  qobject_cast<const QLineEdit*>(widget.parentWidget()) != nullptr);
    return widget.isVisible() && !isPartOfAnother &&
           (widget.focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton*>(&widget) != nullptr);
}

TEST_P(WindowTexts, EveryControlHasAnAccessibleName) {
    std::size_t controls = 0;
    forEachWindow([&](const std::string& name, QWidget& window) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(window.windowTitle().isEmpty());
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (!isControl(*widget)) {
                continue;
            }
            ++controls;
            QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(accessible, nullptr);
            EXPECT_FALSE(accessible->text(QAccessible::Name).trimmed().isEmpty())
                << widget->metaObject()->className() << " " << widget->objectName().toStdString();
        }
    });
    EXPECT_GT(controls, 40u);
}

INSTANTIATE_TEST_SUITE_P(Languages, WindowTexts, testing::ValuesIn(refhost::c_languages),
                         [](const auto& row) { return row.param; });

} // namespace
