#pragma once

#include <cstdint>

namespace velmora::cli::demo
{

/// A small generator (SplitMix64) whose sequence is the same on every machine, unlike the distributions of
/// the standard library.
class Hasard
{
public:
    explicit Hasard(std::uint64_t graine) : m_etat(graine) {}

    /// 0 to `n` - 1. The slight preference for low numbers doesn't matter here.
    int jusqua(int n) { return static_cast<int>(suivant() % static_cast<std::uint64_t>(n)); }
    /// `premier` to `dernier`, both included.
    int entre(int premier, int dernier) { return premier + jusqua(dernier - premier + 1); }
    /// True in `pourcent` of a hundred cases.
    bool chance(int pourcent) { return jusqua(100) < pourcent; }

private:
    std::uint64_t suivant()
    {
        std::uint64_t z = (m_etat += 0x9e3779b97f4a7c15);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }

    std::uint64_t m_etat;
};

} // namespace velmora::cli::demo
