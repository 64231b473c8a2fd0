#pragma once

#include "record/TimeRange.h"

#include <cmath>
#include <optional>

namespace TARN {

/// The two ends of the marked range, between which is measured.
enum class MarkerEnd
{
    A,
    B
};

inline double& endOf(TimeRange& range, MarkerEnd end)
{
    return end == MarkerEnd::A ? range.start : range.stop;
}

/// The marked range with one end elsewhere. Where nothing is marked, and where the ends would
/// cross, the other one is that of \p whole.
inline TimeRange withEnd(const TimeRange& marks, const TimeRange& whole, MarkerEnd end, double time)
{
    TimeRange range = marks.hasExtent() ? marks : whole;
    endOf(range, end) = time;
    if (!range.hasExtent()) {
        range = whole;
        endOf(range, end) = time;
    }
    return range;
}

/// The marked range with the end elsewhere that a time is nearer to; in the middle the later one.
inline TimeRange withNearerEnd(TimeRange marks, double time)
{
    const bool isLate = time >= (marks.start + marks.stop) / 2.0;
    endOf(marks, isLate ? MarkerEnd::B : MarkerEnd::A) = time;
    return marks;
}

/// The end that lies within \p reach of a time; nothing when none does or nothing is marked.
inline std::optional<MarkerEnd> endNear(const TimeRange& marks, double time, double reach)
{
    const double toA = std::fabs(time - marks.start);
    const double toB = std::fabs(time - marks.stop);
    if (!marks.hasExtent() || std::fmin(toA, toB) > reach) {
        return std::nullopt;
    }
    return toA < toB ? MarkerEnd::A : MarkerEnd::B;
}

} // namespace TARN
