#include "flight/Flight.h"

#include "faults/EventDetector.h"
#include "faults/FaultEpisodes.h"
#include "faults/LampEpisodes.h"
#include "record/RecordText.h"

#include <algorithm>

namespace TARN {

namespace {

/// Times of the lists to which the offset applies, or of those to which it does not.
std::optional<TimeRange> timesOf(const RecordData& data, bool isShifted)
{
    std::optional<TimeRange> range;
    for (const RecordIdList& list : data.lists()) {
        if (list.highFile != isShifted) {
            continue;
        }
        for (const RecordEntry& entry : list.entries) {
            const double time = entry.time();
            range = range ? TimeRange{std::min(range->start, time), std::max(range->stop, time)}
                          : TimeRange{time, time};
        }
    }
    return range;
}

} // namespace

Flight::Flight(std::shared_ptr<const Record> record, std::shared_ptr<const Profile> profile,
               Progress& progress)
    : mRecord(std::move(record)), mProfile(std::move(profile)),
      mEvents(detectEvents(samples(), *mProfile, progress)),
      mUnknown(unknownIdentifiers(samples(), *mProfile))
{
    for (const FaultMatrix& matrix : mProfile->data().faultMatrices) {
        mFaults.emplace_back(samples(), matrix);
    }
    mMarks = EventMarks(samples(), mEvents, mFaults);
    if (std::ranges::any_of(samples().lists(), &RecordIdList::highFile)) {
        mFixed = timesOf(samples(), false);
        mShifted = timesOf(samples(), true);
    }
    mPositions = TARN::positionQuality(samples(), *mProfile, silencesSource(0.0), progress);
}

std::shared_ptr<const Flight> Flight::make(std::shared_ptr<const Record> record,
                                           std::shared_ptr<const Profile> profile,
                                           Progress& progress)
{
    std::shared_ptr<const Flight> flight(
        new Flight(std::move(record), std::move(profile), progress));
    return progress.stopRequested() ? nullptr : flight;
}

std::shared_ptr<const Flight> Flight::make(std::shared_ptr<const Record> record,
                                           std::shared_ptr<const Profile> profile)
{
    Progress none;
    return make(std::move(record), std::move(profile), none);
}

std::shared_ptr<const Silences> Flight::silences(double offset) const
{
    if (offset != 0.0 && mShifted) {
        return std::make_shared<Silences>(samples(), offset);
    }
    std::call_once(mSilencesMade,
                   [this] { mSilences = std::make_shared<Silences>(samples(), 0.0); });
    return mSilences;
}

/// Looks for them once, when they are first asked for.
SilencesSource Flight::silencesSource(double offset) const
{
    return [this, offset, known = std::make_shared<std::shared_ptr<const Silences>>()] {
        *known = *known != nullptr ? *known : silences(offset);
        return *known;
    };
}

PositionTrack Flight::positions(double offset, Progress& progress) const
{
    const SilencesSource silences = silencesSource(offset);
    PositionTrack track(samples(), *mProfile, offset, silences, progress);
    track.addAltitudes(samples(), *mProfile, offset, silences);
    return track;
}

QStringList Flight::remarks() const
{
    return recordRemarks(mRecord->integrity()) + mPositions.remarks();
}

std::vector<Episode> Flight::episodes(double offset, Progress& progress) const
{
    return findEpisodes(samples(), *mProfile, offset, silencesSource(offset), progress);
}

Troubles Flight::troubles(double offset, Progress& progress) const
{
    const SilencesSource silences = silencesSource(offset);
    return {findEpisodes(samples(), *mProfile, offset, silences, progress),
            findLampEpisodes(samples(), *mProfile, offset, silences, progress),
            faultEpisodes(mFaults, offset)};
}

TimeRange Flight::range(double offset) const
{
    if (!mShifted) {
        return {info().startTime, info().stopTime};
    }
    const TimeRange shifted{mShifted->start + offset, mShifted->stop + offset};
    return mFixed ? TimeRange{std::min(mFixed->start, shifted.start),
                              std::max(mFixed->stop, shifted.stop)}
                  : shifted;
}

} // namespace TARN
