#pragma once

#include "editwin/MelvarkEditorEditWin.h"
#include "editwin/model/DataGrid.h"
#include "host/widgets/StringGrid.h"
#include "tests/support/RecordingHost.h"
#include "tests/widgets/ModalDriver.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <functional>
#include <gmock/gmock.h>
#include <vector>

inline void press(const QWidget& window, const char* button) {
    QTest::mouseClick(window.findChild<QPushButton*>(QString::fromUtf8(button)), Qt::LeftButton);
}

inline void typeInto(const QWidget& dialog, const char* edit, const char* text) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>(QString::fromLatin1(edit)), QString::fromUtf8(text));
}

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

    /// What the list column offers.
    static std::vector<AnsiString> choices(const TEditBox& editor, const char* key) {
        const auto* combo = qobject_cast<QComboBox*>(editor.GetColumnSettings(key).Editor);
        std::vector<AnsiString> texts;
        for (int index = 0; combo && index < combo->count(); ++index) {
            texts.push_back(combo->itemText(index).toStdString());
        }
        return texts;
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

    /// The editor's current line as "column in row n", "out of view" when the grid does not show it.
    static AnsiString currentLine(const TEditBox& editor) {
        const TStringGrid& grid = *editor.StringGrid;
        const bool isInView = grid.CellsArea().contains(grid.CellRect(grid.Col(), grid.Row()));
        return isInView ? editor.GetVisibleColumn(grid.Col()).Name + " in row " + std::to_string(grid.Row())
                        : "out of view";
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
    RecordingLibraryManager manager_;
    std::vector<AnsiString> expectedErrors_;
    bool wasLeftOpen_ = false;
};
