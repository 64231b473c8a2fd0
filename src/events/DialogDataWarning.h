#pragma once

#include "events/DialogEventList.h"

namespace TARN {

/// Every moment at which a warning lamp was switched on.
class DialogDataWarning : public DialogEventList
{
    Q_OBJECT

public:
    explicit DialogDataWarning(Session& session, QWidget* parent = nullptr);

protected:
    const std::vector<RecordEvent>& eventsOf(const Events& events) const override;
    QString allWell(const Events& events) const override;
};

} // namespace TARN
