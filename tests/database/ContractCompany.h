#pragma once

#include "refhost/database/Database.h"

namespace refhost {

/// A small company made by hand for the tests of the contract, on an empty schema. ContractCompany.cpp is its list; the
/// tests work their expectations out from there. Its user "novakova" has no rows yet: none keeps anything.
void addContractCompany(Database& database);

inline constexpr std::int64_t c_MainWarehouse = 1;   ///< "Hlavní sklad"
inline constexpr std::int64_t c_BranchWarehouse = 2; ///< "Pobočka Čáslav"

inline constexpr std::int64_t c_Mill = 1;   ///< "Mlýn Lípa"
inline constexpr std::int64_t c_Drinks = 2; ///< "Nápoje Švec"
inline constexpr std::int64_t c_Silent = 3; ///< "Čajovna Říp": lists nothing, delivers nothing
inline constexpr std::int64_t c_Missing = 999;

inline constexpr std::int64_t c_NoteOfMill = 1;       ///< DL-1, 1.2.2026, closed, main warehouse
inline constexpr std::int64_t c_OpenNote = 2;         ///< DL-2, 15.2.2026, Mill, main warehouse
inline constexpr std::int64_t c_NoteOfDrinks = 3;     ///< DL-3, 20.2.2026, Drinks, main warehouse
inline constexpr std::int64_t c_NoteOfBranch = 4;     ///< DL-4, 5.3.2026, Mill, branch
inline constexpr std::int64_t c_NamesakeOfDrinks = 5; ///< DL-1 again, 1.10.2025, Drinks, closed
inline constexpr std::int64_t c_SameDayNote = 6;      ///< DL-6, 15.2.2026, Mill, main warehouse
inline constexpr std::int64_t c_OldNote = 7;          ///< DL-7, 31.12.2025, Mill, main warehouse

inline constexpr std::int64_t c_Order = 1;          ///< OBJ-1, 10.2.2026 8:30, Mill, main warehouse, partly delivered
inline constexpr std::int64_t c_DeliveredOrder = 2; ///< OBJ-2, 1.2.2026, Mill, main warehouse, fully delivered
inline constexpr std::int64_t c_OrderOfDrinks = 3;  ///< OBJ-3, 10.2.2026 23:59:59, Drinks, main warehouse
inline constexpr std::int64_t c_OrderOfBranch = 4;  ///< OBJ-4, 10.4.2026, Mill, branch
inline constexpr std::int64_t c_FreeOrder = 5;      ///< OBJ-5, 12.2.2026, no supplier, main warehouse, no lines
inline constexpr std::int64_t c_ClosedOrder = 6;    ///< OBJ-6, 1.3.2026, Mill, main warehouse, closed
inline constexpr std::int64_t c_EarlierOrder = 10;  ///< OBJ-10, 9.2.2026, Mill, main warehouse

inline constexpr std::int64_t c_Template = 7;       ///< VZ-1, Mill, main warehouse
inline constexpr std::int64_t c_ClosedTemplate = 8; ///< VZ-2, Drinks, branch, closed
inline constexpr std::int64_t c_Namesake = 9;       ///< a template whose number is OBJ-1, no supplier, main warehouse

} // namespace refhost
