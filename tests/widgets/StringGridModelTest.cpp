#include "host/widgets/StringGridModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <string>
#include <vector>

using testing::ElementsAre;

namespace {

/// A model under Qt's own tester, whose findings are warnings and so fail the test.
class StringGridModelTest : public testing::Test {
protected:
    TStringGridModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Warning};

    /// `columns` data columns with the headers A, B, C … and cells A1, A2, B1 …
    void fill(int columns, int rows) {
        model.SetColCount(columns + 1);
        model.SetRowCount(rows + 1);
        for (int col = 1; col <= columns; ++col) {
            const std::string letter(1, static_cast<char>('A' + col - 1));
            model.SetCell(col, 0, letter);
            for (int row = 1; row <= rows; ++row) {
                model.SetCell(col, row, letter + std::to_string(row));
            }
        }
    }

    /// The row as one short text: "A1|B1|C1".
    std::string rowText(int row) {
        std::string text;
        for (int col = 1; col < model.ColCount(); ++col) {
            text += (col > 1 ? "|" : "") + model.Cell(col, row);
        }
        return text;
    }
};

struct Move {
    const char* name;
    int from;
    int to;
    const char* header;
};

class StringGridModelMoveTest : public StringGridModelTest, public testing::WithParamInterface<Move> {};

} // namespace

TEST_F(StringGridModelTest, StartsWithTheFixedCellsOnly) {
    EXPECT_EQ(model.ColCount(), 1);
    EXPECT_EQ(model.RowCount(), 1);
    EXPECT_EQ(model.columnCount(), 0);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(StringGridModelTest, CountsNeverFallUnderOne) {
    fill(2, 2);
    model.SetColCount(0);
    model.SetRowCount(-5);
    EXPECT_EQ(model.ColCount(), 1);
    EXPECT_EQ(model.RowCount(), 1);
}

TEST_F(StringGridModelTest, ViewsSeeTheCellsWithoutTheFixedOnes) {
    fill(2, 2);
    EXPECT_EQ(model.columnCount(), 2);
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(1, 0).data().toString(), QStringLiteral("A2"));
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("B"));
    EXPECT_FALSE(model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
}

TEST_F(StringGridModelTest, GrowsWithEmptyCellsAndKeepsTheOthers) {
    fill(2, 2);
    model.SetColCount(4);
    model.SetRowCount(4);
    EXPECT_EQ(rowText(0), "A|B|");
    EXPECT_EQ(rowText(2), "A2|B2|");
    EXPECT_EQ(rowText(3), "||");
}

TEST_F(StringGridModelTest, ShrinksFromTheEndAndForgets) {
    fill(3, 3);
    model.SetColCount(3);
    model.SetRowCount(2);
    model.SetColCount(4);
    model.SetRowCount(4);
    EXPECT_EQ(rowText(1), "A1|B1|");
    EXPECT_EQ(rowText(3), "||");
}

TEST_F(StringGridModelTest, OutsideTheCountsCellsAreEmptyAndWritingHasNoEffect) {
    fill(1, 1);
    model.SetCell(2, 1, "x");
    model.SetCell(1, 2, "x");
    model.SetCell(-1, 0, "x");
    const AnsiString underneath = "x";
    model.SetColumnTexts(2, [&](int) -> const AnsiString& { return underneath; });
    EXPECT_EQ(model.Cell(2, 1), "");
    EXPECT_EQ(model.Cell(1, 2), "");
    EXPECT_EQ(model.Cell(-1, -1), "");
    EXPECT_EQ(rowText(1), "A1");
}

TEST_F(StringGridModelTest, TheIndicatorColumnHoldsTextsThatNoViewSees) {
    fill(1, 1);
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    model.SetCell(0, 1, "*");
    EXPECT_EQ(model.Cell(0, 1), "*");
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(StringGridModelTest, AChangedCellAndAChangedHeaderAreTold) {
    fill(2, 2);
    QSignalSpy cells(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy headers(&model, &QAbstractItemModel::headerDataChanged);
    model.SetCell(2, 1, "x");
    ASSERT_EQ(cells.count(), 1);
    EXPECT_EQ(cells.at(0).at(0).toModelIndex(), model.index(0, 1));
    model.SetCell(2, 0, "Množství");
    ASSERT_EQ(headers.count(), 1);
    EXPECT_EQ(headers.at(0).at(1).toInt(), 1);
}

TEST_F(StringGridModelTest, AWholeColumnShowsTheTextsUnderneath) {
    fill(2, 3);
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    const std::vector<AnsiString> underneath{"x", "y", "z"};
    model.SetColumnTexts(
        2, [&](int row) -> const AnsiString& { return underneath.at(static_cast<std::size_t>(row) - 1); });
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(changes.at(0).at(0).toModelIndex(), model.index(0, 1));
    EXPECT_EQ(changes.at(0).at(1).toModelIndex(), model.index(2, 1));
    EXPECT_EQ(rowText(0), "A|B");
    EXPECT_EQ(rowText(1), "A1|x");
    EXPECT_EQ(rowText(3), "A3|z");
    model.SetRowCount(2);
    model.SetRowCount(4);
    EXPECT_EQ(rowText(2), "|y") << "what lies underneath is not forgotten with its row";
}

TEST_F(StringGridModelTest, TextsUnderneathFollowTheirColumn) {
    fill(3, 1);
    const AnsiString underneath = "x";
    model.SetColumnTexts(1, [&](int) -> const AnsiString& { return underneath; });
    model.MoveColumn(1, 3);
    EXPECT_EQ(rowText(1), "B1|C1|x");
    model.InsertColumn(1);
    EXPECT_EQ(rowText(1), "|B1|C1|x");
    model.DeleteColumn(4);
    EXPECT_EQ(rowText(1), "|B1|C1");
}

TEST_F(StringGridModelTest, AnInsertedColumnIsEmptyAndShiftsTheOthers) {
    fill(2, 1);
    model.InsertColumn(1);
    EXPECT_EQ(rowText(0), "|A|B");
    model.InsertColumn(4);
    EXPECT_EQ(rowText(1), "|A1|B1|");
    model.InsertColumn(0); // the indicator column stays the first
    model.InsertColumn(9);
    EXPECT_EQ(model.ColCount(), 5);
}

TEST_F(StringGridModelTest, ADeletedColumnClosesTheGap) {
    fill(3, 1);
    model.DeleteColumn(2);
    EXPECT_EQ(rowText(1), "A1|C1");
    model.DeleteColumn(0);
    model.DeleteColumn(3);
    EXPECT_EQ(model.ColCount(), 3);
}

TEST_P(StringGridModelMoveTest, TakesTheColumnOutAndPutsItIn) {
    fill(4, 1);
    model.MoveColumn(GetParam().from, GetParam().to);
    EXPECT_EQ(rowText(0), GetParam().header);
}

INSTANTIATE_TEST_SUITE_P(Moves, StringGridModelMoveTest,
                         testing::Values(Move{"OneRight", 1, 2, "B|A|C|D"}, Move{"OneLeft", 2, 1, "B|A|C|D"},
                                         Move{"FirstToLast", 1, 4, "B|C|D|A"}, Move{"LastToFirst", 4, 1, "D|A|B|C"},
                                         Move{"Nowhere", 3, 3, "A|B|C|D"},
                                         Move{"OntoTheIndicator", 2, 0, "A|B|C|D"}, // the first place is column 1
                                         Move{"BehindTheLast", 2, 5, "A|B|C|D"}),
                         [](const auto& instance) { return std::string(instance.param.name); });

TEST_F(StringGridModelTest, APersistentIndexFollowsAMovedColumn) {
    fill(3, 1);
    const QPersistentModelIndex cell = model.index(0, 0);
    model.MoveColumn(1, 3);
    EXPECT_EQ(cell.column(), 2);
    EXPECT_EQ(cell.data().toString(), QStringLiteral("A1"));
}

TEST_F(StringGridModelTest, CellsAreNotEditable) {
    fill(1, 1);
    EXPECT_FALSE(model.flags(model.index(0, 0)).testFlag(Qt::ItemIsEditable));
}
