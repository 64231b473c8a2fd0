#pragma once

#include "logbook/FlightEntry.h"
#include "logbook/SqlConnection.h"

namespace TARN {

// The flights of a logbook in the tables of its database. All throw LogbookError.

/// Adds the flight itself; false where it is there.
bool insertFlight(SqlConnection& sql, const FlightEntry& entry);
/// Adds all that belongs to it.
void insertParts(SqlConnection& sql, const FlightEntry& entry);

/// All flights, or those of an aircraft, in no order.
std::vector<FlightHead> selectFlights(SqlConnection& sql, const std::optional<QString>& aircraft);

/// All of a flight. Fails where it is not there.
FlightEntry selectEntry(SqlConnection& sql, const FlightHead& head);

} // namespace TARN
