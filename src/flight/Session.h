#pragma once

#include "flight/Flight.h"
#include "flight/Looks.h"
#include "flight/Reference.h"
#include "flight/Switch.h"
#include "profile/Selection.h"

#include <QtCore/QObject>

namespace TARN {

/// The one document of the window and the only thing in it that changes: what is shown, of which
/// parameters, when. Views listen to it and ask it; no view knows another. Everything belongs
/// together at any moment a listener is told: the flight is understood by the profile, and the
/// selections are of its parameters.
class Session : public QObject
{
    Q_OBJECT

public:
    explicit Session(QObject* parent = nullptr);

    const std::shared_ptr<const Profile>& profile() const { return mProfile; } ///< never null
    const std::shared_ptr<const Flight>& flight() const
    {
        return mFlight;
    } ///< null: none is loaded

    /// The confirmed selection: every view shows this one.
    const Selection& selection() const { return mSelection; }
    /// The ticks in the tree, which nobody has confirmed yet.
    const Selection& ticks() const { return mTicks; }

    Looks& looks() const { return *mLooks; }
    /// The flight to compare with.
    Reference& reference() const { return *mReference; }

    double offset() const { return mOffset; } ///< time offset, seconds
    double time() const { return mTime; }     ///< current time, seconds with the offset
    /// The range marked in the graph; without extent when nothing is marked.
    const TimeRange& marks() const { return mMarks; }

    /// Another profile: with the ticks that hold in it, which are confirmed at once, and the
    /// flight that is shown and the reference as this profile understands them, null when there is
    /// none. Time, offset and marks stay.
    void setProfile(std::shared_ptr<const Profile> profile, const Selection& ticks,
                    std::shared_ptr<const Flight> flight,
                    std::shared_ptr<const Flight> reference = nullptr);

    /// Another flight, understood by this profile: from its start, with the offset of its card,
    /// nothing marked. Null when nothing is to be shown.
    void setFlight(std::shared_ptr<const Flight> flight);

    void setTicks(const Selection& ticks);
    void confirm();
    void setOffset(double seconds);
    /// Moves the current time. \p source, which may be null, shows it already.
    void setTime(double time, const QObject* source = nullptr);
    void setMarks(const TimeRange& marks);

    /// What is so or not.
    struct Switches
    {
        Switch allDigits; ///< of numbers, not the shortest text that reads back as recorded
        Switch loading;   ///< another flight is on its way
    };
    Switches& switches() const { return *mSwitches; }

Q_SIGNALS:
    /// The profile, and with it the flight and both selections.
    void profileChanged();
    /// The flight, and with it offset, time and marks.
    void flightChanged();
    void ticksChanged();
    void selectionChanged();
    void offsetChanged();
    void timeChanged(double time, const QObject* source);
    void marksChanged();

private:
    std::shared_ptr<const Profile> mProfile;
    std::shared_ptr<const Flight> mFlight;
    Selection mSelection;
    Selection mTicks;
    double mOffset = 0.0;
    double mTime = 0.0;
    TimeRange mMarks;
    Looks* mLooks;
    Reference* mReference;
    std::unique_ptr<Switches> mSwitches;
};

/// What an export or a statistic works on: the marked range, all of the flight with its offset
/// when nothing is marked.
TimeRange rangeOf(const Session& session);

} // namespace TARN
