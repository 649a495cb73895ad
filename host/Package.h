#pragma once

/// The entry points that a plug-in library exports under C names, and what they answer. The host loads the library,
/// checks the table, and calls Initialize once; it never unloads a library while it runs, since windows and event
/// queues may still refer to its code.

/// Description of a package. `ContractVersion` must equal c_ContractVersion of the host that loads it.
struct TPackageInfo {
    int ContractVersion;
    const char* Name;
};

inline constexpr int c_ContractVersion = 1;

/// Signatures of the exported functions.
using TInitializePackage = void (*)();
using TFinalizePackage = void (*)();
using TGetPackageInfoTable = const TPackageInfo* (*)();

inline constexpr const char* c_InitializeSymbol = "Initialize";
inline constexpr const char* c_FinalizeSymbol = "Finalize";
inline constexpr const char* c_GetPackageInfoTableSymbol = "GetPackageInfoTable";
