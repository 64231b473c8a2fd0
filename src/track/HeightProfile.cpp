#include "track/HeightProfile.h"

#include <algorithm>
#include <cmath>
#include <ranges>

namespace TARN {

namespace {

/// What falls into a column, in the order of the track.
struct Column
{
    double x;
    double first;
    double low;
    double high;
    double last;

    void addTo(QPolygonF& line) const
    {
        const bool fallsFirst = std::abs(low - first) <= std::abs(high - first);
        double before = std::numeric_limits<double>::quiet_NaN();
        for (const double value : {first, fallsFirst ? low : high, fallsFirst ? high : low, last}) {
            if (value != before) {
                line.append({x, value});
            }
            before = value;
        }
    }
};

} // namespace

HeightProfile::HeightProfile(const PositionTrack& track, Axis axis, int columns)
{
    if (track.empty() || columns < 1) {
        return;
    }
    const auto onAxis = [&](std::size_t k) {
        return axis == Time ? track.time(k) : track.metres(k);
    };
    mStart = onAxis(0);
    mStop = onAxis(track.size() - 1);
    const double perUnit = mStop > mStart ? columns / (mStop - mStart) : 0.0;
    mLowest = std::numeric_limits<double>::infinity();
    mHighest = -mLowest;
    QPolygonF line;
    std::optional<Column> column;
    const auto finish = [&] {
        if (column) {
            column->addTo(line);
        }
        column.reset();
        if (!line.isEmpty()) {
            mLines.push_back(line);
        }
        line.clear();
    };
    for (const PositionTrack::Stretch& stretch : track.stretches()) {
        for (std::size_t k = stretch.begin; k < stretch.end; ++k) {
            const double value = track.altitude(k);
            if (!std::isfinite(value)) {
                finish();
                continue;
            }
            const double x = std::min(std::floor((onAxis(k) - mStart) * perUnit), columns - 1.0);
            if (!column || column->x != x) {
                if (column) {
                    column->addTo(line);
                }
                column = Column{x, value, value, value, value};
            }
            column->low = std::min(column->low, value);
            column->high = std::max(column->high, value);
            column->last = value;
            mLowest = std::min(mLowest, value);
            mHighest = std::max(mHighest, value);
        }
        finish();
    }
}

double timeAtMetres(const PositionTrack& track, double metres)
{
    const auto numbers = std::views::iota(std::size_t(0), track.size());
    const auto found = static_cast<std::size_t>(
        std::ranges::partition_point(numbers,
                                     [&](std::size_t k) { return track.metres(k) < metres; }) -
        numbers.begin());
    if (found == 0 || found == track.size()) {
        return track.empty() ? 0.0 : track.time(found == 0 ? 0 : found - 1);
    }
    const double step = track.metres(found) - track.metres(found - 1);
    const double share = step > 0.0 ? (metres - track.metres(found - 1)) / step : 1.0;
    return track.time(found - 1) + share * (track.time(found) - track.time(found - 1));
}

} // namespace TARN
