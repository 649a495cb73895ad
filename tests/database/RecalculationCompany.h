#pragma once

#include "refhost/database/Database.h"

namespace refhost {

inline constexpr const char* c_CompanyWarehouse = "Hlavní sklad";
inline constexpr const char* c_CompanyItem = "Mouka hladká";

/// Adds to an empty schema what delivery-note lines need: the VAT rates 21, 12 and 0 % and the former 15 %, local VAT
/// of 2 %, switched off, one warehouse and one item.
void addRecalculationCompany(Database& database);

void switchLocalVat(Database& database, bool on);

} // namespace refhost
