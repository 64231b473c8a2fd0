#include "events/DialogDataWarning.h"

#include "base/CountText.h"

namespace TARN {

DialogDataWarning::DialogDataWarning(Session& session, EpisodeWatch& episodes, QWidget* parent)
    : DialogEventList(session, episodes, EventKind::Lamps, tr("Warning Lamps"), parent)
{
    showFlight();
}

const std::vector<RecordEvent>* DialogDataWarning::eventsOf(const Events& events) const
{
    return &events.warnings;
}

const std::vector<Episode>& DialogDataWarning::episodesOf(const Troubles& troubles) const
{
    return troubles.lamps;
}

QString DialogDataWarning::allWell(const Flight& flight) const
{
    const Watched& watched = flight.events().watchedLamps;
    if (watched.parameters == 0) {
        return tr("The recording holds no message of a warning lamp, so none was watched.");
    }
    return tr("No warning lamp came on in %1 samples of %2 lamps.")
        .arg(countText(static_cast<qint64>(watched.samples)),
             countText(static_cast<qint64>(watched.parameters)));
}

} // namespace TARN
