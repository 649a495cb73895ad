#pragma once

#include <cstdint>
#include <random>
#include <span>

namespace refhost::sample {

/// Choices that come out the same on every platform: only the generator's raw numbers are used, because the standard
/// library's distributions differ from maker to maker.
class Random {
public:
    /// Each subject (stock, prices, orders …) has a stream of its own, so that a change of one leaves the others alone.
    explicit Random(std::uint64_t stream) : engine_(c_Seed + stream) {}

    /// 0 to `count` - 1.
    int below(int count) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(count)); }
    /// Both ends belong to it.
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    bool chance(int percent) { return below(100) < percent; }

    template <typename T>
    const T& pick(std::span<const T> choices) {
        return choices[static_cast<std::size_t>(below(static_cast<int>(choices.size())))];
    }

private:
    static constexpr std::uint64_t c_Seed = 20'240'101;

    std::mt19937_64 engine_;
};

} // namespace refhost::sample
