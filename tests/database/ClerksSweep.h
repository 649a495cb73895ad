#pragma once

#include "tests/database/Engines.h"

#include <chrono>
#include <map>
#include <string>
#include <vector>

namespace refhost {

/// What clerks met who worked on the same documents at the same time.
struct ClerksSweepResult {
    int Saved = 0;                   ///< Saves that were acknowledged.
    int Lines = 0;                   ///< The lines of these.
    std::map<std::string, int> Told; ///< How often each refusal was told, by its code.
    std::vector<std::string> Wrong;  ///< Saves that do not stand in the company as they were acknowledged or refused.
};

/// Lets so many clerks work on one company for as long, two of them at a time as the same user: they save notes, orders
/// and templates, deliver on the same order lines, have further orders made, and keep, rename, load and delete
/// settings, while somebody closes and opens documents. Each save has a quantity of its own, by which its lines are
/// found in the end: each line of an acknowledged save once, in its document, beside the others of its save, and no
/// other line.
ClerksSweepResult sweepClerks(Engine engine, int clerks, std::chrono::milliseconds time, unsigned seed);

} // namespace refhost
