#include "flight/Session.h"

namespace TARN {

Session::Session(QObject* parent)
    : QObject(parent), mProfile(std::make_shared<Profile>()), mLooks(new Looks(this)),
      mReference(new Reference(this)), mSwitches(std::make_unique<Switches>())
{}

TimeRange rangeOf(const Session& session)
{
    if (session.marks().hasExtent() || session.flight() == nullptr) {
        return session.marks();
    }
    return session.flight()->range(session.offset());
}

void Session::setProfile(std::shared_ptr<const Profile> profile, const Selection& ticks,
                         std::shared_ptr<const Flight> flight,
                         std::shared_ptr<const Flight> reference)
{
    mProfile = std::move(profile);
    mFlight = std::move(flight);
    mTicks = ticks;
    mSelection = ticks;
    mReference->setFlight(std::move(reference));
    Q_EMIT profileChanged();
}

void Session::setFlight(std::shared_ptr<const Flight> flight)
{
    mFlight = std::move(flight);
    mOffset = mFlight != nullptr ? mFlight->record()->offset() : mOffset;
    mTime = mFlight != nullptr ? mFlight->info().startTime : 0.0;
    mMarks = {};
    Q_EMIT flightChanged();
}

void Session::setTicks(const Selection& ticks)
{
    if (!(mTicks == ticks)) {
        mTicks = ticks;
        Q_EMIT ticksChanged();
    }
}

void Session::confirm()
{
    mSelection = mTicks;
    Q_EMIT selectionChanged(); // the same again too: a graph that was emptied is filled
}

void Session::setOffset(double seconds)
{
    if (mOffset != seconds) {
        mOffset = seconds;
        Q_EMIT offsetChanged();
    }
}

void Session::setTime(double time, const QObject* source)
{
    mTime = time;
    Q_EMIT timeChanged(time, source);
}

void Session::setMarks(const TimeRange& marks)
{
    if (!(mMarks == marks)) {
        mMarks = marks;
        Q_EMIT marksChanged();
    }
}

} // namespace TARN
