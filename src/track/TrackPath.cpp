#include "track/TrackPath.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace TARN {

namespace {

constexpr double OnePixel = 0.4;   ///< pixels; smaller nodes are one point
constexpr double Straight = 0.25;  ///< pixels that a line may pass beside a position
constexpr double OutOfSight = 8.0; ///< pixels around the area, for wide lines

double cross(const QPointF& a, const QPointF& b)
{
    return a.x() * b.y() - a.y() * b.x();
}

/// From a point to a piece of a line.
double distanceOf(const QPointF& from, const QPointF& to, const QPointF& point)
{
    const QPointF way = to - from;
    const double square = QPointF::dotProduct(way, way);
    const double share =
        square > 0.0 ? std::clamp(QPointF::dotProduct(point - from, way) / square, 0.0, 1.0) : 0.0;
    const QPointF apart = from + share * way - point;
    return std::hypot(apart.x(), apart.y());
}

} // namespace

TrackPath::TrackPath(const PositionTrack& track, const TrackProjection& projection)
{
    mPoints.reserve(track.size());
    for (std::size_t k = 0; k < track.size(); ++k) {
        const QPointF place = projection.toPlane(track.point(k));
        mPoints.push_back({static_cast<float>(place.x()), static_cast<float>(place.y())});
    }
    bool isFirst = true;
    for (const PositionTrack::Stretch& stretch : track.stretches()) {
        mStarts.push_back(stretch.begin);
        for (std::size_t k = stretch.begin; k < stretch.end && !track.isStray(stretch); ++k) {
            const double x = mPoints[k].x;
            const double y = mPoints[k].y;
            if (isFirst) {
                mBounds.setCoords(x, y, x, y);
                isFirst = false;
            }
            mBounds.setCoords(std::min(mBounds.left(), x), std::min(mBounds.top(), y),
                              std::max(mBounds.right(), x), std::max(mBounds.bottom(), y));
        }
    }
    mStarts.push_back(size());
    makeBoxes();
    makeBends();
}

void TrackPath::makeBends()
{
    for (std::size_t level = 0; level < mBoxes.size(); ++level) {
        std::vector<float> bends;
        bends.reserve(mBoxes[level].size());
        for (std::size_t node = 0; node < mBoxes[level].size(); ++node) {
            bends.push_back(bendOf(level, node));
        }
        mBends.push_back(std::move(bends));
    }
    for (const std::size_t start : mStarts) { // no line leads to it
        for (std::size_t level = 0; start > 0 && level < mBends.size(); ++level) {
            mBends[level][(start - 1) / TrackShades::width(level)] =
                std::numeric_limits<float>::infinity();
        }
    }
}

/// Of a node of nodes the most that can be: distances from a line are greatest at ends of others.
float TrackPath::bendOf(std::size_t level, std::size_t node) const
{
    const std::size_t width = TrackShades::width(level);
    const std::size_t begin = node * width;
    const std::size_t end = std::min(begin + width, size() - 1);
    const QPointF from = point(begin);
    const QPointF to = point(end);
    const std::size_t step = level == 0 ? 1 : TrackShades::width(level - 1);
    double bend = 0.0;
    double before = 0.0;
    for (std::size_t k = begin; k < end; k += step) {
        const double after = distanceOf(from, to, point(std::min(k + step, end)));
        const double own = level == 0 ? 0.0 : mBends[level - 1][k / step];
        bend = std::max(bend, own + std::max(before, after));
        before = after;
    }
    return static_cast<float>(bend);
}

void TrackPath::makeBoxes()
{
    std::vector<Box> level;
    for (std::size_t k = 0; k < size(); k += TrackShades::Leaf) {
        Box box{mPoints[k].x, mPoints[k].y, mPoints[k].x, mPoints[k].y};
        for (std::size_t i = k; i < std::min(size(), k + TrackShades::Leaf + 1); ++i) {
            const Point& point = mPoints[i];
            box = {std::min(box.left, point.x), std::min(box.bottom, point.y),
                   std::max(box.right, point.x), std::max(box.top, point.y)};
        }
        level.push_back(box);
    }
    mBoxes.push_back(std::move(level));
    while (mBoxes.back().size() > 1) {
        const std::vector<Box>& below = mBoxes.back();
        level.clear();
        for (std::size_t k = 0; k < below.size(); k += TrackShades::Fan) {
            Box box = below[k];
            for (std::size_t i = k; i < std::min(below.size(), k + TrackShades::Fan); ++i) {
                const Box& part = below[i];
                box = {std::min(box.left, part.left), std::min(box.bottom, part.bottom),
                       std::max(box.right, part.right), std::max(box.top, part.top)};
            }
            level.push_back(box);
        }
        mBoxes.push_back(level);
    }
}

/// One way along the path that leaves out what need not be drawn.
class TrackWalk
{
public:
    TrackWalk(const TrackPath& path, const TrackView& view, const TrackShades& shades,
              std::size_t begin, std::size_t end)
        : mPath(path), mView(view), mShades(shades), mBegin(begin), mEnd(end)
    {
        const double margin = OutOfSight * view.scale;
        const QPointF low = view.toPlane(view.area.bottomLeft());
        const QPointF high = view.toPlane(view.area.topRight());
        mSight = {static_cast<float>(low.x() - margin), static_cast<float>(low.y() - margin),
                  static_cast<float>(high.x() + margin), static_cast<float>(high.y() + margin)};
        mSmall = static_cast<float>(OnePixel * view.scale);
        mBend = static_cast<float>(Straight * view.scale);
        mNextStart = static_cast<std::size_t>(std::ranges::lower_bound(path.mStarts, begin) -
                                              path.mStarts.begin());
    }

    std::vector<TrackPath::Line> lines()
    {
        const std::size_t top = mPath.mBoxes.size() - 1;
        for (std::size_t node = 0; node < mPath.mBoxes[top].size(); ++node) {
            visit(top, node);
        }
        end();
        return std::move(mLines);
    }

private:
    void visit(std::size_t level, std::size_t node)
    {
        const std::size_t width = TrackShades::width(level);
        const std::size_t first = node * width;
        const std::size_t last = std::min(first + width, mPath.size());
        if (last <= mBegin || first >= mEnd) {
            return;
        }
        const TrackPath::Box& box = mPath.mBoxes[level][node];
        if (box.right < mSight.left || box.left > mSight.right || box.top < mSight.bottom ||
            box.bottom > mSight.top) {
            leave(std::max(first, mBegin));
            return;
        }
        const bool isWhole = first >= mBegin && last <= mEnd;
        const bool isSmall = box.right - box.left <= mSmall && box.top - box.bottom <= mSmall;
        // What follows ends its line.
        const bool isStraight =
            last < mEnd && mPath.mBends[level][node] <= mBend && mShades.isUniform(level, node);
        if (isWhole && (isSmall || isStraight)) {
            add(first, mShades.greatest(level, node));
            return;
        }
        if (level == 0) {
            for (std::size_t k = std::max(first, mBegin); k < std::min(last, mEnd); ++k) {
                add(k, mShades.at(k));
            }
            return;
        }
        const std::size_t children = mPath.mBoxes[level - 1].size();
        const std::size_t from = node * TrackShades::Fan;
        for (std::size_t k = from; k < std::min(from + TrackShades::Fan, children); ++k) {
            visit(level - 1, k);
        }
    }

    /// The way to position \p k is in sight still, what follows is not.
    void leave(std::size_t k)
    {
        if (!mLine.points.isEmpty()) {
            add(k, mLine.shade);
            end();
        }
    }

    bool passesStart(std::size_t k)
    {
        const std::size_t before = mNextStart;
        while (mNextStart < mPath.mStarts.size() && mPath.mStarts[mNextStart] <= k) {
            ++mNextStart;
        }
        return mNextStart != before && mPath.mStarts[mNextStart - 1] == k;
    }

    void add(std::size_t k, std::uint8_t shade)
    {
        if (passesStart(k)) {
            end();
        }
        const QPointF pixel = mView.toPixel(mPath.point(k));
        if (mLine.points.isEmpty()) {
            begin(pixel, shade);
            return;
        }
        extend(pixel);
        if (shade != mLine.shade) {
            end();
            begin(pixel, shade);
        }
    }

    void begin(const QPointF& pixel, std::uint8_t shade)
    {
        mLine.points.append(pixel);
        mLine.shade = shade;
        forget();
    }

    void forget()
    {
        mHeld.reset();
        mHasCone = false;
        mFarthest = 0.0;
    }

    /// The last point is held back while a straight line passes by all since the one before it.
    void extend(const QPointF& pixel)
    {
        const QPointF way = pixel - mLine.points.last();
        const double length = std::hypot(way.x(), way.y());
        if (mHeld && (length < mFarthest - Straight || isOutside(way))) {
            mLine.points.append(*mHeld);
            forget();
            extend(pixel);
            return;
        }
        if (length > Straight) {
            narrow(way, length);
        }
        mHeld = pixel;
        mFarthest = std::max(mFarthest, length);
    }

    bool isOutside(const QPointF& way) const
    {
        return mHasCone && (cross(mRight, way) < 0.0 || cross(way, mLeft) < 0.0);
    }

    void narrow(const QPointF& way, double length)
    {
        const double sine = Straight / length;
        const double cosine = std::sqrt(1.0 - sine * sine);
        const QPointF left(way.x() * cosine - way.y() * sine, way.x() * sine + way.y() * cosine);
        const QPointF right(way.x() * cosine + way.y() * sine, way.y() * cosine - way.x() * sine);
        mLeft = !mHasCone || cross(left, mLeft) > 0.0 ? left : mLeft;
        mRight = !mHasCone || cross(mRight, right) > 0.0 ? right : mRight;
        mHasCone = true;
    }

    void end()
    {
        if (mHeld) {
            mLine.points.append(*mHeld);
        }
        mHeld.reset();
        if (!mLine.points.isEmpty()) {
            mLines.push_back(mLine);
            mLine.points = {};
        }
    }

    const TrackPath& mPath;
    const TrackView& mView;
    const TrackShades& mShades;
    std::size_t mBegin;
    std::size_t mEnd;
    TrackPath::Box mSight;
    float mSmall; ///< metres
    float mBend;
    std::size_t mNextStart;
    std::vector<TrackPath::Line> mLines;
    TrackPath::Line mLine{};
    std::optional<QPointF> mHeld;
    double mFarthest = 0.0; ///< pixels from the last point, of those since
    bool mHasCone = false;
    QPointF mLeft;
    QPointF mRight;
};

std::vector<TrackPath::Line> TrackPath::lines(const TrackView& view, const TrackShades& shades,
                                              std::size_t begin, std::size_t end) const
{
    return size() == 0 ? std::vector<Line>()
                       : TrackWalk(*this, view, shades, begin, std::min(end, size())).lines();
}

template <typename Visitor>
void TrackPath::search(std::size_t level, std::size_t node, Visitor& visitor) const
{
    if (!visitor.isWorth(mBoxes[level][node])) {
        return;
    }
    if (level == 0) {
        const std::size_t first = node * TrackShades::Leaf;
        for (std::size_t k = first; k < std::min(size(), first + TrackShades::Leaf); ++k) {
            visitor.look(k);
        }
        return;
    }
    const std::size_t from = node * TrackShades::Fan;
    const std::size_t to = std::min(from + TrackShades::Fan, mBoxes[level - 1].size());
    for (std::size_t k = from; k < to; ++k) {
        search(level - 1, k, visitor);
    }
}

std::optional<TrackPath::Hit> TrackPath::nearest(const TrackView& view, const QPointF& pixel,
                                                 double most) const
{
    struct Nearest
    {
        const TrackPath& path;
        QPointF place;
        double distance; // metres
        std::optional<Hit> hit = {};

        bool isWorth(const Box& box) const
        {
            const double x = std::max({0.0, box.left - place.x(), place.x() - box.right});
            const double y = std::max({0.0, box.bottom - place.y(), place.y() - box.top});
            return std::hypot(x, y) <= distance;
        }
        void look(std::size_t k)
        {
            const QPointF from = path.point(k);
            const bool isLast = std::ranges::binary_search(path.mStarts, k + 1);
            const QPointF way = isLast ? QPointF() : path.point(k + 1) - from;
            const double square = QPointF::dotProduct(way, way);
            const double share =
                square > 0.0 ? std::clamp(QPointF::dotProduct(place - from, way) / square, 0.0, 1.0)
                             : 0.0;
            const double found = distanceOf(from, from + way, place);
            if (found < distance || (!hit && found <= distance)) {
                distance = found;
                hit = Hit{k, share, 0.0};
            }
        }
    };
    if (size() == 0) {
        return std::nullopt;
    }
    Nearest found{*this, view.toPlane(pixel), most * view.scale};
    for (std::size_t node = 0; node < mBoxes.back().size(); ++node) {
        search(mBoxes.size() - 1, node, found);
    }
    if (found.hit) {
        found.hit->distance = found.distance / view.scale;
    }
    return found.hit;
}

} // namespace TARN
