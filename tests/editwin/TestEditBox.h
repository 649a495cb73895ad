#pragma once

#include "editwin/MelvarkEditorEditWin.h"
#include "editwin/model/DataGrid.h"
#include "tests/support/ExpectedWarning.h"
#include "tests/support/RecordingHost.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

class QAction;
class QComboBox;
class QLineEdit;

/// What the columns' callbacks were told, as "column,row=text", and what they answer.
struct CommitLog {
    std::vector<AnsiString> lines;
    /// Runs at each call; true unless set.
    std::function<bool()> answer;

    TColumnCallback callback();
};

/// Grid columns of the test table, in built-in order.
inline constexpr int c_NameCol = 1;      ///< NAZEV: text, automatic, with a hint.
inline constexpr int c_CountCol = 2;     ///< POCET: integer, automatic, no hint.
inline constexpr int c_PriceCol = 3;     ///< CENA: number shown as money, automatic.
inline constexpr int c_DateCol = 4;      ///< DATUM: date, automatic.
inline constexpr int c_WarehouseCol = 5; ///< SKLAD: list, automatic.
inline constexpr int c_CodeCol = 6;      ///< KOD: read-only.
inline constexpr int c_NoteCol = 7;      ///< POZN: text, manual.
inline constexpr int c_KindCol = 8;      ///< TYP: normal, but not editable.

/// The test table: a key column of the hidden type first, then the columns above, then SLEVA, a number that the user
/// has hidden. Data columns run against the order of the grid, so that a mix-up of the two shows.
std::vector<RColumn> testColumns(CommitLog& log);

/// The smallest document editor: three lines of a test table.
class TestEditBox : public TEditBox {
    Q_OBJECT

public:
    TestEditBox(TLibraryManager* manager, const std::vector<RColumn>& columns, std::int32_t editType = 30,
                std::int32_t typeOffset = 2);

    using TEditBox::Cells;
    using TEditBox::SetOnIsEditable;
    using TEditBox::SetOnSaveData;
    using TEditBox::SetOnSaveDataToTempFile;
    using TEditBox::TellWhenShown;
    using TEditBox::TempFile;
};

/// A test with a host, a library manager and a form over the test table.
class EditBoxTest : public testing::Test {
protected:
    EditBoxTest();
    ~EditBoxTest() override;

    /// Makes the form; `open` also shows it and waits until it is active.
    TestEditBox& make();
    TestEditBox& open();
    TStringGrid& grid() { return *form->StringGrid; }
    QLineEdit& sharedEdit();
    QComboBox& combo();

    /// Presses and releases the left button in the middle of a grid cell.
    void click(int col, int row);
    /// The middle of a cell in the coordinates of the grid widget.
    QPoint cellCentre(int col, int row);
    /// Sends a key to the control that has the form's focus.
    void key(int keyCode, Qt::KeyboardModifiers modifiers = {});
    void type(const QString& text);
    /// Opens the edit box or list of a cell as a click does, and waits for it.
    void openCell(int col, int row);
    /// Right-clicks a header and lets the menu show.
    void openColumnMenu(int col);
    /// The column menu's item as the user picks it.
    void pick(QAction* item);

    /// Lets everything that was queued happen.
    static void settle();
    /// The open editor's cell as "column,row", "none" when none is open.
    AnsiString openCellText();
    AnsiString stored(int dataCol, int row);
    /// The texts of a grid row, parted by "|".
    AnsiString rowText(int row);
    /// The names of the active columns, parted by blanks; hidden ones in brackets.
    AnsiString columnOrder();
    RColumn columnAt(int col) { return form->GetVisibleColumn(col); }

    // The off-screen platform has no window manager for popup menus.
    ExpectedWarning raising{QStringLiteral("This plugin does not support raise()")};
    ExpectedWarning grabbing{QStringLiteral("This plugin does not support grabbing the keyboard")};

    RecordingHost host;
    TScopedHost installed{host};
    RecordingLibraryManager manager;
    CommitLog log;
    int saves = 0;
    bool saveSucceeds = true;
    std::unique_ptr<TestEditBox> form;
};
