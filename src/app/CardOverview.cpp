#include "app/CardOverview.h"

#include "base/Property.h"
#include "card/DialogCard.h"

namespace TARN {

namespace {

/// Beside the settings; empty where there are none.
QString cacheFile()
{
    const QString settings = QString::fromStdString(Property::instance()->configFile());
    return settings.contains('/') ? settings.section('/', 0, -2) + "/Overview.json" : QString();
}

} // namespace

CardOverview::CardOverview(Session& session, DialogCard& card, QObject* parent)
    : QObject(parent), mSession(session), mView(card), mFinder(cacheFile())
{
    connect(&session, &Session::profileChanged, this, &CardOverview::lookAgain);
    connect(&session.switches().loading, &Switch::turned, this,
            [this] { mFinder.pause(mSession.switches().loading.isOn()); });
    connect(&mFinder, &OverviewFinder::found, &card, &DialogCard::setOverview);
}

void CardOverview::look(const CardInfo& card)
{
    mCard = card;
    lookAgain();
}

void CardOverview::lookAgain()
{
    mView.clearOverviews();
    std::vector<std::list<QString>> flights;
    std::vector<std::list<QString>> parts;
    for (const FlightGroup& group : flightGroups(mCard)) {
        flights.emplace_back(group.begin(), group.end());
        for (const QString& path : group) {
            if (group.size() > 1) {
                parts.push_back({path});
            }
        }
    }
    flights.insert(flights.end(), parts.begin(), parts.end());
    const bool isOfUse = mSession.profile()->isLoaded();
    mFinder.look(isOfUse ? flights : std::vector<std::list<QString>>(), mSession.profile());
}

} // namespace TARN
