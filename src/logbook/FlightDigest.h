#pragma once

#include "logbook/FlightEntry.h"

namespace TARN {

/// What a logbook keeps of a flight, at the offset with which it was read: statistics of every
/// parameter of its profile over the flight and, where it has one, over its steady stretch, and
/// all that went wrong. Aircraft and flight are left empty. Nothing when it was asked to stop.
std::optional<FlightEntry> digestOf(const std::shared_ptr<const Flight>& flight,
                                    const QString& profile, Progress& progress);

/// Seconds held by values in or above the warning range: of the threshold values behind the last
/// one of state OK, those of the first of state WARNING. Nothing where there is none.
std::optional<double> secondsInWarning(const Statistics& statistics);

} // namespace TARN
