#pragma once

#include "benchmarks/database/BareSession.h"

#include <string>

/// The floors: what the same work costs when nothing is checked, computed or written for people. The same SQL on both
/// engines.
namespace benchmark::floors {

/// $1 the note, $2 the order: its lines with names, quantities and the price of today, in 26 columns.
extern const std::string c_NoteFromOrder;
/// $1 the note, $2 the source: its lines as they are stored, in 26 columns.
extern const std::string c_NoteFromNote;
/// $1 the note, $2 its supplier: the last line of each item in his latest three notes, likewise.
extern const std::string c_NoteFromLatest;
/// $1 the document, $2 the template: its lines as they are stored, in 16 columns.
extern const std::string c_OrderFromOrder;
/// $1 the order, $2 the note: its lines.
extern const std::string c_OrderFromNote;
/// $1 the order, $2 its supplier: the last line of each item in his latest three orders, in all that he delivered.
extern const std::string c_OrderFromLatest;
extern const std::string c_OrderFromDeliveries;
/// $1 the document, $2 the supplier: the items that he lists, in 16 columns.
extern const std::string c_OrderFromPriceList;
/// $1 the document, $2 the group of the first level: its active items.
extern const std::string c_OrderFromGroup;

/// Gives its four parameters back.
extern const std::string c_Echo;

/// The tables in which the floors keep rows until they are closed.
std::string noteStaging(const BareSession& session);
std::string orderStaging(const BareSession& session);
/// $1 to $23 the cells of a delivery note's row: kept with the identifiers of its three names.
extern const std::string c_StageNoteRow;
/// $1 to $7: item, warehouse, supplier, unit, quantity, description, comment.
extern const std::string c_StageOrderRow;
/// $1 the document: the kept rows become its lines.
extern const std::string c_CloseNote;
extern const std::string c_CloseOrder;
/// What came is noted on the order lines.
extern const std::string c_CloseOrderLines;

/// $1 the number.
extern const std::string c_OrderByNumber;
/// $1 the warehouse, $2 the supplier: the columns of the lists of documents.
extern const std::string c_OrderList;
extern const std::string c_TemplateList;
extern const std::string c_NoteList;
/// The suppliers who list something; $1 the warehouse: those who delivered something into it.
extern const std::string c_ListedSuppliers;
extern const std::string c_DeliveringSuppliers;

} // namespace benchmark::floors
