#pragma once

#include "logbook/FlightEntry.h"
#include "logbook/LogbookTrend.h"

class QWidget;

namespace TARN {

/// Asks what was done to the engine of a flight, and when; by default before that flight. Nothing
/// when the user changed their mind.
std::optional<MaintenanceMark> askMaintenance(const FlightHead& flight, QWidget* parent);

} // namespace TARN
