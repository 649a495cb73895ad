#include "refhost/database/sample/Documents.h"

namespace refhost::sample {

namespace {

/// The supplier with the widest choice.
constexpr int c_SupplierId = 1;
constexpr int c_WarehouseId = 1;

/// The items one after the other, again from the first one when there are not enough.
int itemIdAt(int line, const Stock& stock) {
    return line % static_cast<int>(stock.Items.size()) + 1;
}

Quantity quantityAt(int line) {
    return c_One * (line % 9 + 1);
}

int lastLineId(const std::vector<Order>& orders) {
    for (auto order = orders.rbegin(); order != orders.rend(); ++order) {
        if (!order->Lines.empty()) {
            return order->Lines.back().Id;
        }
    }
    return 0;
}

std::vector<OrderLine> makeOrderLines(const Stock& stock, int count, int firstId) {
    std::vector<OrderLine> lines;
    for (int i = 0; i < count; ++i) {
        OrderLine line;
        line.Id = firstId + i;
        line.ItemId = itemIdAt(i, stock);
        line.UnitId = stock.item(line.ItemId).FirstUnitId;
        line.Ordered = quantityAt(i);
        line.InMainUnit = line.Ordered;
        lines.push_back(line);
    }
    return lines;
}

} // namespace

void addLongDocuments(std::vector<Order>& orders, std::vector<DeliveryNote>& notes, const Stock& stock, int lineCount,
                      Day today) {
    Order order;
    order.Id = static_cast<int>(orders.size()) + 1;
    order.Number = orderNumber(today, order.Id);
    order.OrderedOn = today;
    order.TimeOfDay = std::chrono::hours(7);
    order.SupplierId = c_SupplierId;
    order.WarehouseId = c_WarehouseId;
    order.IsOpen = true;
    order.Lines = makeOrderLines(stock, lineCount, lastLineId(orders) + 1);

    Order orderTemplate = order;
    orderTemplate.Id = order.Id + 1;
    orderTemplate.Number = "VZ-" + std::to_string(orderTemplate.Id);
    orderTemplate.TemplateName = "Dlouhý vzor, počet řádků " + std::to_string(lineCount);
    orderTemplate.Lines = makeOrderLines(stock, lineCount, order.Lines.back().Id + 1);

    DeliveryNote note;
    note.Id = static_cast<int>(notes.size()) + 1;
    note.Number = "DLOUHY-" + std::to_string(lineCount);
    note.Date = today;
    note.SupplierId = c_SupplierId;
    note.WarehouseId = c_WarehouseId;
    note.IsOpen = true;
    for (int i = 0; i < lineCount; ++i) {
        const int itemId = itemIdAt(i, stock);
        note.Lines.push_back({itemId, quantityAt(i), stock.item(itemId).UsualPrice, 0, 0});
    }

    orders.push_back(std::move(order));
    orders.push_back(std::move(orderTemplate));
    notes.push_back(std::move(note));
}

} // namespace refhost::sample
