#pragma once

/// \file
/// The entry points that a plug-in library exports under C names, and what they answer.
///
/// The host loads the library, checks the table and calls `Initialize` once; it never unloads a library while it runs,
/// since windows and event queues may still refer to its code. Which version a library is for is asked before anything
/// else of it is called.

/// Description of a package. This struct stays as it is in every version: a host reads it before it knows which one the
/// package is for.
struct TPackageInfo {
    int ContractVersion; ///< c_ContractVersion of the headers that the package was built with.
    const char* Name;    ///< For messages; holds as long as the library.
};

/// The version of the contract in these headers. A host refuses a package of another one.
inline constexpr int c_ContractVersion = 1;

/// Registers the package's classes with the current host (RegisterClasses). May throw: the package is then not used.
using TInitializePackage = void (*)();
/// Undoes one Initialize. Items of the package may still live.
using TFinalizePackage = void (*)();
/// Gives the description; needs no host and does nothing else.
using TGetPackageInfoTable = const TPackageInfo* (*)();

/// \name Names of the exported functions
/// \{
inline constexpr const char* c_InitializeSymbol = "Initialize";                   ///< TInitializePackage
inline constexpr const char* c_FinalizeSymbol = "Finalize";                       ///< TFinalizePackage
inline constexpr const char* c_GetPackageInfoTableSymbol = "GetPackageInfoTable"; ///< TGetPackageInfoTable
/// \}
