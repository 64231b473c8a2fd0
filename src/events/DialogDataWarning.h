#pragma once

#include "events/DialogEventList.h"

namespace TARN {

/// Every moment at which a warning lamp was switched on, and below them every time during which
/// one was on again without an event.
class DialogDataWarning : public DialogEventList
{
    Q_OBJECT

public:
    DialogDataWarning(Session& session, EpisodeWatch& episodes, QWidget* parent = nullptr);

protected:
    const std::vector<RecordEvent>* eventsOf(const Events& events) const override;
    const std::vector<Episode>& episodesOf(const Troubles& troubles) const override;
    QString allWell(const Flight& flight) const override;
};

} // namespace TARN
