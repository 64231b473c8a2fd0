#pragma once

#include <cmath>
#include <cstdint>

namespace TARN::Demo {

/// Small generator of pseudo-random numbers (splitmix64). The distributions of the standard
/// library differ between implementations, so the few that are needed are made here.
class Random
{
public:
    explicit Random(std::uint64_t seed) : mState(seed * 0x9E3779B97F4A7C15ULL + 0x1234567ULL) {}

    std::uint64_t bits()
    {
        mState += 0x9E3779B97F4A7C15ULL;
        std::uint64_t z = mState;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }

    /// Even over -1 to 1.
    double symmetric()
    {
        return static_cast<double>(bits() >> 11) * (2.0 / 9007199254740992.0) - 1.0;
    }

    /// Nearly normal, mean 0 and deviation 1, never beyond 3.5: the sum of four even numbers,
    /// taken from the four quarters of one word.
    double normal()
    {
        std::uint64_t word = bits();
        std::uint64_t sum =
            (word & 0xFFFF) + ((word >> 16) & 0xFFFF) + ((word >> 32) & 0xFFFF) + (word >> 48);
        return (static_cast<double>(sum) - 131070.0) * (1.0 / 37837.0);
    }

private:
    std::uint64_t mState;
};

/// Noise with a memory: wanders around 0 with deviation 1 and forgets within about the given
/// number of seconds.
class Wander
{
public:
    explicit Wander(double seconds) : mSeconds(seconds) {}

    /// Advances by dt seconds, which must be well below the memory.
    double step(Random& random, double dt)
    {
        mValue += -mValue * dt / mSeconds + std::sqrt(2.0 * dt / mSeconds) * random.normal();
        return mValue;
    }

    double value() const { return mValue; }

private:
    double mSeconds;
    double mValue = 0.0;
};

} // namespace TARN::Demo
