#pragma once

#include <sys/types.h>
#include <vector>

namespace crowd {

/// What some processes take together.
struct Burden {
    double Megabytes = 0;        ///< Of memory; what they share counts once.
    double PrivateMegabytes = 0; ///< Of that, what belongs to no file and to no other process.
    double ProcessorSeconds = 0; ///< Since their start.
};

/// Throws std::runtime_error when one of them is gone.
Burden burdenOf(const std::vector<pid_t>& processes);

/// The process and those that it has started.
std::vector<pid_t> familyOf(pid_t process);

} // namespace crowd
