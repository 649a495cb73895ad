#include "dialogs/MelvarkEditorColumnPropWin.h"
#include "dialogs/MelvarkEditorSettingsWin.h"
#include "editors/MelvarkEditorDodObjEditWin.h"
#include "editors/MelvarkEditorDodakEditWin.h"
#include "host/widgets/MessageBox.h"
#include "refhost/ErrorDialog.h"
#include "refhost/Languages.h"
#include "refhost/lookup/LookupDialog.h"
#include "refhost/screens/MainWindow.h"
#include "select/MelvarkEditorMultiSelectWin.h"
#include "select/MelvarkEditorSelectWin.h"
#include "tests/refhost/ScreenRows.h"
#include "tests/refhost/TableRows.h"
#include "tests/support/DodObjScripts.h"
#include "tests/support/DodakScripts.h"
#include "tests/support/RecordingHost.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>
#include <malloc.h>

// A clerk opens windows all day: whatever one of them leaves behind adds up.

namespace {

constexpr int c_RoundsBefore = 200; ///< In which fonts, styles and caches come for good.
constexpr int c_Rounds = 1000;
/// What the heap may hold more after all of them, in bytes. A pointer that each round left behind would be more.
constexpr long c_Tolerated = 8 * c_Rounds - 1;

/// A host that keeps no record of what it is asked for.
class ForgetfulHost final : public RecordingHost {
public:
    std::string_view ImageData(std::string_view, std::string_view) const override { return {}; }
};

/// Gives every form its own texts back.
class ForgetfulManager final : public TLibraryManager {
public:
    int MessageBox(const AnsiString&, int) override { return c_ResultNo; }
    void Message(const AnsiString&, const AnsiString&) override {}
    std::optional<TLookupPick> LookupList(const AnsiString&, const AnsiString&, const AnsiString&,
                                          const AnsiString&) override {
        return std::nullopt;
    }
    void LocalizeForm(TLocalizableForm& form, const AnsiString&) override {
        form.VisitTexts([](const TLocalizableForm::TText& text) { text.Replace(text.Text); });
    }
};

long heldBytes() {
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<long>(heap.uordblks + heap.hblkhd);
}

class WindowRounds : public testing::Test {
protected:
    WindowRounds() {
        scriptDodakEditor(host_.connection);
        scriptDodObjEditor(host_.connection);
    }
    void TearDown() override { EXPECT_TRUE(host_.errors().empty()); }

    void expectNoGrowth(const std::function<void()>& openAndClose) {
        long before = 0;
        for (int round = -c_RoundsBefore; round < c_Rounds; ++round) {
            if (round == 0) {
                before = heldBytes();
            }
            openAndClose();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            host_.connection.takeCalls();
        }
        const long growth = heldBytes() - before;
        RecordProperty("bytes", static_cast<int>(growth));
        EXPECT_LE(growth, c_Tolerated) << c_Rounds << " rounds";
    }

    /// Shows a form of the module until the clerk can use it, and closes it.
    static void show(TForm& form) {
        QTimer::singleShot(0, &form, [&] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
            form.Close();
        });
        form.ShowModal();
    }

    static void show(QWidget& window) {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        window.close();
    }

    ForgetfulHost host_;
    TScopedHost scope_{host_};
    ForgetfulManager manager_;
    refhost::Languages languages_{"cs"};
};

TEST_F(WindowRounds, OfTheDeliveryNotesEditorLeaveNothingBehind) {
    expectNoGrowth([this] {
        TDodakEditBox editor(qApp, &manager_, "SABLONA", 7, 40);
        show(editor);
    });
}

TEST_F(WindowRounds, OfTheOrdersEditorLeaveNothingBehind) {
    expectNoGrowth([this] {
        TDodObjEditBox editor(qApp, &manager_, false, "SABLONA", 7, 3, 5, "Praha", "Lípa", host_.now);
        show(editor);
    });
}

TEST_F(WindowRounds, OfTheDocumentSelectionLeaveNothingBehind) {
    expectNoGrowth([this] {
        TSelectBox box(nullptr, &manager_);
        box.DodakSelectFromObjednavka(7, 5);
        show(box);
    });
}

TEST_F(WindowRounds, OfTheGroupSelectionLeaveNothingBehind) {
    expectNoGrowth([this] {
        TMultiSelectBox box(nullptr, &manager_);
        box.DodObjSelectSkupSkladPol(7);
        show(box);
    });
}

TEST_F(WindowRounds, OfTheColumnsPropertiesLeaveNothingBehind) {
    expectNoGrowth([this] {
        TColumnPropertyBox box(nullptr, &manager_);
        show(box);
    });
}

TEST_F(WindowRounds, OfTheLayoutsNameLeaveNothingBehind) {
    expectNoGrowth([this] {
        TSettingsBox box(nullptr, &manager_);
        show(box);
    });
}

TEST_F(WindowRounds, OfTheMessageBoxLeaveNothingBehind) {
    expectNoGrowth([] {
        QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
        ApplicationMessageBox("Opravdu?", "Melvark", c_MessageBoxQuestion);
    });
}

TEST_F(WindowRounds, OfTheErrorLeaveNothingBehind) {
    expectNoGrowth([this] {
        refhost::ErrorDialog dialog({.sentence = "Doklad je uzavřený.", .details = "Kód: ML003"}, languages_, nullptr);
        show(dialog);
    });
}

TEST_F(WindowRounds, OfTheLookupListLeaveNothingBehind) {
    expectNoGrowth([this] {
        refhost::LookupDialog dialog(rowsOf(deliveryNotes()), "CISLO", "_ID", TFormatSettings::Czech(), languages_,
                                     nullptr);
        show(dialog);
    });
}

TEST_F(WindowRounds, OfTheHostsWindowLeaveNothingBehind) {
    for (const char* screen : {"DODAK", "DODOBJ", "DODOBJVZOR"}) {
        host_.connection.answerQuery("select * from SCREEN_" + AnsiString(screen) + "_V order by _ID",
                                     {.Columns = {"_ID", "CISLO"}, .Rows = {}});
    }
    host_.connection.answerQuery("select _ID from SCREEN_DODOBJ_CREATED_V", {.Columns = {"_ID"}, .Rows = {}});
    const TFormatSettings settings = TFormatSettings::Czech();
    expectNoGrowth([&] {
        refhost::MainWindow window({.connection = host_.connection,
                                    .settings = settings,
                                    .languages = languages_,
                                    .user = "novakova",
                                    .database = "/data/firma.sqlite",
                                    .insertLines = [](const std::string&, TDataSet&) { return false; },
                                    .moduleMissing = {}});
        window.start();
        show(window);
    });
}

} // namespace
