#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace refhost {

/// What a clerk met who saved one document after another while the first of two servers was killed.
struct FailoverRun {
    std::vector<std::string> Told;  ///< The codes of the refusals, in order.
    int Saved = 0;                  ///< Saves that were acknowledged, each with a quantity of its own.
    int SavedOnFirst = 0;           ///< Those before the first refusal.
    std::vector<std::string> Wrong; ///< Quantities that do not stand in the note exactly as often as they were saved.
};

/// Has the clerk's program save for as long on the first server, kills that server, and lets the second one take over;
/// the clerk presses OK again and again, and saves on the second one. Throws std::runtime_error when that never ends.
FailoverRun runFailover(std::chrono::milliseconds beforeKill);

} // namespace refhost
