#include "editwin/model/RowView.h"

#include "editwin/model/DataGrid.h"

#include <gtest/gtest.h>

namespace {

TDataGrid StoreOf(int rows) {
    TDataGrid store;
    store.SetRowCount(rows);
    return store;
}

TEST(RowView, LinesFollowTheHeaderInTheStoresOrder) {
    const TDataGrid store = StoreOf(3);
    const melvark::RowView rows(store);

    EXPECT_EQ(rows.GridRowCount(), 4);
    EXPECT_EQ(rows.StoreRow(1), 0);
    EXPECT_EQ(rows.StoreRow(3), 2);
    EXPECT_EQ(rows.GridRow(0), 1);
    EXPECT_EQ(rows.GridRow(2), 3);
}

TEST(RowView, TheHeaderShowsNoStoreRow) {
    const TDataGrid store = StoreOf(3);

    EXPECT_LT(melvark::RowView(store).StoreRow(0), 0);
}

TEST(RowView, AStoreRowThatIsNotThereHasNoGridRow) {
    const TDataGrid store = StoreOf(3);
    const melvark::RowView rows(store);

    EXPECT_EQ(rows.GridRow(3), 0);
    EXPECT_EQ(rows.GridRow(-1), 0);
    EXPECT_EQ(rows.GridRow(-2), 0);
}

TEST(RowView, AStoreThatWasNeverCountedShowsOneEmptyRow) {
    const TDataGrid store;
    const melvark::RowView rows(store);

    EXPECT_EQ(rows.GridRowCount(), 2);
    EXPECT_EQ(rows.GridRow(0), 1);
}

TEST(RowView, FollowsTheStoreAsItGrowsAndShrinks) {
    TDataGrid store = StoreOf(1);
    const melvark::RowView rows(store);

    store.SetRowCount(5);
    EXPECT_EQ(rows.GridRowCount(), 6);
    EXPECT_EQ(rows.GridRow(4), 5);
    store.SetRowCount(2);
    EXPECT_EQ(rows.GridRow(4), 0);
}

} // namespace
