#include "refhost/database/sample/PriceLists.h"

#include "refhost/database/sample/Random.h"
#include "refhost/database/sample/Suppliers.h"

#include <algorithm>

namespace refhost::sample {

namespace {

constexpr std::uint64_t c_Stream = 2;
constexpr int c_ListedPercent = 70;
/// A period in which a supplier has an item out of its list.
constexpr int c_GapPercent = 2;
constexpr int c_Discounts[] = {0, 0, 0, 0, 200, 500, 500, 750, 1000};
constexpr int c_NewDiscountPercent = 15;

/// The price as a list would print it: tens of hellers for dear goods, hellers for common ones, and finer for screws.
Price printedPrice(Price price) {
    const Price step = price >= 1'000'000 ? 1'000 : price >= 20'000 ? 100 : 25;
    return std::max(step, (price + step / 2) / step * step);
}

std::vector<Day> periodsFrom(Day firstDay, Day today) {
    std::vector<Day> firstDays;
    for (Day first = halfYearOf(firstDay); first <= today; first = nextHalfYear(first)) {
        firstDays.push_back(first);
    }
    return firstDays;
}

/// The periods of one item in one supplier's lists. The prices of each half-year follow from those of the last.
void addOffers(std::vector<PriceListEntry>& entries, int supplierId, int itemId, const StockItem& item,
               const std::vector<Day>& periods, Random& random) {
    Price price = item.UsualPrice * suppliers()[static_cast<std::size_t>(supplierId) - 1].PricePercent *
                  random.between(97, 103) / 10'000;
    int discount = random.pick<int>(c_Discounts);
    for (std::size_t i = 0; i < periods.size(); ++i) {
        const bool isNewest = i + 1 == periods.size();
        const bool isGap = random.chance(c_GapPercent);
        price = price * random.between(985, 1'040) / 1'000;
        if (random.chance(c_NewDiscountPercent)) {
            discount = random.pick<int>(c_Discounts);
        }
        if (isGap || (isNewest && !item.IsActive)) {
            continue;
        }
        PriceListEntry entry{supplierId, itemId, periods[i], std::nullopt, printedPrice(price), discount};
        if (!isNewest) {
            entry.LastDay = periods[i + 1] - std::chrono::days(1);
        }
        entries.push_back(entry);
    }
}

/// The first supplier of a group lists all of it, so that everything can be bought somewhere; the others a part.
bool isFirstSeller(std::size_t supplier, std::string_view group2) {
    const auto first = std::ranges::find_if(suppliers(), [&](const Supplier& other) { return sells(other, group2); });
    return static_cast<std::size_t>(first - suppliers().begin()) == supplier;
}

} // namespace

PriceLists::PriceLists(const Stock& stock, Day firstDay, Day today) {
    const std::vector<Day> periods = periodsFrom(firstDay, today);
    Random random(c_Stream);
    for (std::size_t supplier = 0; supplier < suppliers().size(); ++supplier) {
        for (std::size_t item = 0; item < stock.Items.size(); ++item) {
            const StockItem& stocked = stock.Items[item];
            if (!sells(suppliers()[supplier], stocked.Group2)) {
                continue;
            }
            if (random.chance(c_ListedPercent) || isFirstSeller(supplier, stocked.Group2)) {
                addOffers(entries_, static_cast<int>(supplier) + 1, static_cast<int>(item) + 1, stocked, periods,
                          random);
            }
        }
    }
}

std::vector<PriceListEntry> PriceLists::offers(int supplierId, Day day) const {
    const auto first = std::ranges::lower_bound(entries_, supplierId, {}, &PriceListEntry::SupplierId);
    const auto last = std::ranges::upper_bound(entries_, supplierId, {}, &PriceListEntry::SupplierId);
    std::vector<PriceListEntry> offers;
    std::copy_if(first, last, std::back_inserter(offers), [day](const PriceListEntry& entry) {
        return entry.FirstDay <= day && (!entry.LastDay || day <= *entry.LastDay);
    });
    return offers;
}

} // namespace refhost::sample
