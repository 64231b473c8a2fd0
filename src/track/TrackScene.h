#pragma once

#include "record/TimeRange.h"
#include "track/HeightProfile.h"
#include "track/TrackColors.h"
#include "track/TrackMarks.h"
#include "track/TrackPath.h"

#include <memory>

namespace TARN {

/// Where a flight went, on the plane; never changes.
struct TrackGround
{
    explicit TrackGround(PositionTrack positions)
        : track(std::move(positions)), projection(track), path(track, projection)
    {}

    PositionTrack track;
    TrackProjection projection;
    TrackPath path;
};

/// All that the chart of a track shows, but for the current time.
struct TrackScene
{
    std::shared_ptr<const TrackGround> ground; ///< null while there is none
    std::shared_ptr<const TrackMarks> marks;   ///< null while nobody has looked for them
    std::shared_ptr<const TrackColors> colors; ///< null for none
    TimeRange range;                           ///< to be told from the rest, where it has extent

    bool empty() const { return ground == nullptr || ground->track.empty(); }
};

/// The colours of a chart on a light or a dark ground.
struct TrackStyle
{
    bool light = true;
    QColor ground = "#ffffff";
    QColor frame = "#f2f2f4"; ///< around the heights
    QColor grid = "#d3d8de";
    QColor text = "#26303a";
    QColor faint = "#66707a"; ///< of labels
    QColor faded = "#c3cad2"; ///< the path outside of the range

    static TrackStyle of(bool isLight)
    {
        return isLight ? TrackStyle() : TrackStyle{false,     "#0e1216", "#1b2127", "#2d363f",
                                                   "#e6ebf0", "#a3aeb9", "#4a545e"};
    }
    /// A colour of a list, strong enough to be seen as a line.
    QColor inkOf(const QColor& color) const;
};

/// What stands where; pixels from the upper left corner.
struct TrackPanes
{
    QRectF chart;
    QRectF key;     ///< a row that says what symbols mean
    QRectF heights; ///< the plot alone; null where there are none

    TrackPanes() = default;
    TrackPanes(const QSizeF& size, bool hasHeights);
};

/// The heights of a track in their plot.
struct HeightChart
{
    HeightProfile profile;
    HeightProfile::Axis axis = HeightProfile::Time;
    QRectF plot;

    HeightChart() = default;
    HeightChart(const TrackScene& scene, HeightProfile::Axis over, const QRectF& area);

    bool isShown() const { return !plot.isEmpty() && !profile.empty(); }
    double x(double time, double metres) const;
    double y(double altitude) const;
    /// The time that a column stands for.
    double timeAt(const PositionTrack& track, double x) const;
};

} // namespace TARN
