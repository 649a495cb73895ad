#pragma once

#include "editwin/MelvarkEditorEditWin.h"
#include "editwin/model/DataGrid.h"
#include "host/widgets/StringGrid.h"
#include "tests/support/RecordingHost.h"
#include "tests/widgets/ModalDriver.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <functional>
#include <gmock/gmock.h>
#include <vector>

/// An editor of a document on a recording host, driven by keys while it is shown modally.
class DocumentEditorFixture : public testing::Test {
protected:
    /// Errors that nobody expected reach no clerk unseen: a test names those that it causes.
    void TearDown() override { EXPECT_EQ(host_.errors(), expectedErrors_); }

    /// Shows the editor modally, runs `use` once it is active, closes it when that left it open; the modal result.
    int showAnd(TEditBox& editor, const std::function<void()>& use) {
        wasLeftOpen_ = false;
        QTimer::singleShot(0, &editor, [&] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&editor));
            host_.connection.takeCalls();
            use();
            QTimer::singleShot(0, &editor, [&] {
                wasLeftOpen_ = editor.isVisible() && editor.ModalResult() == 0;
                if (wasLeftOpen_) {
                    editor.Close();
                }
            });
        });
        return editor.ShowModal();
    }

    /// Types into the open in-place editor and presses the key.
    static void type(const TEditBox& editor, const char* text, Qt::Key key = Qt::Key_Return,
                     Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ASSERT_NE(editor.ActiveEditor(), nullptr) << "no editor is open for " << text;
        QTest::keyClicks(editor.ActiveEditor(), QString::fromUtf8(text));
        QTest::keyClick(editor.ActiveEditor(), key, modifiers);
    }

    /// The texts of the named columns in a grid row as one line.
    static AnsiString row(const TEditBox& editor, int gridRow, const std::vector<AnsiString>& keys) {
        AnsiString line;
        for (const AnsiString& key : keys) {
            line +=
                (&key == &keys.front() ? "" : " | ") + editor.StringGrid->Cells(editor.GetColumnByName(key), gridRow);
        }
        return line;
    }

    static AnsiString stored(const TEditBox& editor, int gridRow, const AnsiString& key) {
        return editor.DataGrid().GetCells(editor.GetColumnSettings(key).DataColumn, gridRow - 1);
    }

    static bool isModified(const TEditBox& editor, int gridRow, const AnsiString& key) {
        return editor.DataGrid().GetModified(editor.GetColumnSettings(key).DataColumn, gridRow - 1);
    }

    /// Where the open in-place editor stands.
    static AnsiString openAt(const TEditBox& editor) {
        if (!editor.ActiveEditor()) {
            return "closed";
        }
        return editor.GetVisibleColumn(editor.EditCol()).Name + " in row " + std::to_string(editor.EditRow());
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
    RecordingLibraryManager manager_;
    std::vector<AnsiString> expectedErrors_;
    bool wasLeftOpen_ = false;
};
