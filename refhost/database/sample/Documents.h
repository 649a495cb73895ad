#pragma once

#include "refhost/database/sample/PriceLists.h"
#include "refhost/database/sample/Stock.h"

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace refhost::sample {

struct OrderLine {
    int Id = 0;
    int ItemId = 0;
    int UnitId = 0;
    Quantity Ordered = 0;    ///< In the line's unit.
    Quantity InMainUnit = 0; ///< The same in the item's main unit.
    Quantity Delivered = 0;  ///< In the main unit.
    int SupplierId = 0;      ///< 0: the document's.
    Price UnitPrice = 0;     ///< Of the supplier's list on the day of the order.
    int Discount = 0;        ///< In hundredths of a percent.
    std::string_view Comment;

    bool isComplete() const { return Delivered >= InMainUnit; }
};

/// An order, or a template when it has a name.
struct Order {
    int Id = 0;
    std::string Number;
    std::string TemplateName;
    Day OrderedOn;
    std::chrono::minutes TimeOfDay{};
    int SupplierId = 0; ///< 0: none.
    int WarehouseId = 0;
    bool IsOpen = false;
    std::vector<OrderLine> Lines;

    bool isTemplate() const { return !TemplateName.empty(); }
    bool isComplete() const;
};

struct NoteLine {
    int ItemId = 0;
    Quantity Amount = 0; ///< In the main unit; negative for a return.
    Price UnitPrice = 0;
    int Discount = 0;    ///< In hundredths of a percent.
    int OrderLineId = 0; ///< 0: not ordered.
};

struct DeliveryNote {
    int Id = 0;
    std::string Number;
    Day Date;
    int SupplierId = 0;
    int WarehouseId = 0;
    bool IsOpen = false;
    std::vector<int> OrderIds; ///< From which orders its lines come.
    std::vector<NoteLine> Lines;
};

/// How many warehouses there are; their identifiers begin with 1.
inline constexpr int c_WarehouseCount = 3;

/// The templates, then the orders by the moment of ordering, with identifiers in this order; nothing is delivered yet.
std::vector<Order> makeOrders(const Stock& stock, const PriceLists& prices, Day firstDay, Day today);

/// The delivery notes to the orders by date, with identifiers in this order. Writes into the orders what came of them
/// and closes those of which nothing more is expected.
std::vector<DeliveryNote> makeDeliveries(std::vector<Order>& orders, Day today);

/// Adds one open order, delivery note and template with so many lines each.
void addLongDocuments(std::vector<Order>& orders, std::vector<DeliveryNote>& notes, const Stock& stock, int lineCount,
                      Day today);

/// The number of the order with the identifier, as saving numbers new ones too: "OV2027-000123".
std::string orderNumber(Day orderedOn, int id);

} // namespace refhost::sample
