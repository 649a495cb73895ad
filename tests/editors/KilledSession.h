#pragma once

#include <string>

/// Sessions of a delivery note's editor that are killed at random moments while they open, work or close, each followed
/// by an opening of the editor, which must find all of one state: the last that was kept, or the one that was being
/// kept; or nothing, once the editor was being closed. The next session goes on with what the one before has left.
struct KilledSessions {
    int Moments = 0;
    int OnLeftWork = 0;     ///< These began with work that the session before had left.
    int WhileOpening = 0;   ///< These were killed before the editor stood.
    int WhileRestoring = 0; ///< The same, of a session on left work.
    int WhileClosing = 0;
    int WithWork = 0;    ///< After these the next start found unsaved work.
    std::string Failure; ///< What was wrong first; empty when nothing was.
};

/// Needs Qt's application object. The same seed gives the same moments.
KilledSessions killSessions(int moments, unsigned seed);
