#include "events/FaultPeriods.h"

#include <algorithm>

namespace TARN {

FaultPeriods::FaultPeriods(Session& session, EpisodeWatch& episodes, QWidget* parent)
    : DialogEventList(session, episodes, EventKind::Faults, tr("Active Errors"), parent)
{
    showFlight();
}

const std::vector<RecordEvent>* FaultPeriods::eventsOf(const Events&) const
{
    return nullptr;
}

const std::vector<Episode>& FaultPeriods::episodesOf(const Troubles& troubles) const
{
    return troubles.faults;
}

QString FaultPeriods::allWell(const Flight& flight) const
{
    const bool isKnown = std::ranges::any_of(flight.faults(), &FaultHistory::isKnown);
    return isKnown ? tr("No error was active.")
                   : tr("The recording holds no message of an error matrix, so none was watched.");
}

} // namespace TARN
