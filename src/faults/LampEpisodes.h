#pragma once

#include "faults/Episode.h"

namespace TARN {

/// The times during which warning lamps were on: longest runs, in time order, of a lamp's samples
/// of one value other than 0, not across a gap. Each ends with the time of the next sample where no
/// gap lies between, otherwise with its own last one. Value 1 is a caution (StateWarning), all
/// others are warnings (StateLimit). Announced are those of which a sample makes an event: a lamp
/// that comes on again as it was makes none. By start, equal starts in the profile's order.
///
/// \p silences gives those of the recording at this offset; asked only where it matters. Ends
/// early, with a part, when it is asked to stop.
std::vector<Episode> findLampEpisodes(const RecordData& data, const Profile& profile, double offset,
                                      const SilencesSource& silences, Progress& progress);

} // namespace TARN
