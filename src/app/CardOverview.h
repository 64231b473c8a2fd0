#pragma once

#include "card/OverviewFinder.h"
#include "flight/Session.h"
#include "record/CardInfo.h"

namespace TARN {

class DialogCard;

/// Has the recordings of the card looked into while nothing else is being loaded, flights first,
/// and shows what they hold.
class CardOverview : public QObject
{
    Q_OBJECT

public:
    /// Both live as long.
    CardOverview(Session& session, DialogCard& card, QObject* parent);

    void look(const CardInfo& card);

private:
    void lookAgain();

    Session& mSession;
    DialogCard& mView;
    CardInfo mCard;
    OverviewFinder mFinder;
};

} // namespace TARN
