#pragma once

#include "tests/database/RecalculationCases.h"

#include <cstdint>
#include <random>
#include <string>

namespace refhost {

/// Rows for the recalculation as nobody would think them up: full and nearly empty ones, consistent by chance only,
/// with returns, odd decimals, any focus and any marks. The same seed gives the same rows everywhere.
class RandomLines {
public:
    explicit RandomLines(std::uint64_t seed) : generator_(seed) {}

    RecalculationInput next();

private:
    std::uint64_t below(std::uint64_t limit) { return generator_() % limit; }
    bool chance(unsigned percent) { return below(100) < percent; }
    std::string number(std::uint64_t largest, unsigned decimals);
    std::string prices(unsigned density, std::uint64_t largest, unsigned decimals);
    std::string rate();
    std::string discount();
    std::string quantity();
    std::string key();

    std::mt19937_64 generator_;
};

} // namespace refhost
