#pragma once

#include "flight/PositionTrack.h"
#include "track/TrackProjection.h"
#include "track/TrackShades.h"
#include "track/TrackView.h"

#include <QtGui/QPolygonF>

namespace TARN {

/// The positions of a flight on the plane, ready to be drawn at any scale: what is shown of a
/// million of them is found in the time that its pixels take. Boxes around 16, 64, 256 ...
/// positions tell what is out of sight and what is a single pixel, and how much the way through
/// them bends what is a straight line.
class TrackPath
{
public:
    TrackPath() = default;
    TrackPath(const PositionTrack& track, const TrackProjection& projection);

    std::size_t size() const { return mPoints.size(); }
    QPointF point(std::size_t k) const { return {mPoints[k].x, mPoints[k].y}; }
    /// Around all stretches but stray ones; null without a position.
    const QRectF& bounds() const { return mBounds; }

    /// A piece of the path in one shade; pixels. A single point is a position that stands alone.
    struct Line
    {
        QPolygonF points;
        std::uint8_t shade;
    };

    /// What is in sight of positions \p begin to before \p end, by time: no position is farther
    /// than a pixel from its line, and its ends are positions. Positions that share a pixel have
    /// the greatest of their shades.
    std::vector<Line> lines(const TrackView& view, const TrackShades& shades, std::size_t begin,
                            std::size_t end) const;

    /// The place on the path that is nearest to a pixel.
    struct Hit
    {
        std::size_t index; ///< of the position before it
        double share;      ///< of the way to the next one, 0 to 1
        double distance;   ///< pixels
    };
    /// Nothing farther away than \p most pixels.
    std::optional<Hit> nearest(const TrackView& view, const QPointF& pixel, double most) const;

private:
    friend class TrackWalk;

    struct Point
    {
        float x;
        float y;
    };
    struct Box
    {
        float left;
        float bottom;
        float right;
        float top;
    };

    void makeBoxes();
    void makeBends();
    float bendOf(std::size_t level, std::size_t node) const;
    template <typename Visitor>
    void search(std::size_t level, std::size_t node, Visitor& visitor) const;

    std::vector<Point> mPoints;
    std::vector<std::size_t> mStarts; ///< first positions of stretches, and size()
    /// By level: around the positions of a node and the one that follows.
    std::vector<std::vector<Box>> mBoxes;
    /// By level: metres that the way through a node is at most beside the straight line from its
    /// first position to the one that follows; infinite where it is cut.
    std::vector<std::vector<float>> mBends;
    QRectF mBounds;
};

} // namespace TARN
