#pragma once

#include "faults/Episode.h"
#include "faults/EventMarks.h"
#include "faults/FaultHistory.h"
#include "faults/RecordEvent.h"
#include "flight/PositionTrack.h"
#include "profile/Profile.h"
#include "profile/Series.h"
#include "profile/UnknownIdentifiers.h"
#include "record/Record.h"
#include "record/TimeRange.h"

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace TARN {

/// What a recording and a profile make together: the samples, how they are understood and what
/// went wrong. It never changes after it was made. Views and jobs share it: nothing that they
/// refer to can go away under them, and any number of threads may read it. Another profile on the
/// same recording is another flight that shares the samples.
class Flight
{
public:
    /// Looks through the samples for all that went wrong. Null when it was asked to stop.
    static std::shared_ptr<const Flight> make(std::shared_ptr<const Record> record,
                                              std::shared_ptr<const Profile> profile,
                                              Progress& progress);
    static std::shared_ptr<const Flight> make(std::shared_ptr<const Record> record,
                                              std::shared_ptr<const Profile> profile);

    const std::shared_ptr<const Record>& record() const { return mRecord; }
    const std::shared_ptr<const Profile>& profile() const { return mProfile; }
    const RecordInfo& info() const { return mRecord->recordInfo(); }
    const RecordData& samples() const { return mRecord->recordData(); }

    const Events& events() const { return mEvents; }
    /// One for each error matrix of the profile, in its order.
    const std::vector<FaultHistory>& faults() const { return mFaults; }
    /// The moments to go to from one to the next.
    const EventMarks& marks() const { return mMarks; }
    const UnknownIdentifiers& unknown() const { return mUnknown; }

    /// Of the positions, where the profile names them.
    const PositionQuality& positionQuality() const { return mPositions; }
    /// With altitudes.
    PositionTrack positions(double offset, Progress& progress) const;
    /// What a reader should know before trusting what the recording shows: on its files, and on
    /// the positions where the profile names them.
    QStringList remarks() const;

    /// A parameter of the profile at a time offset.
    Series series(const ProfileParameter& parameter, double offset) const
    {
        return {samples(), *mProfile, parameter, offset};
    }

    /// Stretches without any sample, at a time offset. Made when they are first asked for.
    std::shared_ptr<const Silences> silences(double offset) const;

    /// See findEpisodes.
    std::vector<Episode> episodes(double offset, Progress& progress) const;
    /// All that went wrong, with how long.
    Troubles troubles(double offset, Progress& progress) const;

    /// From the earliest to the latest time of any sample, with a time offset.
    TimeRange range(double offset) const;

private:
    Flight(std::shared_ptr<const Record> record, std::shared_ptr<const Profile> profile,
           Progress& progress);

    SilencesSource silencesSource(double offset) const;

    std::shared_ptr<const Record> mRecord;
    std::shared_ptr<const Profile> mProfile;
    Events mEvents;
    std::vector<FaultHistory> mFaults;
    EventMarks mMarks;
    UnknownIdentifiers mUnknown;
    PositionQuality mPositions;
    // Times of the samples to which the offset does not apply, and of those to which it does,
    // without it.
    std::optional<TimeRange> mFixed;
    std::optional<TimeRange> mShifted;
    mutable std::once_flag mSilencesMade;
    mutable std::shared_ptr<const Silences> mSilences; ///< without an offset
};

} // namespace TARN
