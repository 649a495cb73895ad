#pragma once

#include <string>
#include <vector>

/// The calls of a trace that are none of the contract's: a procedure with other parameters than the contract names, or
/// a query that it does not have. What the program that checks databases looks at is what the editors ask for.
std::vector<std::string> callsOutsideContract(const std::vector<std::string>& trace);
