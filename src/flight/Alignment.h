#pragma once

#include "flight/Flight.h"

namespace TARN {

/// What is laid on what where two flights are looked at together.
struct Alignment
{
    enum By : int
    {
        Clock,  ///< times of day as they were recorded
        Start,  ///< the first samples
        Moment, ///< a moment of the one on a moment of the other, or what else the user set
        Passing ///< the first samples at which a parameter has passed a value
    };

    By by = Start;
    QString parameter;  ///< of Passing: its full name, which another profile may know too
    double value = 0.0; ///< of Passing: scaled

    friend bool operator==(const Alignment&, const Alignment&) = default;
};

/// A flight as it is looked at: with the time offset.
struct FlightClock
{
    const Flight& flight;
    double offset = 0.0;
};

/// Time of the first sample that lies on the other side of a value than the one before it; what
/// equals the value lies above it. Samples without a number are left out. Nothing where there is
/// none.
std::optional<double> firstPassing(const FlightClock& clock, const ProfileParameter& parameter,
                                   double value, Progress& progress);

/// Seconds that bring times of the reference to the clock of the flight. Nothing where the two
/// have no such moment; of Moment too, as it is the user's.
std::optional<double> shiftOf(const Alignment& alignment, const FlightClock& flight,
                              const FlightClock& reference, Progress& progress);

} // namespace TARN
