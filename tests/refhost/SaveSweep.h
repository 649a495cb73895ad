#pragma once

#include "tests/database/Engines.h"

#include <string>
#include <vector>

namespace refhost {

/// What became of saves that were broken off at one point after the other. At each point the document has to be exactly
/// the old or the new one, and after the clerk has saved again, the new one: no line missing, none doubled.
struct SweepResult {
    int Points = 0;
    std::vector<std::string> Wrong;
};

/// The program is killed before and after each call of a save of so many rows. It starts again, asks whether the
/// unsaved work may be taken up, and saves it when it may.
SweepResult sweepKills(Engine engine, int rows);

/// The link to the server is cut at each bunch of bytes that a save of so many rows sends, before the server gets it
/// and before its answer is heard. The clerk presses OK until he is told nothing any more.
SweepResult sweepCuts(int rows);

/// The server's own process for the clerk is killed at so many random moments of a save, which has the whole server
/// start anew. The clerk presses OK likewise.
SweepResult sweepServerCrashes(int rows, int moments, unsigned seed);

/// The server is killed while the closing call of a save of so many rows stops at one place after the other, up to the
/// one where all is on the disk and the answer is not sent. The clerk presses OK likewise.
SweepResult sweepClosingCrashes(int rows);

} // namespace refhost
