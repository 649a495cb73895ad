#pragma once

#include "tests/database/Engines.h"
#include "tests/session/HostSession.h"
#include "tests/session/OrderTrace.h"
#include "tests/session/SessionWords.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

/// Every way in which the lines of an order or order template get filled, as sessions on the contract company: what
/// each asks, sends and stores once 2.5 was typed as the first line's quantity. Worked out by hand from that company
/// (tests/database/ContractCompany.cpp), never taken from a trace.
namespace ordersources {

/// What a clerk does in the dialog of the source.
using Choice = std::function<void(HostSession&, const SessionWords&)>;

struct SourceCase {
    const char* name;
    bool isTemplate;
    int document;
    const char* search; ///< By which the document is found on its screen.
    int menuEntry;      ///< Place in the screen's menu; 0 for the source that the menu does not offer.
    const char* code;   ///< The source's.
    int number;         ///< The source's; the settings are filed under 10 or 20 more.
    const char* change; ///< SQL that the company needs first; empty for none.
    Choice choose;      ///< Empty where nothing is asked.
    Lines reading;      ///< The checks of the source and the reading of its lines.
    std::vector<ordertrace::Row> rows;
    std::string closing;
    Lines storedLines;
};

/// A contract company of its own on the engine, changed by that SQL: its address for the host's command line.
std::string companyOn(refhost::Engine engine, const std::string& change = {});

const std::vector<SourceCase>& sourceCases();
void PrintTo(const SourceCase& source, std::ostream* out);

/// Types the source into the dialog of that title and confirms it.
Choice typed(const char* SessionWords::*title, const char* text);
/// Confirms what the dialog of that title shows.
Choice confirmed(const char* SessionWords::*title);

/// The check of a source that was typed, not picked.
std::string typedCheck(const char* kind, int document, const char* textParam, const char* text, const char* idParam);
/// The three levels' checks, that of the whole and the reading; `names` are typed, `ids` stand so in the trace.
Lines groups(int document, const std::vector<const char*>& names, const std::string& ids, int rows);
/// The reading of the lines, whose parameters after the document stand in `source`.
std::string fill(const char* kind, int document, const char* source, int rows);

/// A stored line as `storedLines` tells it.
std::string stored(int document, int place, const char* item, const char* quantity, const char* unit,
                   const char* supplier = "Mlýn Lípa");
/// What the orders, or the templates, have stored beside the company's own lines.
Lines storedOrderLines(const HostSession& session, bool ofTemplates = false);

} // namespace ordersources
