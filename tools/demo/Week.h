#pragma once

#include <cstdint>

namespace TARN::Demo {

/// Day and clock of a flight: local time runs two hours ahead of UTC.
struct FlightDay
{
    int year = 2026;
    int month = 5;
    int day = 16;
    int hour = 9;
    int minute = 12;
    int hoursAheadOfUtc = 2;
};

/// How the flight of a seed differs from that of seed 1, beside the noise.
struct Week
{
    FlightDay day;
    double delay = 0.0; ///< s that the aircraft takes off later; negative is earlier
    double wear = 0.0;  ///< weeks that the injector of cylinder 6 has been clogging, up to 5
};

/// Each seed above 1 is one week later than the one before, up to ten years after the first. A seed
/// beyond those has the last day and a take-off moment and noise of its own. Seed 0 is other noise
/// on the first day.
Week weekOf(std::uint64_t seed);

} // namespace TARN::Demo
