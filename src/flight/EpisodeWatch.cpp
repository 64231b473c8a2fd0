#include "flight/EpisodeWatch.h"

namespace TARN {

EpisodeWatch::EpisodeWatch(Session& session, QObject* parent) : QObject(parent), mSession(session)
{
    connect(&session, &Session::profileChanged, this, &EpisodeWatch::look);
    connect(&session, &Session::flightChanged, this, &EpisodeWatch::look);
    connect(&session, &Session::offsetChanged, this, &EpisodeWatch::look);
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
    // They refer to the flight's profile, which they keep.
    struct Found
    {
        std::shared_ptr<const Flight> flight;
        Troubles troubles;
    };
    mJob.start(
        [flight = mSession.flight(), offset = mSession.offset()](Progress& progress) {
            auto found = std::make_shared<Found>();
            found->flight = flight;
            found->troubles = flight->troubles(offset, progress);
            return std::shared_ptr<const Troubles>(found, &found->troubles);
        },
        [this](std::shared_ptr<const Troubles> troubles) {
            mTroubles = std::move(troubles);
            Q_EMIT changed();
        });
}

std::shared_ptr<const EpisodeWatch::Episodes> EpisodeWatch::episodes() const
{
    return mTroubles == nullptr ? nullptr
                                : std::shared_ptr<const Episodes>(mTroubles, &mTroubles->limits);
}

} // namespace TARN
