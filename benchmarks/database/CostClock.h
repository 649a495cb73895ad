#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace benchmark {

/// Measures either the time that passes, or the processor time that this program and the server's processes take: on a
/// machine that others use too, only the latter can be compared.
class CostClock {
public:
    enum class Kind { Processor, Wall };

    explicit CostClock(Kind kind) : kind_(kind) {}
    /// A process of the server whose time counts.
    void addProcess(std::int64_t id) { files_.push_back("/proc/" + std::to_string(id) + "/schedstat"); }

    template <class Work>
    double microseconds(Work work) const {
        const std::chrono::nanoseconds start = now();
        work();
        return std::chrono::duration<double, std::micro>(now() - start).count();
    }

private:
    std::chrono::nanoseconds now() const;

    Kind kind_;
    std::vector<std::string> files_;
};

} // namespace benchmark
