#include "faults/EventTimes.h"

#include "faults/FaultHistory.h"
#include "profile/Profile.h"
#include "record/Record.h"

#include <algorithm>

namespace TARN {

namespace {

/// Views tell times in milliseconds, rounded.
constexpr double SameMoment = 0.001;

} // namespace

EventTimes::EventTimes(const Record& record, const Profile& profile)
{
    for (const RecordEvent& event : record.recordData().limits) {
        mTimes.push_back(event.time);
    }
    for (const RecordEvent& event : record.recordData().warnings) {
        mTimes.push_back(event.time);
    }
    for (const FaultMatrix& matrix : profile.data().faultMatrices) {
        FaultHistory(record.recordData(), matrix).appendChangeTimes(mTimes);
    }
    std::ranges::sort(mTimes);
    mTimes.erase(std::ranges::unique(mTimes).begin(), mTimes.end());
}

std::optional<double> EventTimes::next(double time) const
{
    const auto found = std::ranges::upper_bound(mTimes, time + SameMoment);
    return found != mTimes.end() ? std::optional(*found) : std::nullopt;
}

std::optional<double> EventTimes::previous(double time) const
{
    const auto found = std::ranges::lower_bound(mTimes, time - SameMoment);
    return found != mTimes.begin() ? std::optional(*std::prev(found)) : std::nullopt;
}

} // namespace TARN
