#pragma once

#include <string>
#include <vector>

class HostSession;

/// Lines of a trace, and what the sessions on the tiny company's open delivery note have in common: worked out by hand
/// from that company, never taken from a trace.
using Lines = std::vector<std::string>;

/// A call that the database answered with so many rows; `params` as they stand in the trace, without the brackets.
std::string call(const std::string& name, bool open, const std::string& params, int rows);
/// A call that the database refused with this sentence, and the error that the clerk is shown.
std::string refusedCall(const std::string& name, bool open, const std::string& params, const std::string& sentence);
std::string shownError(const std::string& sentence);

/// What every session asks until its lines are read, on the open note with settings type `type`.
Lines openingCalls(int type);
/// The lines of the template: both items of the closed note.
std::string templateRead();
std::string placement();
/// The recalculation after 7.5 was typed as the quantity of the template's first line.
std::string sevenAndAHalfTyped();
std::string saveBegun();
/// The template's second line as nobody touched it: 5 × Cukr, 20.00 less 10 %.
std::string cukrRow();
/// The end of a save with the identifiers of the sources as they stand in the trace.
std::string closing(const std::string& noteSource, const std::string& orderSource);

/// The last call of a session stores where the window stood; that depends on the display, so it is taken off.
Lines withoutStoredPlacement(Lines trace, int placementType = 0);

/// What the open note has stored.
Lines storedLines(const HostSession& session);

template <class... Rest>
Lines joined(Lines first, const Rest&... rest) {
    (first.insert(first.end(), rest.begin(), rest.end()), ...);
    return first;
}
