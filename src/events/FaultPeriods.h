#pragma once

#include "events/DialogEventList.h"

namespace TARN {

/// Every time during which an error of a matrix was active.
class FaultPeriods : public DialogEventList
{
    Q_OBJECT

public:
    FaultPeriods(Session& session, EpisodeWatch& episodes, QWidget* parent = nullptr);

protected:
    const std::vector<RecordEvent>* eventsOf(const Events& events) const override;
    const std::vector<Episode>& episodesOf(const Troubles& troubles) const override;
    QString allWell(const Flight& flight) const override;
};

} // namespace TARN
