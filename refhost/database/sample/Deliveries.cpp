#include "refhost/database/sample/Documents.h"
#include "refhost/database/sample/Random.h"
#include "refhost/database/sample/Suppliers.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace refhost::sample {

namespace {

using std::chrono::days;

constexpr std::uint64_t c_Stream = 5;
constexpr std::size_t c_OpenNotes = 6;
constexpr std::size_t c_EmptyNotes = 2;
/// How long something may still come of an order.
constexpr days c_OrderStaysOpen{21};

/// Of a hundred lines.
constexpr int c_MissingPercent = 4;
constexpr int c_PartialPercent = 7;
constexpr int c_MorePercent = 2;
/// Of a hundred notes: something of the last one goes back.
constexpr int c_ReturnPercent = 6;
/// Of a hundred deliveries that left something out: it comes in a note of its own, or with the next order.
constexpr int c_OwnNotePercent = 35;
constexpr int c_WithNextPercent = 80;

/// The suppliers' vans on their way: turns orders into delivery notes, supplier by supplier as the time goes.
class Deliveries {
public:
    explicit Deliveries(Day today) : today_(today) {}

    void deliver(Order& order);
    std::vector<DeliveryNote> takeNotes() { return std::move(notes_); }

private:
    using Place = std::pair<int, int>; ///< Supplier and warehouse.

    DeliveryNote begin(const Order& order, Day date) const;
    Quantity arriving(const OrderLine& line);
    void addLine(DeliveryNote& note, OrderLine& line, Quantity amount);
    void addRest(DeliveryNote& note, Order& order);
    void addReturn(DeliveryNote& note, const DeliveryNote& last);
    void keep(DeliveryNote note);

    Day today_;
    Random random_{c_Stream};
    std::vector<DeliveryNote> notes_;
    std::map<Place, DeliveryNote> last_;
    std::map<Place, Order*> unfinished_; ///< The last order that has something outstanding.
};

DeliveryNote Deliveries::begin(const Order& order, Day date) const {
    DeliveryNote note;
    note.Date = date;
    note.SupplierId = order.SupplierId;
    note.WarehouseId = order.WarehouseId;
    return note;
}

Quantity Deliveries::arriving(const OrderLine& line) {
    const int luck = random_.below(100);
    const Quantity whole = line.InMainUnit / c_One;
    if (luck < c_MissingPercent) {
        return 0;
    }
    if (luck < c_MissingPercent + c_PartialPercent) {
        return whole < 2 ? line.InMainUnit : c_One * std::max<Quantity>(1, whole * random_.between(30, 70) / 100);
    }
    if (luck < c_MissingPercent + c_PartialPercent + c_MorePercent) {
        return line.InMainUnit + c_One * std::max<Quantity>(1, whole / 10);
    }
    return line.InMainUnit;
}

void Deliveries::addLine(DeliveryNote& note, OrderLine& line, Quantity amount) {
    if (amount == 0) {
        return;
    }
    line.Delivered += amount;
    note.Lines.push_back({line.ItemId, amount, line.UnitPrice, line.Discount, line.Id});
}

void Deliveries::addRest(DeliveryNote& note, Order& order) {
    for (OrderLine& line : order.Lines) {
        if (!line.isComplete()) {
            addLine(note, line, line.InMainUnit - line.Delivered);
        }
    }
    note.OrderIds.push_back(order.Id);
}

void Deliveries::addReturn(DeliveryNote& note, const DeliveryNote& last) {
    NoteLine line = last.Lines[static_cast<std::size_t>(random_.below(static_cast<int>(last.Lines.size())))];
    if (last.Date > note.Date || line.Amount < c_One) {
        return;
    }
    line.Amount = -c_One * std::min<Quantity>(line.Amount / c_One, random_.between(1, 3));
    line.OrderLineId = 0;
    note.Lines.push_back(line);
}

void Deliveries::keep(DeliveryNote note) {
    if (note.Lines.empty()) {
        return;
    }
    last_[Place(note.SupplierId, note.WarehouseId)] = note;
    notes_.push_back(std::move(note));
}

void Deliveries::deliver(Order& order) {
    const Supplier& supplier = suppliers()[static_cast<std::size_t>(order.SupplierId) - 1];
    const Place place(order.SupplierId, order.WarehouseId);
    const Day date = afterWorkingDays(order.OrderedOn, supplier.WorkingDaysToDeliver + random_.below(2));
    if (date > today_) {
        return;
    }
    DeliveryNote note = begin(order, date);
    if (Order* earlier = std::exchange(unfinished_[place], nullptr);
        earlier != nullptr && random_.chance(c_WithNextPercent)) {
        addRest(note, *earlier);
    }
    for (OrderLine& line : order.Lines) {
        addLine(note, line, arriving(line));
    }
    note.OrderIds.push_back(order.Id);
    if (const auto last = last_.find(place); last != last_.end() && random_.chance(c_ReturnPercent)) {
        addReturn(note, last->second);
    }
    keep(std::move(note));

    if (order.isComplete()) {
        return;
    }
    const Day restDate = afterWorkingDays(date, random_.between(2, 4));
    if (!random_.chance(c_OwnNotePercent) || restDate > today_) {
        unfinished_[place] = &order;
        return;
    }
    DeliveryNote rest = begin(order, restDate);
    addRest(rest, order);
    keep(std::move(rest));
}

/// Notes of today that a clerk has just begun, for orders of which nothing came yet: of the newest ones whose supplier
/// delivered at least three times before.
std::vector<DeliveryNote> emptyNotes(const std::vector<Order>& orders, const std::vector<DeliveryNote>& notes,
                                     Day today) {
    std::vector<DeliveryNote> empty;
    for (auto order = orders.rbegin(); order != orders.rend() && empty.size() < c_EmptyNotes; ++order) {
        const bool isWaiting =
            !order->isTemplate() && !order->Lines.empty() &&
            std::ranges::all_of(order->Lines, [](const OrderLine& line) { return line.Delivered == 0; });
        const bool isTaken = std::ranges::find(empty, order->SupplierId, &DeliveryNote::SupplierId) != empty.end();
        if (!isWaiting || isTaken || std::ranges::count(notes, order->SupplierId, &DeliveryNote::SupplierId) < 3) {
            continue;
        }
        DeliveryNote note;
        note.Date = today;
        note.SupplierId = order->SupplierId;
        note.WarehouseId = order->WarehouseId;
        empty.push_back(note);
    }
    return empty;
}

/// Gives the notes their identifiers and numbers. Suppliers deliver to others too, so their numbers leave gaps, and
/// begin anew each year.
void numberNotes(std::vector<DeliveryNote>& notes, Random& random) {
    std::map<int, std::pair<int, int>> lastOf; // supplier: year and running number
    int id = 0;
    for (DeliveryNote& note : notes) {
        note.Id = ++id;
        auto& [year, running] = lastOf[note.SupplierId];
        const bool isFirst = year == 0;
        if (year != yearOf(note.Date) &&
            suppliers()[static_cast<std::size_t>(note.SupplierId) - 1].Numbers != NumberStyle::Running) {
            running = 0;
        }
        running += isFirst ? random.between(200, 4'000) : random.between(3, 60);
        year = yearOf(note.Date);
        note.Number =
            noteNumber(suppliers()[static_cast<std::size_t>(note.SupplierId) - 1].Numbers, running, note.Date);
    }
}

} // namespace

std::vector<DeliveryNote> makeDeliveries(std::vector<Order>& orders, Day today) {
    Deliveries deliveries(today);
    for (Order& order : orders) {
        if (!order.isTemplate() && !order.Lines.empty()) {
            deliveries.deliver(order);
        }
    }
    std::vector<DeliveryNote> notes = deliveries.takeNotes();
    std::ranges::stable_sort(notes, {},
                             [](const DeliveryNote& note) { return std::tuple(note.Date, note.SupplierId); });
    std::ranges::move(emptyNotes(orders, notes, today), std::back_inserter(notes));
    Random random(c_Stream);
    numberNotes(notes, random);
    const std::size_t openNotes = std::min(notes.size(), c_OpenNotes + c_EmptyNotes);
    for (std::size_t i = notes.size() - openNotes; i < notes.size(); ++i) {
        notes[i].IsOpen = true;
    }
    for (Order& order : orders) {
        if (!order.isTemplate()) {
            order.IsOpen = order.Lines.empty() || (!order.isComplete() && order.OrderedOn >= today - c_OrderStaysOpen);
        }
    }
    return notes;
}

} // namespace refhost::sample
