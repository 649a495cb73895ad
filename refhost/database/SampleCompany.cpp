#include "refhost/database/SampleCompany.h"

#include "refhost/database/sample/Documents.h"
#include "refhost/database/sample/Suppliers.h"

#include <array>
#include <string>
#include <vector>

namespace refhost {

namespace {

using namespace sample;

using Columns = std::vector<std::string>;
using Row = std::vector<TDbValue>;
using Rows = std::vector<Row>;

constexpr std::chrono::months c_HistoryLength{18};

struct VatRate {
    const char* Name;
    const char* Percent;
    const char* FirstDay;
    const char* LastDay; ///< Null: still valid.
};

constexpr VatRate c_VatRates[] = {
    {"21 %", "21", "2013-01-01", nullptr},      {"12 %", "12", "2024-01-01", nullptr},
    {"0 %", "0", "2004-05-01", nullptr},        {"15 %", "15", "2013-01-01", "2023-12-31"},
    {"10 %", "10", "2015-01-01", "2023-12-31"},
};

constexpr const char* c_Users[] = {"novakova", "dvorak", "svoboda", "admin"};
constexpr std::array<const char*, c_WarehouseCount> c_Warehouses{"Hlavní sklad Praha", "Sklad Brno", "Sklad Ostrava"};

TDbValue integer(int number) {
    return std::int64_t{number};
}
TDbValue flag(bool isSet) {
    return integer(isSet ? 1 : 0);
}
TDbValue text(std::string_view value) {
    return AnsiString(value);
}
TDbValue textOrNull(std::string_view value) {
    return value.empty() ? TDbValue() : text(value);
}
/// Identifiers begin with 1: 0 is none.
TDbValue idOrNull(int id) {
    return id == 0 ? TDbValue() : integer(id);
}

int vatRateId(std::string_view name) {
    int id = 1;
    for (const VatRate& rate : c_VatRates) {
        if (rate.Name == name) {
            return id;
        }
        ++id;
    }
    throw std::logic_error("there is no VAT rate " + std::string(name));
}

Rows named(std::span<const char* const> names) {
    Rows rows;
    for (const char* name : names) {
        rows.push_back({integer(static_cast<int>(rows.size()) + 1), text(name)});
    }
    return rows;
}

void writeParameters(Database& database) {
    database.insertRows("UZIVATEL", Columns{"ID", "JMENO"}, named(c_Users));
    database.insertRows("SKLAD", Columns{"ID", "NAZEV"}, named(c_Warehouses));
    Rows rates;
    for (const VatRate& rate : c_VatRates) {
        rates.push_back({integer(static_cast<int>(rates.size()) + 1), text(rate.Name), text(rate.Percent),
                         text(rate.FirstDay), rate.LastDay == nullptr ? TDbValue() : text(rate.LastDay)});
    }
    database.insertRows("DPH", Columns{"ID", "NAZEV", "SAZBA", "PLATIOD", "PLATIDO"}, rates);
    // Local VAT is off; its rate waits for a company that turns it on.
    const Rows parameters{{text("DPH"), text("DPHBLIC"), text("0")},
                          {text("DPH"), text("SAZBADPHB"), text("2")},
                          {text("SKLAD"), text("POCETMESICUDODAVEK"), text("12")}};
    database.insertRows("GLOBALPARAM", Columns{"SEKCE", "NAZEV", "HODNOTA"}, parameters);
}

void writeSuppliers(Database& database) {
    Rows rows;
    for (const Supplier& supplier : suppliers()) {
        rows.push_back({integer(static_cast<int>(rows.size()) + 1), text(supplier.Name), text(supplier.Town)});
    }
    database.insertRows("DODAVATEL", Columns{"ID", "JMENO", "MESTO"}, rows);
}

void writeGroups(Database& database, std::string_view table, const std::vector<StockGroup>& groups,
                 const std::string& parentColumn) {
    Rows rows;
    for (const StockGroup& group : groups) {
        rows.push_back({integer(static_cast<int>(rows.size()) + 1), text(group.Name), integer(group.ParentId)});
    }
    Columns columns{"ID", "NAZEV", parentColumn};
    if (parentColumn.empty()) {
        columns.pop_back();
        for (Row& row : rows) {
            row.pop_back();
        }
    }
    database.insertRows(table, columns, rows);
}

void writeStock(Database& database, const Stock& stock) {
    writeGroups(database, "SKUPSPOL1", stock.Groups1, "");
    writeGroups(database, "SKUPSPOL2", stock.Groups2, "SSP1ID");
    writeGroups(database, "SKUPSPOL3", stock.Groups3, "SSP2ID");
    Rows items;
    for (const StockItem& item : stock.Items) {
        items.push_back({integer(static_cast<int>(items.size()) + 1), text(item.Name), integer(item.Group3Id),
                         integer(vatRateId(item.VatRate)), idOrNull(item.ShelfLifeDays), flag(item.IsActive)});
    }
    database.insertRows("SKLADPOL", Columns{"ID", "NAZEV", "SSP3ID", "DPHID", "TRVANLIVOSTDNU", "AKTIVNI"}, items);
    Rows units;
    for (const StockUnit& unit : stock.Units) {
        units.push_back({integer(static_cast<int>(units.size()) + 1), integer(unit.ItemId), integer(unit.Place),
                         text(unit.Name), text(quantityText(unit.Factor))});
    }
    database.insertRows("SKPL", Columns{"ID", "SKLPID", "PORADI", "NAZEV", "FAKTOR"}, units);
}

void writePriceLists(Database& database, const PriceLists& prices) {
    Rows rows;
    for (const PriceListEntry& entry : prices.entries()) {
        rows.push_back({integer(static_cast<int>(rows.size()) + 1), integer(entry.SupplierId), integer(entry.ItemId),
                        text(dateText(entry.FirstDay)), entry.LastDay ? text(dateText(*entry.LastDay)) : TDbValue(),
                        text(priceText(entry.UnitPrice)), text(decimalText(entry.Discount, 2))});
    }
    database.insertRows("DODCENIK", Columns{"ID", "DODVID", "SKLPID", "PLATIOD", "PLATIDO", "CENA", "SLEVA"}, rows);
}

Row orderLineRow(const Order& order, const OrderLine& line, int place) {
    return {integer(line.Id),
            integer(order.Id),
            integer(place),
            integer(line.ItemId),
            integer(line.UnitId),
            integer(order.WarehouseId),
            idOrNull(line.SupplierId),
            text(quantityText(line.Ordered)),
            text(quantityText(line.Delivered)),
            flag(line.isComplete()),
            textOrNull(line.Comment)};
}

void writeOrders(Database& database, const std::vector<Order>& orders) {
    Rows documents;
    Rows lines;
    for (const Order& order : orders) {
        const bool isTemplate = order.isTemplate();
        documents.push_back({integer(order.Id), flag(isTemplate), text(order.Number), textOrNull(order.TemplateName),
                             isTemplate ? TDbValue() : text(momentText(order.OrderedOn, order.TimeOfDay)),
                             idOrNull(order.SupplierId), integer(order.WarehouseId), flag(order.IsOpen)});
        int place = 0;
        for (const OrderLine& line : order.Lines) {
            lines.push_back(orderLineRow(order, line, ++place));
        }
    }
    database.insertRows("DODOBJEDNAVKA",
                        Columns{"ID", "VZOR", "CISLO", "NAZEV", "OBJEDNANIDC", "DODVID", "SKLDID", "OTEVRENO"},
                        documents);
    database.insertRows("DODOBJPOL",
                        Columns{"ID", "DDOBID", "PORADI", "SKLPID", "SKPLID", "SKLDID", "DODVID", "MNOZSTVI", "DODANO",
                                "KOMPLETNI", "KOMENTAR"},
                        lines);
}

/// Of the prices only the one without VAT before the discount; the database completes the others.
Row noteLineRow(const DeliveryNote& note, const NoteLine& line, const StockItem& item, int id, int place) {
    const bool perishes = item.ShelfLifeDays > 0;
    return {integer(id),
            integer(note.Id),
            integer(place),
            integer(line.ItemId),
            integer(note.WarehouseId),
            integer(vatRateId(item.VatRate)),
            text(quantityText(line.Amount)),
            text(decimalText(line.Discount, 2)),
            text(priceText(line.UnitPrice)),
            perishes ? text(dateText(note.Date + std::chrono::days(item.ShelfLifeDays))) : TDbValue(),
            idOrNull(line.OrderLineId)};
}

void writeDeliveryNotes(Database& database, const std::vector<DeliveryNote>& notes, const Stock& stock) {
    Rows documents;
    Rows lines;
    Rows sources;
    for (const DeliveryNote& note : notes) {
        documents.push_back({integer(note.Id), text(note.Number), text(dateText(note.Date)), integer(note.SupplierId),
                             integer(note.WarehouseId), flag(note.IsOpen)});
        int place = 0;
        for (const NoteLine& line : note.Lines) {
            lines.push_back(
                noteLineRow(note, line, stock.item(line.ItemId), static_cast<int>(lines.size()) + 1, ++place));
        }
        for (const int orderId : note.OrderIds) {
            sources.push_back({integer(static_cast<int>(sources.size()) + 1), integer(note.Id), integer(orderId)});
        }
    }
    database.insertRows("DODAK", Columns{"ID", "CISLO", "DATUM", "DODVID", "SKLDID", "OTEVRENO"}, documents);
    database.insertRows("DODAKPOL",
                        Columns{"ID", "DODKID", "PORADI", "SKLPID", "SKLDID", "DPHID", "MNOZSTVI", "SLEVA",
                                "JEDNCENABBEZSLEVY", "TRVANLIVOST", "DOBSID"},
                        lines);
    database.insertRows("DODAKZDROJ", Columns{"ID", "DODKID", "DDOBIDZDROJ"}, sources);
    database.runBuiltInScript("sample/complete-note-lines.sql");
}

} // namespace

void createSampleCompany(Database& database, int extraLines) {
    createSampleCompany(database, extraLines, localToday());
}

void createSampleCompany(Database& database, int extraLines, std::chrono::sys_days today) {
    const Day firstDay = std::chrono::sys_days(std::chrono::year_month_day(today) - c_HistoryLength);
    const Stock stock = makeStock();
    const PriceLists prices(stock, firstDay, today);
    std::vector<Order> orders = makeOrders(stock, prices, firstDay, today);
    std::vector<DeliveryNote> notes = makeDeliveries(orders, today);
    if (extraLines > 0) {
        addLongDocuments(orders, notes, stock, extraLines, today);
    }

    writeParameters(database);
    writeSuppliers(database);
    writeStock(database, stock);
    writePriceLists(database, prices);
    writeOrders(database, orders);
    writeDeliveryNotes(database, notes, stock);
}

} // namespace refhost
