#pragma once

#include "flight/Flight.h"

namespace TARN {

/// The longest stretch in which a flight is steady, at a time offset, of at least three minutes;
/// of equals the first. Nothing where there is none, where the profile marks no parameter by
/// ProfileParameter::steady, and when it was asked to stop.
///
/// A stretch starts and ends at sample times of marked parameters. In it every marked parameter is
/// greater than its steadyAbove, where it has one, and its largest and smallest value differ by at
/// most its percentage of the larger of their magnitudes. The values that count are those of its
/// samples from start to end, both included, and the one that holds at the start: of the last
/// sample not after it, which there must be. What is no finite number ends a stretch; so does a
/// gap of the parameter (see GapRule) that has more in common with it than a moment, and the
/// parameter's last sample.
std::optional<TimeRange> steadyStretch(const Flight& flight, double offset, Progress& progress);

/// Whether a stretch, or what two have in common, lasts three minutes.
bool isLongEnough(const TimeRange& stretch);

} // namespace TARN
