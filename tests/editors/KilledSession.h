#pragma once

#include <string>

/// Sessions of a delivery note's editor that are killed at random moments, each followed by an opening of the editor,
/// which must find all of one state: the last that was kept, or the one that was being kept.
struct KilledSessions {
    int Moments = 0;
    int WithWork = 0;    ///< After these the next start found unsaved work.
    std::string Failure; ///< What was wrong first; empty when nothing was.
};

/// Needs Qt's application object. The same seed gives the same moments.
KilledSessions killSessions(int moments, unsigned seed);
