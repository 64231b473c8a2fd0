#include "flight/EpisodeWatch.h"

namespace TARN {

namespace {

/// They refer to the flight's profile, which they keep.
std::shared_ptr<const Troubles> troublesOf(const std::shared_ptr<const Flight>& flight,
                                           double offset, Progress& progress)
{
    struct Found
    {
        std::shared_ptr<const Flight> flight;
        Troubles troubles;
    };
    auto found = std::make_shared<Found>();
    found->flight = flight;
    found->troubles = flight->troubles(offset, progress);
    return {found, &found->troubles};
}

} // namespace

EpisodeWatch::EpisodeWatch(Session& session, QObject* parent) : QObject(parent), mSession(session)
{
    connect(&session, &Session::profileChanged, this, &EpisodeWatch::look);
    connect(&session, &Session::flightChanged, this, &EpisodeWatch::look);
    connect(&session, &Session::offsetChanged, this, &EpisodeWatch::look);
    connect(&session.reference(), &Reference::flightChanged, this, &EpisodeWatch::lookAtReference);
    mReferenceJob.setOutOfMemory([this] { mSession.reference().memoryShort().turn(true); });
    mJob.setOutOfMemory([this] {
        mIsShort = true;
        Q_EMIT changed();
    });
}

void EpisodeWatch::look()
{
    mJob.cancel();
    mTroubles = nullptr;
    mIsShort = false;
    Q_EMIT changed();
    if (mSession.flight() == nullptr) {
        return;
    }
    mJob.start([flight = mSession.flight(), offset = mSession.offset()](
                   Progress& progress) { return troublesOf(flight, offset, progress); },
               [this](std::shared_ptr<const Troubles> troubles) {
                   mTroubles = std::move(troubles);
                   Q_EMIT changed();
               });
}

void EpisodeWatch::lookAtReference()
{
    const Reference& reference = mSession.reference();
    mReferenceJob.cancel();
    mOfReference = nullptr;
    Q_EMIT referenceChanged();
    if (reference.flight() == nullptr) {
        return;
    }
    mReferenceJob.start([flight = reference.flight(), offset = reference.offset()](
                            Progress& progress) { return troublesOf(flight, offset, progress); },
                        [this](std::shared_ptr<const Troubles> troubles) {
                            mOfReference = std::move(troubles);
                            Q_EMIT referenceChanged();
                        });
}

std::shared_ptr<const EpisodeWatch::Episodes> EpisodeWatch::episodes() const
{
    return mTroubles == nullptr ? nullptr
                                : std::shared_ptr<const Episodes>(mTroubles, &mTroubles->limits);
}

} // namespace TARN
