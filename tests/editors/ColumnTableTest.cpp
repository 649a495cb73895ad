#include "editors/ColumnTable.h"

#include "tests/support/RecordingHost.h"

#include <array>
#include <gmock/gmock.h>

namespace {

using melvark::ColumnRow;

struct Bindings {
    std::vector<AnsiString> Warehouses{};
    std::vector<AnsiString> Colours{};
    TColumnCallback Changed{};
    bool OffersPrices = false;
};
using Row = ColumnRow<Bindings>;

class ColumnTable : public testing::Test {
protected:
    RecordingHost host_;
    TScopedHost scope_{host_};
};

TEST_F(ColumnTable, ARowThatSaysNothingElseIsAVisiblePlainTextColumnThatNobodyEdits) {
    host_.translations[R"(KORDAN30\MELVARKEDITOR\COLUMNBARVA)"] = "Colour";
    host_.translations[R"(KORDAN30\MELVARKEDITOR\COLUMNHINTBARVA)"] = "Colour of the goods";
    constexpr std::array rows{Row{.Key = "B", .KeySuffix = "BARVA", .Caption = "Barva", .Hint = "Barva zboží"}};
    const RColumn column = melvark::LoadDefaultColumnsSettings(rows, Bindings{}).front();
    EXPECT_EQ(column.Name, "B");
    EXPECT_EQ(column.Caption, "Colour");
    EXPECT_EQ(column.Hint, "Colour of the goods");
    EXPECT_EQ(column.Align, caLeft);
    EXPECT_TRUE(column.Visible);
    EXPECT_EQ(column.Editable, eNone);
    EXPECT_EQ(column.ColumnType, ctNormal);
    EXPECT_EQ(column.Width, 100);
    EXPECT_EQ(column.DataType, cdtString);
    EXPECT_EQ(column.Values, nullptr);
    EXPECT_FALSE(column.Callback);
}

TEST_F(ColumnTable, ARowIsTiedToTheListAndTheCallbackThatItNames) {
    int called = 0;
    const Bindings bindings{.Warehouses = {"Praha"}, .Colours = {"modrá"}, .Changed = [&](int, int, const AnsiString&) {
                                return ++called > 0;
                            }};
    constexpr std::array rows{Row{.Key = "A", .List = &Bindings::Colours}, melvark::c_WarehouseColumn<Bindings>,
                              Row{.Key = "C", .Changed = &Bindings::Changed}};
    const std::vector<RColumn> columns = melvark::LoadDefaultColumnsSettings(rows, bindings);
    EXPECT_EQ(columns[0].Values, &bindings.Colours);
    EXPECT_EQ(columns[1].Values, &bindings.Warehouses);
    EXPECT_EQ(columns[2].Values, nullptr);
    EXPECT_FALSE(columns[0].Callback);
    ASSERT_TRUE(columns[2].Callback);
    columns[2].Callback(1, 1, "");
    EXPECT_EQ(called, 1);
}

TEST_F(ColumnTable, ARowsPlaceIsItsDataColumn) {
    constexpr std::array rows{Row{.Key = "A"}, Row{.Key = "B"}, Row{.Key = "C"}};
    const std::vector<RColumn> columns = melvark::LoadDefaultColumnsSettings(rows, Bindings{});
    ASSERT_EQ(columns.size(), 3u);
    for (int place = 0; place < 3; ++place) {
        EXPECT_EQ(columns[static_cast<std::size_t>(place)].DataColumn, place);
    }
}

TEST_F(ColumnTable, AColumnUnderAFlagCannotBeShownWhileTheFlagIsOff) {
    constexpr std::array rows{Row{.Key = "CENA", .Type = ctReadOnly, .OfferedWhen = &Bindings::OffersPrices}};
    EXPECT_EQ(melvark::LoadDefaultColumnsSettings(rows, Bindings{}).front().ColumnType, ctHidden);
    EXPECT_EQ(melvark::LoadDefaultColumnsSettings(rows, Bindings{.OffersPrices = true}).front().ColumnType, ctReadOnly);
}

TEST_F(ColumnTable, AKeyColumnIsNeverTranslated) {
    host_.translations[R"(KORDAN30\MELVARKEDITOR\COLUMN)"] = "translated";
    host_.translations[R"(KORDAN30\MELVARKEDITOR\COLUMNHINT)"] = "translated";
    host_.translations[R"(KORDAN30\MELVARKEDITOR\COLUMNKLIC)"] = "translated";
    constexpr std::array rows{melvark::KeyColumn<Bindings>("KLIC", caRight, true)};
    const RColumn column = melvark::LoadDefaultColumnsSettings(rows, Bindings{}).front();
    EXPECT_EQ(column.Caption, "KLIC");
    EXPECT_EQ(column.Hint, "KLIC");
    EXPECT_EQ(column.ColumnType, ctHidden);
    EXPECT_EQ(column.Align, caRight);
}

} // namespace
