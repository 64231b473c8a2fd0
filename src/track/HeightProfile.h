#pragma once

#include "flight/PositionTrack.h"

#include <QtGui/QPolygonF>

namespace TARN {

/// How high the aircraft was over time or over the distance flown, in columns: each shows its
/// first, lowest, highest and last altitude, so that no peak is lost.
class HeightProfile
{
public:
    enum Axis : int
    {
        Time,    ///< seconds
        Distance ///< metres
    };

    HeightProfile() = default;
    /// Over all of the track, in so many columns.
    HeightProfile(const PositionTrack& track, Axis axis, int columns);

    /// Whether there is no altitude at all.
    bool empty() const { return mLines.empty(); }

    // On the axis.
    double start() const { return mStart; }
    double stop() const { return mStop; }
    double lowest() const { return mLowest; } ///< altitudes
    double highest() const { return mHighest; }

    /// Columns (from 0, with fractions) and altitudes; parted where the path or its altitude is.
    const std::vector<QPolygonF>& lines() const { return mLines; }

private:
    std::vector<QPolygonF> mLines;
    double mStart = 0.0;
    double mStop = 0.0;
    double mLowest = 0.0;
    double mHighest = 0.0;
};

/// The time at which so many metres were flown; of a longer time at one place the first.
double timeAtMetres(const PositionTrack& track, double metres);

} // namespace TARN
