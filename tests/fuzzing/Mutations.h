#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <string>

/// Damaged copies of given texts, the same ones for the same seed: pieces are lost, doubled, moved, taken from another
/// text or overwritten.
class Mutations {
public:
    explicit Mutations(std::uint64_t seed) : FRandom(seed) {}

    /// One of the texts with one to six damages.
    std::string next(std::span<const std::string> texts);

private:
    std::size_t below(std::size_t bound);
    void damage(std::string& text, std::span<const std::string> texts);

    std::mt19937_64 FRandom;
};
