#pragma once

#include "faults/Episode.h"
#include "faults/FaultHistory.h"

namespace TARN {

/// The times during which errors of the matrices were active, each from the message with which it
/// came to that with which it went, or to the last one. Faults are of StateLimit, warnings of
/// StateWarning, all others of StateOk. By start, equal starts by matrix and bit.
std::vector<Episode> faultEpisodes(const std::vector<FaultHistory>& histories, double offset);

} // namespace TARN
