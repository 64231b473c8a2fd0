#include "events/DialogDataLimit.h"

#include "base/CountText.h"

namespace TARN {

DialogDataLimit::DialogDataLimit(Session& session, EpisodeWatch& episodes, QWidget* parent)
    : DialogEventList(session, episodes, EventKind::Limits, tr("Warning/Limit Exceed"), parent)
{
    showFlight();
}

const std::vector<RecordEvent>* DialogDataLimit::eventsOf(const Events& events) const
{
    return &events.limits;
}

const std::vector<Episode>& DialogDataLimit::episodesOf(const Troubles& troubles) const
{
    return troubles.limits;
}

QString DialogDataLimit::allWell(const Flight& flight) const
{
    const Watched& watched = flight.events().watchedLimits;
    if (watched.parameters == 0) {
        return tr("The recording holds no FLOAT message of a parameter with a threshold, so "
                  "nothing was watched for limits.");
    }
    return tr("No limit event in %1 samples of %2 watched parameters.")
        .arg(countText(static_cast<qint64>(watched.samples)),
             countText(static_cast<qint64>(watched.parameters)));
}

} // namespace TARN
