#include "app/LogbookKeeper.h"

#include "app/FlightReading.h"
#include "logbook/LogbookSettings.h"

#include <utility>

namespace TARN {

LogbookKeeper::LogbookKeeper(Session& session, QObject* parent) : QObject(parent), mSession(session)
{
    connect(&mSession, &Session::flightChanged, this, &LogbookKeeper::takeFlight);
    connect(&mAccess, &LogbookAccess::added, this,
            [this](const AddTotals& totals, const QStringList& damaged) {
                if (totals.added > 0) {
                    Q_EMIT signalMessage(tr("Added to the logbook."));
                    Q_EMIT signalAdded();
                } else if (!damaged.isEmpty()) {
                    Q_EMIT signalMessage(tr("Not added to the logbook: %1").arg(damaged.front()));
                }
                next();
            });
    connect(&mAccess, &LogbookAccess::failed, this, [this](const QString& reason) {
        Q_EMIT signalMessage(tr("Not added to the logbook: %1").arg(reason));
        next();
    });
}

void LogbookKeeper::takeFlight()
{
    const std::list<QString> files = filesOf(mSession.flight().get());
    if (files.empty() || !mSession.profile()->isLoaded() || !LogbookSettings::addsOpened()) {
        return;
    }
    mWaiting.emplace_back(files.begin(), files.end());
    if (!mAccess.isAdding()) {
        next();
    }
}

/// Recordings are read anew, beside those that are shown.
void LogbookKeeper::next()
{
    if (mWaiting.empty()) {
        return;
    }
    const QStringList files = std::exchange(mWaiting.front(), {});
    mWaiting.pop_front();
    mAccess.setUrl(LogbookSettings::url());
    mAccess.addFlightsOf(files, mSession.profile());
}

} // namespace TARN
