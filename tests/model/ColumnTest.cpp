#include "editwin/model/Column.h"

#include <gtest/gtest.h>

namespace {

TEST(Column, PropertiesAreCopiedEachIntoItsField) {
    const std::vector<AnsiString> values = {"21", "12"};
    // The record never looks at what these point to; any two addresses will do.
    char places[2] = {};
    auto* editor = reinterpret_cast<QWidget*>(&places[0]);
    auto* menuItem = reinterpret_cast<QAction*>(&places[1]);
    int calledWith = 0;
    const TColumnCallback callback = [&calledWith](int col, int row, const AnsiString&) {
        calledWith = 10 * col + row;
        return false;
    };

    const RColumn column = ColumnProperties("DPH", "Sazba DPH", "Sazba daně", caCenter, true, eManual, ctReadOnly, 60,
                                            cdtDate, 7, "%m", &values, editor, callback, menuItem);

    EXPECT_EQ(column.Name, "DPH");
    EXPECT_EQ(column.Caption, "Sazba DPH");
    EXPECT_EQ(column.Hint, "Sazba daně");
    EXPECT_EQ(column.Align, caCenter);
    EXPECT_TRUE(column.Visible);
    EXPECT_EQ(column.Editable, eManual);
    EXPECT_EQ(column.ColumnType, ctReadOnly);
    EXPECT_EQ(column.Width, 60);
    EXPECT_EQ(column.DataType, cdtDate);
    EXPECT_EQ(column.DataColumn, 7);
    EXPECT_EQ(column.DisplayFormat, "%m");
    EXPECT_EQ(column.Values, &values);
    EXPECT_EQ(column.Editor, editor);
    EXPECT_EQ(column.HiddenMenuItem, menuItem);
    EXPECT_FALSE(column.Callback(3, 4, "x"));
    EXPECT_EQ(calledWith, 34);
}

TEST(Column, NothingIsAddedToPropertiesThatAreNull) {
    const RColumn column = ColumnProperties("SKLADPOL", "", "", caLeft, false, eNone, ctNormal, 0, cdtString, 0, "",
                                            nullptr, nullptr, nullptr, nullptr);

    EXPECT_FALSE(column.Visible);
    EXPECT_EQ(column.Width, 0);
    EXPECT_EQ(column.Values, nullptr);
    EXPECT_EQ(column.Editor, nullptr);
    EXPECT_EQ(column.HiddenMenuItem, nullptr);
    EXPECT_FALSE(column.Callback) << "a missing callback must be told from one that is there";
}

TEST(Column, BlankRecordShowsNothingAndHasNoData) {
    const RColumn& blank = melvark::BlankColumn();

    EXPECT_EQ(blank.Name + blank.Caption + blank.Hint + blank.DisplayFormat, "");
    EXPECT_EQ(blank.Align, caLeft);
    EXPECT_FALSE(blank.Visible);
    EXPECT_EQ(blank.Editable, eAuto);
    EXPECT_EQ(blank.Width, 100);
    EXPECT_EQ(blank.DataColumn, -1);
    EXPECT_FALSE(blank.Callback);
}

TEST(Column, StatesAreOneByteEachAndCountedInTheirOrder) {
    EXPECT_EQ(sizeof(TColumnAlign), 1U);
    EXPECT_EQ(sizeof(TEditable), 1U);
    EXPECT_EQ(sizeof(TColumnType), 1U);
    EXPECT_EQ(sizeof(TColumnsDataType), 1U);
    EXPECT_EQ((std::vector<int>{caLeft, caCenter, caRight}), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ((std::vector<int>{eNone, eAuto, eManual}), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ((std::vector<int>{ctNormal, ctReadOnly, ctHidden}), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ((std::vector<int>{cdtString, cdtInt, cdtFlt, cdtType, cdtDate}), (std::vector<int>{0, 1, 2, 3, 4}));
}

} // namespace
