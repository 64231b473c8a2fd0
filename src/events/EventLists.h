#pragma once

#include "faults/EventWords.h"
#include "flight/Flight.h"

namespace TARN {

/// The events of a kind; null of errors, which have none.
const std::vector<RecordEvent>* eventsOf(EventKind kind, const Events& events);

/// The times of a kind.
const std::vector<Episode>& episodesOf(EventKind kind, const Troubles& troubles);

/// What is said where a flight with samples has nothing of a kind, and what was looked at: nothing
/// reassures that was not checked.
QString allWell(EventKind kind, const Flight& flight);

} // namespace TARN
