#include "events/DialogDataLimit.h"

#include "base/CountText.h"
#include "events/EventModel.h"

namespace TARN {

DialogDataLimit::DialogDataLimit(Session& session, EpisodeWatch& episodes, QWidget* parent)
    : DialogEventList(session, tr("Warning/Limit Exceed"), true, parent), mEpisodes(episodes)
{
    connect(&mEpisodes, &EpisodeWatch::changed, this, &DialogDataLimit::showEpisodes);
    showFlight();
}

const std::vector<RecordEvent>& DialogDataLimit::eventsOf(const Events& events) const
{
    return events.limits;
}

QString DialogDataLimit::allWell(const Events& events) const
{
    const Watched& watched = events.watchedLimits;
    if (watched.parameters == 0) {
        return tr("The recording holds no FLOAT message of a parameter with a threshold, so "
                  "nothing was watched for limits.");
    }
    return tr("No limit event in %1 samples of %2 watched parameters.")
        .arg(countText(static_cast<qint64>(watched.samples)),
             countText(static_cast<qint64>(watched.parameters)));
}

void DialogDataLimit::showEpisodes()
{
    if (mEpisodes.episodes() == nullptr) {
        showFlight();
    } else {
        model().setEpisodes(mEpisodes.episodes());
        showCurrentTime();
    }
}

} // namespace TARN
