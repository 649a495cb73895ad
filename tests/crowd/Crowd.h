#pragma once

#include "tests/crowd/Diary.h"
#include "tests/crowd/Processes.h"

#include <filesystem>
#include <string>
#include <vector>

namespace crowd {

struct CrowdOrders {
    std::filesystem::path Program; ///< Becomes a clerk when it is called with the words of his orders.
    int Clerks = 50;
    double Seconds = 300;
    int DocumentsBefore = 0; ///< Which each has saved when the time begins; the first three are of all three ways.
    unsigned Seed = 1;
};

/// What the hosts and the server's processes took after a fifth of the time and at its end.
struct Moment {
    double Seconds = 0;
    Burden Hosts;
    Burden Server;
};

struct CrowdResult {
    Diary All;
    Moment Early;
    Moment Late;
    std::vector<std::string> Wrong; ///< What should not have happened, for people.
};

/// Has so many clerks work at once on one company of a server, which is the sample: each in a process of his own with
/// the real host and editors, as a role of his own. Then holds what each of them saved against the database.
CrowdResult runCrowd(const CrowdOrders& orders);

/// A refusal that this crowd brings about, and that tells a clerk what has happened to his document.
bool isUnderstood(const std::string& code);

} // namespace crowd
