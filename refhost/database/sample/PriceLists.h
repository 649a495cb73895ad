#pragma once

#include "refhost/database/sample/Amounts.h"
#include "refhost/database/sample/Calendar.h"
#include "refhost/database/sample/Stock.h"

#include <optional>
#include <vector>

namespace refhost::sample {

/// For how much a supplier offers an item in one period, before the discount.
struct PriceListEntry {
    int SupplierId = 0;
    int ItemId = 0;
    Day FirstDay;
    std::optional<Day> LastDay; ///< None: until further notice.
    Price UnitPrice = 0;
    int Discount = 0; ///< In hundredths of a percent.
};

/// The price lists of all suppliers, by half-years.
class PriceLists {
public:
    /// Lists that cover every day from `firstDay` to `today` and, the newest ones, all days after it.
    PriceLists(const Stock& stock, Day firstDay, Day today);

    /// By supplier, item and period.
    const std::vector<PriceListEntry>& entries() const { return entries_; }

    /// What the supplier offers on that day, by item.
    std::vector<PriceListEntry> offers(int supplierId, Day day) const;

private:
    std::vector<PriceListEntry> entries_;
};

} // namespace refhost::sample
