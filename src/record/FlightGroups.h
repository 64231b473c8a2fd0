#pragma once

#include "record/CardInfo.h"

#include <list>
#include <vector>

namespace TARN {

/// Recordings of one flight, by path.
using FlightGroup = std::vector<QString>;

/// Which recordings of a card make one flight, judged by their headers and their first and last
/// samples; each stands in one group, the groups by their first path.
///
/// One goes on where another ended when both are of the same units (serial numbers of unit and
/// engine) and the same side of the offset, it starts at most a second before the other's end and
/// at most a minute after it, and the dates of their headers, where both have one, are as far apart
/// as their starts, to a minute. A recording of the other side goes with the flight that it
/// overlaps, to a minute, when their dates are no further apart than that lasts. What has no
/// samples goes with nothing.
std::vector<FlightGroup> flightGroups(const CardInfo& card);

/// Whether files are recordings of one flight, or of none that the card lists.
bool belongTogether(const std::list<QString>& files, const CardInfo& card);

} // namespace TARN
