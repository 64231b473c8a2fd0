#pragma once

#include "events/DialogEventList.h"

namespace TARN {

/// Every moment at which a warning lamp was switched on, and below them every time during which
/// one was on again without an event.
class DialogDataWarning : public DialogEventList
{
    Q_OBJECT

public:
    DialogDataWarning(Session& session, EpisodeWatch& episodes, QWidget* parent = nullptr)
        : DialogEventList(session, episodes, EventKind::Lamps, tr("Warning Lamps"), parent)
    {}
};

} // namespace TARN
