#include "refhost/database/sample/Stock.h"

#include "refhost/database/sample/Random.h"

#include <algorithm>
#include <charconv>
#include <numeric>

namespace refhost::sample {

namespace {

constexpr std::size_t c_ItemCount = 2'000;
constexpr std::uint64_t c_Stream = 1;
constexpr int c_InactivePercent = 3;

/// One item to be: a kind in one variety and one packing.
struct Combination {
    const GoodsKind* Kind = nullptr;
    std::string_view Variety;
    int VarietyPercent = 100;
    const Packing* Packed = nullptr;
};

/// The number behind the colon of "olivový:380", 100 where there is none.
int pricePercent(std::string_view variety) {
    int percent = 100;
    if (const std::size_t colon = variety.find(':'); colon != std::string_view::npos) {
        std::from_chars(variety.data() + colon + 1, variety.data() + variety.size(), percent);
    }
    return percent;
}

void addCombinations(std::vector<Combination>& combinations, const GoodsKind& kind) {
    std::string_view varieties = kind.Varieties;
    while (!varieties.empty()) {
        const std::size_t end = std::min(varieties.find('|'), varieties.size());
        const std::string_view variety = varieties.substr(0, end);
        for (const Packing& packing : kind.Packings) {
            combinations.push_back({&kind, variety.substr(0, variety.find(':')), pricePercent(variety), &packing});
        }
        varieties.remove_prefix(std::min(end + 1, varieties.size()));
    }
}

/// Leaves out as many as there are too many: no shop keeps every packing of everything.
std::vector<Combination> keptCombinations(const std::vector<Combination>& all, Random& random) {
    std::vector<std::size_t> places(all.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    while (places.size() > c_ItemCount) {
        places.erase(places.begin() + random.below(static_cast<int>(places.size())));
    }
    std::vector<Combination> kept;
    for (const std::size_t place : places) {
        kept.push_back(all[place]);
    }
    return kept;
}

/// The identifier of the group of that name under the parent, which is added when it is new.
int groupId(std::vector<StockGroup>& groups, std::string_view name, int parentId) {
    const auto found = std::ranges::find_if(
        groups, [&](const StockGroup& group) { return group.Name == name && group.ParentId == parentId; });
    const auto place = found - groups.begin();
    if (found == groups.end()) {
        groups.push_back({name, parentId});
    }
    return static_cast<int>(place) + 1;
}

void addUnits(Stock& stock, StockItem& item, int itemId, const Packing& packing) {
    item.FirstUnitId = static_cast<int>(stock.Units.size()) + 1;
    stock.Units.push_back({itemId, 0, packing.MainUnit, 1'000});
    for (const PackedUnit& unit : packing.Secondary) {
        if (!unit.Name.empty()) {
            stock.Units.push_back(
                {itemId, static_cast<int>(stock.Units.size()) + 1 - item.FirstUnitId, unit.Name, unit.Factor});
        }
    }
    item.UnitCount = static_cast<int>(stock.Units.size()) + 1 - item.FirstUnitId;
}

void addItem(Stock& stock, const Combination& combination, Random& random) {
    const GoodsKind& kind = *combination.Kind;
    const int group1 = groupId(stock.Groups1, kind.Group1, 0);
    const int group2 = groupId(stock.Groups2, kind.Group2, group1);
    StockItem item;
    item.Name =
        std::string(kind.Name) + " " + std::string(combination.Variety) + " " + std::string(combination.Packed->Text);
    item.Group2 = kind.Group2;
    item.Group3Id = groupId(stock.Groups3, kind.Group3, group2);
    item.VatRate = kind.VatRate;
    item.ShelfLifeDays = kind.ShelfLifeDays;
    item.IsActive = !random.chance(c_InactivePercent);
    // Hundredths of the currency times percents are ten-thousandths.
    item.UsualPrice = Price{kind.Price} * combination.Packed->PricePercent * combination.VarietyPercent *
                      random.between(92, 108) / 10'000;
    addUnits(stock, item, static_cast<int>(stock.Items.size()) + 1, *combination.Packed);
    stock.Items.push_back(std::move(item));
}

} // namespace

Stock makeStock() {
    std::vector<Combination> all;
    for (const auto kinds : {foodKinds(), drinkKinds(), householdKinds(), officeKinds(), toolKinds()}) {
        for (const GoodsKind& kind : kinds) {
            addCombinations(all, kind);
        }
    }
    Random random(c_Stream);
    Stock stock;
    for (const Combination& combination : keptCombinations(all, random)) {
        addItem(stock, combination, random);
    }
    return stock;
}

} // namespace refhost::sample
