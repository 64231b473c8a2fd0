#pragma once

#include "events/DialogEventList.h"

namespace TARN {

/// Every moment at which a parameter entered its warning or limit range, and below them every
/// time during which a parameter was out of range although no event announced it.
class DialogDataLimit : public DialogEventList
{
    Q_OBJECT

public:
    DialogDataLimit(Session& session, EpisodeWatch& episodes, QWidget* parent = nullptr);

protected:
    const std::vector<RecordEvent>* eventsOf(const Events& events) const override;
    const std::vector<Episode>& episodesOf(const Troubles& troubles) const override;
    QString allWell(const Flight& flight) const override;
};

} // namespace TARN
