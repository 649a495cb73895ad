#pragma once

#include "refhost/database/sample/Amounts.h"
#include "refhost/database/sample/Assortment.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace refhost::sample {

/// A stock group under another; identifiers are those of the database, from 1 in each level. Level 1 has no parent.
struct StockGroup {
    std::string_view Name;
    int ParentId = 0;
};

/// A unit of a stock item. Its identifier is its place in Stock::Units + 1.
struct StockUnit {
    int ItemId = 0;
    int Place = 0; ///< 0 the main unit, 1 and 2 the secondary ones.
    std::string_view Name;
    std::int64_t Factor = 0; ///< Main units in it, in thousandths.
};

/// A stock item. Its identifier is its place in Stock::Items + 1.
struct StockItem {
    std::string Name;
    std::string_view Group2; ///< What suppliers specialise in.
    int Group3Id = 0;
    std::string_view VatRate;
    int ShelfLifeDays = 0; ///< 0: does not perish.
    bool IsActive = true;
    Price UsualPrice = 0;
    int FirstUnitId = 0; ///< The main unit; the secondary ones follow.
    int UnitCount = 0;
};

/// What the company keeps in stock.
struct Stock {
    std::vector<StockGroup> Groups1;
    std::vector<StockGroup> Groups2;
    std::vector<StockGroup> Groups3;
    std::vector<StockItem> Items;
    std::vector<StockUnit> Units;

    const StockItem& item(int id) const { return Items[static_cast<std::size_t>(id) - 1]; }
    const StockUnit& unit(int id) const { return Units[static_cast<std::size_t>(id) - 1]; }
};

/// 2,000 items in three levels of groups.
Stock makeStock();

} // namespace refhost::sample
