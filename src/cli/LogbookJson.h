#pragma once

#include "cli/Json.h"
#include "logbook/Logbook.h"

namespace TARN {

/// What `logbook list` tells of a flight.
Json flightLine(const FlightHead& head);

/// What `logbook show` tells of it, in order: the flight, its parameters, what went wrong, and the
/// remarks.
std::vector<Json> entryLines(const FlightEntry& entry);

/// A flight among the others of an aircraft.
Json trendLine(const QString& aircraft, const TrendPoint& point);

/// "2026-11-21T12:00:00Z".
QString utcText(qint64 secondsSinceEpoch);

} // namespace TARN
