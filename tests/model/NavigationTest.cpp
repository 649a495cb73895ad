#include "editwin/model/Navigation.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace {

using melvark::CellTest;
using melvark::GridExtent;
using melvark::GridPosition;

/// A grid drawn by its data rows, "E" where traversal may stop: {"E..", "..E"} has three columns and two rows.
class DrawnGrid {
public:
    explicit DrawnGrid(std::vector<std::string> rows) : rows_(std::move(rows)) {}

    GridExtent extent() const {
        const std::size_t columns = rows_.empty() ? 0 : rows_.front().size();
        return {static_cast<int>(columns) + 1, static_cast<int>(rows_.size()) + 1};
    }

    /// The test refuses to be asked about the header, the indicator column or a cell that does not exist.
    CellTest mayStop() const {
        return [this](int col, int row) {
            EXPECT_GE(col, 1);
            EXPECT_GE(row, 1);
            return rows_.at(static_cast<std::size_t>(row - 1)).at(static_cast<std::size_t>(col - 1)) == 'E';
        };
    }

private:
    std::vector<std::string> rows_;
};

struct TraversalRow {
    const char* remark;
    std::vector<std::string> grid;
    GridPosition from;
    /// "column,row", or "stays".
    const char* to;
};

std::string placeText(const std::optional<GridPosition>& place) {
    return place ? std::to_string(place->Col) + "," + std::to_string(place->Row) : "stays";
}

const TraversalRow forwardRows[] = {
    {"before the first opening the column counts as 0: column 1 is found", {"E..", "..."}, {0, 1}, "1,1"},
    {"the first opening may find a later column", {"..E", "..."}, {0, 1}, "3,1"},
    {"the next one in the row", {"E.E", "..."}, {1, 1}, "3,1"},
    {"the cell itself is not looked at in its own row", {"E..", "..E"}, {1, 1}, "3,2"},
    {"the next row is entered from its first column", {"..E", "E.E"}, {3, 1}, "1,2"},
    {"the last row goes on in row 1", {"E.E", "..E"}, {3, 2}, "1,1"},
    {"only the next row is looked at", {"E..", "...", "E.."}, {1, 1}, "stays"},
    {"nothing right of it and nothing in row 1", {"...", "E.."}, {1, 2}, "stays"},
    {"a single row goes on in itself, columns to the left", {"EE"}, {2, 1}, "1,1"},
    {"a single cell finds itself", {"E"}, {1, 1}, "1,1"},
    {"no cell to stop at", {"...", "..."}, {0, 1}, "stays"},
    {"from the header the first row is entered", {"E..", "..."}, {2, 0}, "1,1"},
    {"from a row that is gone row 1 is entered", {"E..", "..."}, {2, 7}, "1,1"},
    {"no columns at all", {"", ""}, {0, 1}, "stays"},
    {"no rows at all", {}, {0, 0}, "stays"},
};

TEST(Navigation, EnterGoesToTheNextCellOfTheRowOrOfTheNextRow) {
    for (const TraversalRow& row : forwardRows) {
        SCOPED_TRACE(row.remark);
        const DrawnGrid grid(row.grid);
        EXPECT_EQ(placeText(melvark::NextEditableCell(grid.extent(), row.from, grid.mayStop())), row.to);
    }
}

const TraversalRow backwardRows[] = {
    {"the one before in the row", {".E.E", "...."}, {4, 1}, "2,1"},
    {"the nearest one", {".EEE", "...."}, {4, 1}, "3,1"},
    {"column 1 is never landed on", {"E..", "..."}, {3, 1}, "stays"},
    {"column 1 is passed for the row before", {"..E", "E.E"}, {3, 2}, "3,1"},
    {"from column 1 to the row before", {".E.", "E.."}, {1, 2}, "2,1"},
    {"row 1 goes on in the last row, from its end", {"E.E", "EE."}, {2, 1}, "2,2"},
    {"the last row's column 1 is not landed on either", {"E..", "E.."}, {1, 1}, "stays"},
    {"only the row before is looked at", {".E.", "...", "E.."}, {1, 3}, "stays"},
    {"a single row goes on in itself, columns to the right", {".EE"}, {2, 1}, "3,1"},
    {"from before the first opening to the last row", {".E", ".E"}, {0, 1}, "2,2"},
    {"from the header the last row is entered", {".E.", "..E"}, {3, 0}, "3,2"},
    {"from a row that is gone the last row is entered", {".E.", "..E"}, {3, 7}, "3,2"},
    {"no columns at all", {"", ""}, {0, 1}, "stays"},
    {"no rows at all", {}, {0, 0}, "stays"},
};

TEST(Navigation, ShiftEnterGoesBackButNeverToTheFirstShownColumn) {
    for (const TraversalRow& row : backwardRows) {
        SCOPED_TRACE(row.remark);
        const DrawnGrid grid(row.grid);
        EXPECT_EQ(placeText(melvark::PreviousEditableCell(grid.extent(), row.from, grid.mayStop())), row.to);
    }
}

TEST(Navigation, GridOfNothingButItsHeaderIsNotAskedAbout) {
    const CellTest mustNotBeAsked = [](int, int) {
        ADD_FAILURE() << "the header has no cells to stop at";
        return true;
    };
    const GridExtent headerOnly{.ColCount = 4, .RowCount = 1};

    EXPECT_EQ(placeText(melvark::NextEditableCell(headerOnly, {0, 0}, mustNotBeAsked)), "stays");
    EXPECT_EQ(placeText(melvark::PreviousEditableCell(headerOnly, {3, 0}, mustNotBeAsked)), "stays");
}

TEST(Navigation, ForwardScanLooksAtEachCellOnceAndInReadingOrder) {
    std::vector<std::pair<int, int>> asked;
    melvark::NextEditableCell({4, 4}, {2, 2}, [&asked](int col, int row) {
        asked.emplace_back(col, row);
        return false;
    });
    EXPECT_EQ(asked, (std::vector<std::pair<int, int>>{{3, 2}, {1, 3}, {2, 3}, {3, 3}}));
}

TEST(Navigation, BackwardScanLooksAtEachCellOnceAndAgainstReadingOrder) {
    std::vector<std::pair<int, int>> asked;
    melvark::PreviousEditableCell({5, 4}, {4, 2}, [&asked](int col, int row) {
        asked.emplace_back(col, row);
        return false;
    });
    EXPECT_EQ(asked, (std::vector<std::pair<int, int>>{{3, 2}, {2, 2}, {4, 1}, {3, 1}, {2, 1}}));
}

} // namespace
