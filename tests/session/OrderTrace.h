#pragma once

#include "tests/session/DeliveryNoteTrace.h"

#include <string>

/// Lines of the trace of sessions on the contract company's orders and order templates, worked out by hand from that
/// company (tests/database/ContractCompany.cpp), never taken from a trace.
namespace ordertrace {

/// One line of an order as a save sends it; a quantity that is empty goes as null.
struct Row {
    const char* item;
    const char* main = "";
    const char* first = "";
    const char* second = "";
    const char* warehouse = "Hlavní sklad";
    const char* supplier = "Mlýn Lípa";
    const char* description = "";
    const char* comment = "";
};

/// What is asked until the master check is over, for the document and its settings type.
Lines opening(int document, int settingsType);
/// The restored placement of orders (10) or templates (20).
std::string placement(int type);
inline constexpr Row c_EmptyRow{.item = "", .warehouse = "", .supplier = ""};

/// The row insert of a line; the units are those of the company's items.
std::string rowInsert(const Row& row);
/// The closing call with the identifiers of the sources as they stand in the trace.
std::string closing(int document, const std::string& order, const std::string& orderTemplate, const std::string& note);

} // namespace ordertrace
