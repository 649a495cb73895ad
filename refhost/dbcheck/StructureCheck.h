#pragma once

#include "refhost/dbcheck/DatabaseContract.h"
#include "refhost/dbcheck/Finding.h"

namespace refhost {

/// Holds what a database declares against the contract: procedures with their parameters and results, views, the two
/// queries and how they sort, the conditions of lists with their functions, and what clerks may do. What a database has
/// beyond the contract is its own affair. Nothing is written, for the inspector cannot.
///
/// What the procedures do with a document is asked by Exercise.h.
Findings checkStructure(const DatabaseContract& contract, DatabaseInspector& database);

/// Whether the error tells nothing of what was asked, for the database could not be asked: its link is lost, it is in
/// use or damaged.
bool isOutOfReach(const EDatabaseError& error);

/// How the members of an answer differ from those that the contract names, by name and without regard to order. A type
/// that the database does not tell fits.
void compareMembers(const std::string& object, const DeclaredNames& expected, const DeclaredNames& found,
                    FindingKind missing, FindingKind ofOtherType, Findings& findings);

} // namespace refhost
