#include "flight/EpisodeWatch.h"

namespace TARN {

EpisodeWatch::EpisodeWatch(Session& session, QObject* parent) : QObject(parent), mSession(session)
{
    connect(&session, &Session::profileChanged, this, &EpisodeWatch::look);
    connect(&session, &Session::flightChanged, this, &EpisodeWatch::look);
    connect(&session, &Session::offsetChanged, this, &EpisodeWatch::look);
}

void EpisodeWatch::look()
{
    mJob.cancel();
    mEpisodes = nullptr;
    Q_EMIT changed();
    if (mSession.flight() == nullptr) {
        return;
    }
    // The episodes refer to the flight's profile, which they keep.
    struct Found
    {
        std::shared_ptr<const Flight> flight;
        Episodes episodes;
    };
    mJob.start(
        [flight = mSession.flight(), offset = mSession.offset()](Progress& progress) {
            auto found = std::make_shared<Found>();
            found->flight = flight;
            found->episodes = flight->episodes(offset, progress);
            return std::shared_ptr<const Episodes>(found, &found->episodes);
        },
        [this](std::shared_ptr<const Episodes> episodes) {
            mEpisodes = std::move(episodes);
            Q_EMIT changed();
        });
}

} // namespace TARN
