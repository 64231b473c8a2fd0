#pragma once

namespace TARN::Demo {

struct Position
{
    double latitude = 0.0;  ///< degrees north
    double longitude = 0.0; ///< degrees east
};

/// A runway as seen by somebody who lands on it.
struct Runway
{
    Position threshold;
    double course = 0.0;    ///< rad, true
    double elevation = 0.0; ///< m

    /// Point so many metres past the threshold and to the right of the centreline.
    Position at(double along, double right) const;
};

/// Position moved by metres to the north and to the east.
Position moved(const Position& from, double north, double east);

/// Great-circle distances are not needed here: legs are short enough for a flat map.
double distance(const Position& from, const Position& to); ///< m
double bearing(const Position& from, const Position& to);  ///< rad

const Runway& departureRunway();
const Runway& arrivalRunway();

} // namespace TARN::Demo
