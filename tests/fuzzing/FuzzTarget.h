#pragma once

#include <span>
#include <string>
#include <string_view>

/// A reader of texts that come from outside, together with the judge of what it makes of them. A further reader is a
/// row of the table in FuzzTarget.cpp and a folder of whole, half and damaged inputs, fixtures/NAME.
///
/// Two programs throw inputs at it: fuzzing_test, a short form that is part of every test run, and melvark_fuzz (the
/// preset "fuzz", started by tests/fuzz), which looks for new ways through the code as long as one likes.
struct FuzzTarget {
    const char* Name;
    /// Hands an input to the reader. Returns what is wrong with what came out, in words; nothing when all is right.
    std::string (*Judge)(std::string_view input);
};

std::span<const FuzzTarget> fuzzTargets();
/// Null for a name that no target has.
const FuzzTarget* findFuzzTarget(std::string_view name);

std::string judgeAutosave(std::string_view input);
std::string judgeXMLTree(std::string_view input);
std::string judgeColumnSettings(std::string_view input);
std::string judgeWindowPlacement(std::string_view input);
