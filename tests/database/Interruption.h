#pragma once

#include <functional>
#include <string>

namespace refhost {

/// How far a process came that may have been killed on its way.
struct Interruption {
    int Passed = 0; ///< How many of the counted points it reached.
    bool IsKilled = false;
};

/// Never reached: the process comes to its end.
inline constexpr int c_NoPoint = 0;

/// Runs `work` on a database in a process that is killed, as by kill -9, at that point, counted from 1: right before a
/// write to a file of the embedded engine (a page, a journal, a copy, a journal's removal), or right after a message to
/// the private server, which has then ended what it was at. `work` gets the address by which it has to connect; on the
/// server it does so once.
Interruption interruptedAt(int point, const std::string& url, const std::function<void(const std::string& url)>& work);

/// Interrupts work that passes so many points at a dozen of them, and at each of those around the one where it is taken
/// over. `isDoneAfter` does so at a point, counted from 1, and tells whether the work was done then; at the last points
/// it may have been.
void atManyPoints(int last, const std::function<bool(int point)>& isDoneAfter);

} // namespace refhost
