#pragma once

#include "events/DialogEventList.h"

namespace TARN {

/// Every moment at which a parameter entered its warning or limit range, and below them every
/// time during which a parameter was out of range although no event announced it.
class DialogDataLimit : public DialogEventList
{
    Q_OBJECT

public:
    DialogDataLimit(Session& session, EpisodeWatch& episodes, QWidget* parent = nullptr)
        : DialogEventList(session, episodes, EventKind::Limits, tr("Warning/Limit Exceed"), parent)
    {}
};

} // namespace TARN
