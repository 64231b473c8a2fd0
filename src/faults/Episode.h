#pragma once

#include "base/Progress.h"
#include "profile/ProfileTypes.h"
#include "record/GapRule.h"
#include "record/TimeRange.h"

#include <QtGui/QColor>

#include <optional>
#include <vector>

namespace TARN {

class Profile;
class RecordData;

/// A time during which something was wrong. Of a parameter out of its normal range: a longest run,
/// in time order, of its samples whose cell state is StateWarning or StateLimit, not across a gap.
/// Times carry the time offset. Refers to the profile that it was found with.
struct Episode
{
    /// The most that was reached: the greatest value of the run, the smallest where the range is
    /// left downwards, of equals the earliest. NaN is never the peak.
    struct Peak
    {
        double value;     ///< scaled
        double time;      ///< seconds
        double threshold; ///< value of the threshold that its sample reached, as it is compared
        QColor color;     ///< of that threshold value; may be invalid
        /// Where the range is left downwards: the value above, which it fell below.
        std::optional<double> below;
    };

    const ProfileDevice* device = nullptr;       ///< null of an error of a matrix
    const ProfileParameter* parameter = nullptr; ///< null of an error of a matrix
    QString name;                                ///< as lists call it
    int state = StateWarning;                    ///< the highest in it
    double start = 0.0;                          ///< time of its first sample
    double end = 0.0;   ///< time of the sample that is normal again, or of its own last one
    double shift = 0.0; ///< seconds of the time offset in these times
    std::size_t samples = 0;
    std::optional<Peak> peak; ///< nothing where every value is NaN
    std::size_t matrix = 0;   ///< of an error: place of its matrix in the profile
    QColor color;             ///< of its row in a list; may be invalid
    /// Places in the parameter's list of its samples that make limit events; empty where none did.
    std::vector<std::size_t> announcedBy;

    double duration() const { return end - start; }
    bool isAnnounced() const { return !announcedBy.empty(); }
    bool touches(const TimeRange& range) const { return start <= range.stop && end >= range.start; }
};

/// The episodes of every parameter of a profile, by start, equal starts by parameter and time, at
/// a time offset. \p silences gives those of the recording at this offset; asked only where it
/// matters. Ends early, with a part, when it is asked to stop.
///
/// The direction is that of the earliest sample in the episode's state: downwards where, in
/// document order, a value of state OK stands after the threshold value it reached and none before
/// it, otherwise upwards. An episode ends with the time of the next sample where that one is normal
/// and no gap lies between, otherwise with its own last sample.
std::vector<Episode> findEpisodes(const RecordData& data, const Profile& profile, double offset,
                                  const SilencesSource& silences, Progress& progress);

/// What went wrong in a flight, each by start.
struct Troubles
{
    std::vector<Episode> limits; ///< parameters out of range, see findEpisodes
    std::vector<Episode> lamps;  ///< lamps that were on, see findLampEpisodes
    std::vector<Episode> faults; ///< active errors of the matrices, see faultEpisodes
};

/// All of them, as they stand.
std::vector<const Episode*> pointersTo(const std::vector<Episode>& episodes);

/// So many of them at most, the worst first: those that reached their limit, of these those that
/// an event announced, of these those that lasted longest; of equals the earliest.
std::vector<const Episode*> worstOf(const std::vector<Episode>& episodes, std::size_t most);

} // namespace TARN
