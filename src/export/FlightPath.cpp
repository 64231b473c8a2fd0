#include "export/FlightPath.h"

#include "base/Diagnostics.h"
#include "base/Numbers.h"
#include "export/PositionSource.h"
#include "flight/Flight.h"

#include <algorithm>
#include <ranges>

namespace TARN {

namespace {

constexpr double Missing = -999.0;

constexpr double PathPosition::*Coordinates[] = {&PathPosition::latitude, &PathPosition::longitude,
                                                 &PathPosition::altitude};

} // namespace

FlightPath::FlightPath(const Flight& flight, double offset, double slotWidth,
                       const TimeRange& range)
    : mSlotWidth(slotWidth)
{
    collect(flight, offset, range);
    fillForward();
    fillBackward();
}

/// Of several values of a coordinate in one slot the last one in the list stays.
void FlightPath::collect(const Flight& flight, double offset, const TimeRange& range)
{
    struct Told
    {
        int slot;
        std::size_t coordinate;
        double value;
    };
    std::vector<Told> told;
    const PositionSource source(*flight.profile());
    const ProfileParameter* parameters[] = {&source.latitude, &source.longitude, &source.altitude};
    for (std::size_t i = 0; i < std::size(parameters); ++i) {
        const Series series = flight.series(*parameters[i], offset);
        for (const RecordEntry& entry : series.entries()) {
            const double time = series.timeOf(entry);
            if (range.contains(time)) {
                told.push_back({slotOf(time), i, series.decoder().toDouble(entry, true)});
            }
        }
    }
    std::ranges::stable_sort(told, {}, &Told::slot);
    for (const Told& one : told) {
        if (mPoints.empty() || mPoints.back().slot != one.slot) {
            mPoints.push_back({one.slot, {}});
        }
        mPoints.back().position.*Coordinates[one.coordinate] = one.value;
    }
}

int FlightPath::slotOf(double time) const
{
    return truncatedTo<int>(time / mSlotWidth);
}

const PathPosition* FlightPath::position(int slot) const
{
    const auto found = std::ranges::lower_bound(mPoints, slot, {}, &Point::slot);
    return found != mPoints.end() && found->slot == slot ? &found->position : nullptr;
}

void FlightPath::fillForward()
{
    if (mPoints.empty()) {
        return;
    }
    PathPosition last = mPoints.front().position; // taken as it stands
    for (std::size_t i = 1; i < mPoints.size(); ++i) {
        PathPosition& position = mPoints[i].position;
        for (const auto coordinate : Coordinates) {
            if (position.*coordinate < Missing) {
                position.*coordinate = last.*coordinate;
            } else {
                last.*coordinate = position.*coordinate;
            }
        }
    }
}

void FlightPath::fillBackward()
{
    const PathPosition* next = nullptr;
    for (Point& point : std::views::reverse(mPoints)) {
        for (const auto coordinate : Coordinates) {
            const bool isMissing = point.position.*coordinate < Missing; // NaN is a value
            if (next == nullptr || !isMissing) {
                continue;
            }
            point.position.*coordinate = next->*coordinate;
            if (coordinate == &PathPosition::longitude) {
                diagnose("new lons %f\n", point.position.longitude);
            }
        }
        next = &point.position;
    }
}

} // namespace TARN
