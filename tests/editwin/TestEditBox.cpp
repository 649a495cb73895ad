#include "tests/editwin/TestEditBox.h"

#include "editwin/GridComboBox.h"
#include "host/widgets/StringGrid.h"

#include <QAction>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

namespace {

const std::vector<AnsiString>& warehouses() {
    static const std::vector<AnsiString> names{"Hlavní", "Vedlejší", "Výdejna"};
    return names;
}

/// The test table's lines by column key.
const std::vector<std::vector<std::pair<const char*, const char*>>>& lines() {
    static const std::vector<std::vector<std::pair<const char*, const char*>>> all{
        {{"ID", "11"},
         {"NAZEV", "Šroub"},
         {"POCET", "5"},
         {"CENA", "1234,5"},
         {"DATUM", "1.2.2027"},
         {"SKLAD", "Hlavní"},
         {"KOD", "A1"},
         {"POZN", "první"},
         {"TYP", "x"},
         {"SLEVA", "10"}},
        {{"ID", "12"},
         {"NAZEV", "Matice"},
         {"POCET", "6"},
         {"CENA", "2"},
         {"DATUM", ""},
         {"SKLAD", "vedlejší"},
         {"KOD", "B2"},
         {"POZN", ""},
         {"TYP", "y"},
         {"SLEVA", ""}},
        {{"ID", "13"},
         {"NAZEV", "Podložka"},
         {"POCET", ""},
         {"CENA", ""},
         {"DATUM", ""},
         {"SKLAD", "Zrušený"},
         {"KOD", "C3"},
         {"POZN", ""},
         {"TYP", "z"},
         {"SLEVA", "5"}},
    };
    return all;
}

} // namespace

TColumnCallback CommitLog::callback() {
    return [this](int col, int row, const AnsiString& text) {
        lines.push_back(std::to_string(col) + "," + std::to_string(row) + "=" + text);
        return !answer || answer();
    };
}

std::vector<RColumn> testColumns(CommitLog& log) {
    const auto column = [&](const char* name, const char* caption, const char* hint, TColumnAlign align, bool visible,
                            TEditable editable, TColumnType type, int width, TColumnsDataType dataType, int dataColumn,
                            const char* format = "", const std::vector<AnsiString>* values = nullptr) {
        return ColumnProperties(name, caption, hint, align, visible, editable, type, width, dataType, dataColumn,
                                format, values, nullptr, log.callback(), nullptr);
    };
    return {
        column("ID", "ID", "ID", caLeft, true, eNone, ctHidden, 100, cdtString, 9),
        column("NAZEV", "Název", "Název položky", caLeft, true, eAuto, ctNormal, 90, cdtString, 8),
        column("POCET", "Počet", "", caCenter, true, eAuto, ctNormal, 60, cdtInt, 7),
        column("CENA", "Cena", "Cena za kus", caRight, true, eAuto, ctNormal, 80, cdtFlt, 6, "%m"),
        column("DATUM", "Datum", "Den dodání", caLeft, true, eAuto, ctNormal, 80, cdtDate, 5),
        column("SKLAD", "Sklad", "", caLeft, true, eAuto, ctNormal, 80, cdtString, 4, "", &warehouses()),
        column("KOD", "Kód", "", caLeft, true, eAuto, ctReadOnly, 40, cdtString, 3),
        column("POZN", "Poznámka", "", caLeft, true, eManual, ctNormal, 80, cdtString, 2),
        column("TYP", "Typ", "", caLeft, true, eNone, ctNormal, 40, cdtString, 1),
        column("SLEVA", "Sleva", "Sleva v procentech", caRight, false, eAuto, ctNormal, 50, cdtFlt, 0, "%f %%"),
    };
}

TestEditBox::TestEditBox(TLibraryManager* manager, const std::vector<RColumn>& columns, std::int32_t editType,
                         std::int32_t typeOffset)
    : TEditBox(nullptr, manager, editType, "ZKOUSKA", typeOffset, "SABLONA", "novak", columns) {
    DataGrid().SetColCount(static_cast<int>(columns.size()));
    DataGrid().SetRowCount(static_cast<int>(lines().size()));
    for (int row = 0; row < DataGrid().GetRowCount(); ++row) {
        for (const auto& [name, text] : lines()[static_cast<std::size_t>(row)]) {
            if (IsValidColumnName(name)) {
                DataGrid().SetCells(GetColumnSettings(name).DataColumn, row, text);
            }
        }
    }
    DataGrid().ResetModified();
    Constructed();
}

EditBoxTest::EditBoxTest() {
    const auto script = [this](const AnsiString& name, std::vector<AnsiString> inputs) -> ProcedureScript& {
        return host.connection.procedure(name).inputs(std::move(inputs));
    };
    script("MELVARKEDITORNASTAVENIGetList", {"a_TYPEDITACE"}).returns({{{"NAZEV", "ID"}, {}}});
    script("MELVARKEDITORNASTAVENINactiDef", {"a_TYPEDITACE"})
        .returns({{{"ID", "DATA"}, {{std::monostate(), std::monostate()}}}});
    script("MELVARKEDITORNASTAVENINactiNastaveniOkna", {"a_TYPEDITACE"}).returns({{{"DATA"}, {{std::monostate()}}}});
    script("MELVARKEDITORNASTAVENIUlozNastaveniOkna", {"a_TYPEDITACE", "a_DATA"});
    script("MELVARKEDITORResetTemp", {});
}

EditBoxTest::~EditBoxTest() = default;

TestEditBox& EditBoxTest::make() {
    form = std::make_unique<TestEditBox>(&manager, testColumns(log));
    form->SetOnSaveData([this] {
        ++saves;
        return saveSucceeds;
    });
    return *form;
}

TestEditBox& EditBoxTest::open() {
    make().show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
    settle();
    return *form;
}

QLineEdit& EditBoxTest::sharedEdit() {
    return *form->findChild<QLineEdit*>(QStringLiteral("SharedEdit"));
}

QComboBox& EditBoxTest::combo() {
    return *form->findChild<QComboBox*>(QStringLiteral("GridComboBoxSKLAD"));
}

QPoint EditBoxTest::cellCentre(int col, int row) {
    return grid().CellRect(col, row).center() + QPoint(TStringGrid::c_BorderWidth, TStringGrid::c_BorderWidth);
}

void EditBoxTest::click(int col, int row) {
    QWidget* const part = grid().childAt(cellCentre(col, row));
    ASSERT_NE(part, nullptr);
    QTest::mouseClick(part, Qt::LeftButton, {}, part->mapFrom(&grid(), cellCentre(col, row)));
}

void EditBoxTest::key(int keyCode, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(form->focusWidget(), static_cast<Qt::Key>(keyCode), modifiers);
}

void EditBoxTest::type(const QString& text) {
    QTest::keyClicks(form->focusWidget(), text);
}

void EditBoxTest::openCell(int col, int row) {
    click(col, row);
    const AnsiString wanted = std::to_string(col) + "," + std::to_string(row);
    EXPECT_TRUE(QTest::qWaitFor([&] { return openCellText() == wanted; })) << "no editor on " << wanted;
}

void EditBoxTest::openColumnMenu(int col) {
    const QPoint place = cellCentre(col, 0);
    QWidget* const part = grid().childAt(place);
    QContextMenuEvent event(QContextMenuEvent::Mouse, part->mapFrom(&grid(), place), grid().mapToGlobal(place));
    QCoreApplication::sendEvent(part, &event);
}

void EditBoxTest::pick(QAction* item) {
    ASSERT_TRUE(item->isEnabled()) << "the item is disabled";
    item->trigger();
    if (QWidget* const popup = form->ColumnsPopupMenu; popup->isVisible()) {
        popup->close();
    }
    settle();
}

void EditBoxTest::settle() {
    for (int turn = 0; turn < 10; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

AnsiString EditBoxTest::openCellText() {
    if (!form->ActiveEditor()) {
        return "none";
    }
    return std::to_string(form->EditCol()) + "," + std::to_string(form->EditRow());
}

AnsiString EditBoxTest::stored(int dataCol, int row) {
    return form->DataGrid().GetCells(dataCol, row);
}

AnsiString EditBoxTest::rowText(int row) {
    AnsiString text;
    for (int col = 1; col < grid().ColCount(); ++col) {
        text += (col > 1 ? "|" : "") + grid().Cells(col, row);
    }
    return text;
}

AnsiString EditBoxTest::columnOrder() {
    AnsiString text;
    for (const RColumn& column : form->ActiveColumns()) {
        const bool hidden = !column.Visible || column.ColumnType == ctHidden;
        text += (text.empty() ? "" : " ") + (hidden ? "[" + column.Name + "]" : column.Name);
    }
    return text;
}
