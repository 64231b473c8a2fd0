#pragma once

#include "faults/Episode.h"
#include "flight/Flight.h"
#include "track/TrackShades.h"

#include <utility>

namespace TARN {

/// What the path is coloured by, and what its colours mean.
class TrackColors
{
public:
    /// By nothing.
    TrackColors() = default;

    /// By the worst state of all parameters; \p limits at the track's time offset.
    static TrackColors ofStates(const PositionTrack& track, const std::vector<Episode>& limits);

    /// By the values of a numeric parameter, of the track's flight at its offset. Ends early, with
    /// a part, when it is asked to stop.
    static TrackColors ofValues(const PositionTrack& track, const Flight& flight, double offset,
                                const ProfileParameter& parameter, Progress& progress);

    const TrackShades& shades() const { return mShades; }
    QColor color(std::uint8_t shade, bool onLight) const;

    /// What the colours mean: a word for each, or the ends of a scale.
    struct Legend
    {
        QString title;
        std::vector<std::pair<QString, std::uint8_t>> entries;
        QString low;
        QString high;
        std::uint8_t lowest = 0; ///< shades of a scale
        std::uint8_t highest = 0;

        bool isScale() const { return highest > lowest; }
        bool empty() const { return !isScale() && entries.empty(); }
    };
    const Legend& legend() const { return mLegend; }

private:
    TrackShades mShades;
    Legend mLegend;
};

} // namespace TARN
