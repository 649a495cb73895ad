#include "refhost/database/sample/Documents.h"
#include "refhost/database/sample/Random.h"
#include "refhost/database/sample/Suppliers.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace refhost::sample {

namespace {

using std::chrono::days;
using std::chrono::minutes;

constexpr std::uint64_t c_Stream = 3;
constexpr std::uint64_t c_TemplateStream = 4;
constexpr minutes c_DayBegins{7 * 60};
constexpr int c_WorkingMinutes = 8 * 60;

constexpr std::string_view c_Comments[] = {
    "dodat do 8 hodin", "po telefonické domluvě", "dodat s dodacím listem předem", "náhradu předem odsouhlasit",
    "akční cena",       "závoz zadní rampou",
};

/// Quantities that people order, in main units: of dear things few, of screws hundreds.
constexpr int c_FewPieces[] = {1, 2, 2, 3, 4, 5, 6};
constexpr int c_Pieces[] = {5, 6, 8, 10, 12, 15, 20, 24, 30, 40, 50};
constexpr int c_ManyPieces[] = {100, 150, 200, 250, 300, 500};
constexpr int c_Packages[] = {1, 1, 2, 2, 3, 4, 5, 6, 8, 10};

/// What one package of a secondary unit may cost at most (in ten-thousandths of the currency) to be ordered at all.
constexpr Price c_DearestPackage = 80'000'000;

struct TemplateKind {
    std::string_view Name;
    int SupplierId; ///< 0: its lines name their own suppliers.
    int LineCount;
    bool IsOpen;
};

constexpr TemplateKind c_Templates[] = {
    {"Týdenní závoz mléčných výrobků", 7, 14, true},
    {"Pravidelný závoz pečiva", 11, 12, true},
    {"Ovoce a zelenina na pondělí", 13, 16, true},
    {"Maso a uzeniny na víkend", 9, 15, true},
    {"Nápoje – letní sezóna", 19, 18, true},
    {"Suché potraviny – doplnění skladu", 1, 24, true},
    {"Drogerie – čtvrtletní zásoba", 24, 30, true},
    {"Kancelář – měsíční spotřeba", 31, 10, true},
    {"Spojovací materiál – regál A", 37, 20, true},
    {"Vybavení nové prodejny", 0, 40, true},
    {"Vánoční sortiment", 0, 25, false},
    {"Vzor k doplnění", 0, 0, true},
};

/// A line's unit and quantity, as a clerk would choose them for goods of this price.
void chooseQuantity(OrderLine& line, const StockItem& item, const Stock& stock, Random& random) {
    line.UnitId = item.FirstUnitId;
    const int place = random.below(item.UnitCount + 1) % item.UnitCount; // the main unit twice as often
    const StockUnit& unit = stock.unit(item.FirstUnitId + place);
    if (place > 0 && item.UsualPrice * unit.Factor / c_One <= c_DearestPackage) {
        line.UnitId = item.FirstUnitId + place;
        const bool isPallet = unit.Name == "paleta";
        line.Ordered = c_One * (isPallet ? 1 : random.pick<int>(c_Packages));
    } else if (item.UsualPrice < 50'000) {
        line.Ordered = c_One * random.pick<int>(c_ManyPieces);
    } else {
        line.Ordered =
            c_One * (item.UsualPrice > 3'000'000 ? random.pick<int>(c_FewPieces) : random.pick<int>(c_Pieces));
    }
    line.InMainUnit = converted(line.Ordered, stock.unit(line.UnitId).Factor);
}

OrderLine makeLine(const PriceListEntry& offer, const Stock& stock, Random& random) {
    OrderLine line;
    line.ItemId = offer.ItemId;
    line.UnitPrice = offer.UnitPrice;
    line.Discount = offer.Discount;
    chooseQuantity(line, stock.item(offer.ItemId), stock, random);
    if (random.chance(4)) {
        line.Comment = random.pick<std::string_view>(c_Comments);
    }
    return line;
}

/// Lines of different items out of what is offered.
std::vector<OrderLine> makeLines(std::vector<PriceListEntry> offers, int count, const Stock& stock, Random& random) {
    std::vector<OrderLine> lines;
    while (count-- > 0 && !offers.empty()) {
        const auto chosen = offers.begin() + random.below(static_cast<int>(offers.size()));
        lines.push_back(makeLine(*chosen, stock, random));
        offers.erase(chosen);
    }
    return lines;
}

/// Lines of a template without a supplier: a few from each of several suppliers.
std::vector<OrderLine> makeMixedLines(int count, const Stock& stock, const PriceLists& prices, Day today,
                                      Random& random) {
    std::vector<OrderLine> lines;
    constexpr int c_LinesEach = 5;
    for (int supplierId = 1 + random.below(3); count > 0; supplierId += 4) {
        for (OrderLine line :
             makeLines(prices.offers(supplierId, today), std::min(count, c_LinesEach), stock, random)) {
            line.SupplierId = supplierId;
            lines.push_back(line);
        }
        count -= c_LinesEach;
    }
    return lines;
}

Order makeTemplate(const TemplateKind& kind, int id, const Stock& stock, const PriceLists& prices, Day today,
                   Random& random) {
    Order order;
    order.Number = "VZ-" + std::string(id < 10 ? "0" : "") + std::to_string(id);
    order.TemplateName = kind.Name;
    order.SupplierId = kind.SupplierId;
    order.WarehouseId = 1 + random.below(c_WarehouseCount);
    order.IsOpen = kind.IsOpen;
    order.Lines = kind.SupplierId == 0
                      ? makeMixedLines(kind.LineCount, stock, prices, today, random)
                      : makeLines(prices.offers(kind.SupplierId, today), kind.LineCount, stock, random);
    return order;
}

/// When each order is written, to whom and for which warehouse; the lines come later.
std::vector<Order> planOrders(Day firstDay, Day today, Random& random) {
    std::vector<Order> orders;
    for (int supplierId = 1; supplierId <= static_cast<int>(suppliers().size()); ++supplierId) {
        const int rhythm = suppliers()[static_cast<std::size_t>(supplierId) - 1].OrderedEveryDays;
        const int usualWarehouse = 1 + random.below(c_WarehouseCount);
        for (Day day = firstDay + days(random.below(rhythm)); workingDayFrom(day) < today;
             day += days(rhythm + random.between(-4, 4))) {
            Order order;
            order.OrderedOn = workingDayFrom(day);
            order.TimeOfDay = c_DayBegins + minutes(random.below(c_WorkingMinutes));
            order.SupplierId = supplierId;
            order.WarehouseId = random.chance(75) ? usualWarehouse : 1 + random.below(c_WarehouseCount);
            orders.push_back(order);
        }
    }
    std::ranges::sort(
        orders, {}, [](const Order& order) { return std::tuple(order.OrderedOn, order.TimeOfDay, order.SupplierId); });
    return orders;
}

/// Two orders that a clerk has just begun: one for a supplier, one that gets its supplier from its first lines.
std::vector<Order> emptyOrders(Day today) {
    Order forSupplier;
    forSupplier.OrderedOn = today;
    forSupplier.TimeOfDay = c_DayBegins;
    forSupplier.SupplierId = 24;
    forSupplier.WarehouseId = 1;
    Order forNobody = forSupplier;
    forNobody.SupplierId = 0;
    return {forSupplier, forNobody};
}

void numberLines(std::vector<Order>& orders) {
    int lineId = 0;
    for (Order& order : orders) {
        for (OrderLine& line : order.Lines) {
            line.Id = ++lineId;
        }
    }
}

} // namespace

bool Order::isComplete() const {
    return std::ranges::all_of(Lines, &OrderLine::isComplete);
}

std::string orderNumber(Day orderedOn, int id) {
    constexpr std::size_t c_Digits = 6;
    const std::string digits = std::to_string(id);
    return "OV" + std::to_string(yearOf(orderedOn)) + "-" +
           std::string(c_Digits - std::min(c_Digits, digits.size()), '0') + digits;
}

std::vector<Order> makeOrders(const Stock& stock, const PriceLists& prices, Day firstDay, Day today) {
    std::vector<Order> orders;
    Random templateRandom(c_TemplateStream);
    for (const TemplateKind& kind : c_Templates) {
        const int id = static_cast<int>(orders.size()) + 1;
        orders.push_back(makeTemplate(kind, id, stock, prices, today, templateRandom));
        orders.back().Id = id;
    }
    Random random(c_Stream);
    std::vector<Order> planned = planOrders(firstDay, today, random);
    for (Order& order : planned) {
        order.Lines = makeLines(prices.offers(order.SupplierId, order.OrderedOn), random.between(2, 11), stock, random);
    }
    std::ranges::move(emptyOrders(today), std::back_inserter(planned));
    for (Order& order : planned) {
        order.Id = static_cast<int>(orders.size()) + 1;
        order.Number = orderNumber(order.OrderedOn, order.Id);
        orders.push_back(std::move(order));
    }
    numberLines(orders);
    return orders;
}

} // namespace refhost::sample
