#pragma once

#include "tests/database/Engines.h"

#include <string>

/// A company small enough to know by heart, so that what a session asks and stores can be worked out by hand:
///
/// two suppliers, two warehouses, one VAT rate of 21 %, two items, each priced by its last delivery. What is said of
/// nothing else is of the first supplier and warehouse.
///
///   delivery note 1, closed: 2 × Mouka at 10,00 before VAT, and 5 × Cukr at 20,00 with a discount of 10 %
///   delivery note 2, open and empty: the document of the sessions
///   delivery note 3, the latest, closed and empty, of the second supplier
///   order 1, open: 4 × Mouka and 3 × Cukr, nothing delivered
///   order 2, of the second supplier, order 3, for the second warehouse: each 1 × Mouka, nothing delivered
///   order 4: 1 × Mouka, delivered
///
/// Numbers differ in their last digit, which is that of the record: DL1, OV2027-000001.
namespace tinycompany {

inline constexpr int c_ClosedNote = 1;
inline constexpr int c_OpenNote = 2;
inline constexpr int c_Order = 1;
inline constexpr const char* c_OrderNumber = "OV2027-000001";
inline constexpr const char* c_ClosedNoteNumber = "DL1";

/// Makes the company on the engine; its address for the host's command line, as "novakova". It disappears with the test
/// program.
std::string on(refhost::Engine engine);

} // namespace tinycompany
