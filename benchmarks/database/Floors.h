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
/// $1 the document, $2 the template: its lines as they are stored, in 16 columns.
extern const std::string c_OrderFromOrder;
/// $1 the document, $2 the supplier: the items that he lists, in 16 columns.
extern const std::string c_OrderFromPriceList;

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
/// $1 the warehouse, $2 the supplier, $3 how many at most: the columns of the list of orders.
extern const std::string c_OrderList;

} // namespace benchmark::floors
