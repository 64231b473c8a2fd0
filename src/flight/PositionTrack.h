#pragma once

#include "base/Progress.h"
#include "flight/GeoPoint.h"
#include "record/GapRule.h"

#include <QtCore/QStringList>

#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

namespace TARN {

class Profile;
class RecordData;

/// Whether a profile says where the aircraft's position is found.
bool namesPosition(const Profile& profile);

/// What cannot be true of the positions of a recording.
struct PositionQuality
{
    std::size_t nowhere = 0; ///< positions of 0/0
    std::size_t jumps = 0;   ///< steps that nothing flies, see isJump
    double firstJump = 0.0;  ///< time before the first of them, seconds

    void addJump(double time)
    {
        firstJump = jumps == 0 ? time : firstJump;
        ++jumps;
    }

    /// In words, a line each.
    QStringList remarks() const;
};

/// The same that a PositionTrack without a time offset finds; nothing where the profile names no
/// position. \p silences as there.
PositionQuality positionQuality(const RecordData& data, const Profile& profile,
                                const SilencesSource& silences, Progress& progress);

/// Where an aircraft was: a position for each sample of its latitude, in the order of time. The
/// longitude then stands on the straight line between its samples, the short way round. There is
/// none in a gap of the longitude, where a value is no place and at 0/0. Times are seconds with
/// the time offset.
class PositionTrack
{
public:
    /// Positions between which the aircraft flew, never none: it ends at a gap of the latitude, at
    /// a position that is missing and before a jump.
    struct Stretch
    {
        std::size_t begin;
        std::size_t end;     ///< behind the last one
        bool jumped = false; ///< came to its first position by a jump, or went by one from its last

        std::size_t size() const { return end - begin; }
    };

    PositionTrack() = default;
    /// Ends early, with a part, when it is asked to stop. \p silences of the recording at this
    /// offset; asked only where it matters.
    PositionTrack(const RecordData& data, const Profile& profile, double offset,
                  const SilencesSource& silences, Progress& progress);

    /// The next position, which is a place; \p isCut where nothing is known since the one before.
    void append(double time, const GeoPoint& point, bool isCut = false, double altitude = NAN);

    /// Of the same recording, profile and offset.
    void addAltitudes(const RecordData& data, const Profile& profile, double offset,
                      const SilencesSource& silences);

    bool empty() const { return mTimes.empty(); }
    std::size_t size() const { return mTimes.size(); }
    double time(std::size_t k) const { return mTimes[k]; }
    /// Longitudes are from -180 to 180.
    const GeoPoint& point(std::size_t k) const { return mPoints[k]; }
    /// As the profile scales it; NaN where it is not known.
    double altitude(std::size_t k) const { return mAltitudes[k]; }
    const QString& altitudeUnit() const { return mAltitudeUnit; }
    /// Flown since the first position, not across what lies between stretches.
    double metres(std::size_t k) const { return mMetres[k]; }

    /// By time.
    const std::vector<Stretch>& stretches() const { return mStretches; }
    /// The one that position \p k is of.
    const Stretch& stretchOf(std::size_t k) const;
    /// Whether a stretch is too short, between jumps, to be believed: a hundredth of all positions.
    bool isStray(const Stretch& stretch) const
    {
        return stretch.jumped && stretch.size() <= size() / 100;
    }

    const PositionQuality& quality() const { return mQuality; }

    /// Position at or after a time; size() where there is none.
    std::size_t firstNotBefore(double time) const;

    struct Place
    {
        GeoPoint point;
        double altitude;   ///< NaN where it is not known
        double metres;     ///< see metres()
        std::size_t index; ///< of the position at or before it
        bool isKnown;      ///< otherwise it is where the aircraft was last
    };
    /// The first position is that of the two seconds before it, too; there is nothing before them.
    /// The last one of a stretch holds for two seconds, but not past the next.
    std::optional<Place> at(double time) const;

    /// Degrees clockwise from north in which the aircraft moved about position \p k, told by places
    /// some metres apart; nothing where it stands.
    std::optional<double> courseAt(std::size_t k) const;

private:
    std::vector<double> mTimes;
    std::vector<GeoPoint> mPoints;
    std::vector<float> mAltitudes;
    std::vector<double> mMetres;
    std::vector<Stretch> mStretches;
    PositionQuality mQuality;
    QString mAltitudeUnit;
};

} // namespace TARN
