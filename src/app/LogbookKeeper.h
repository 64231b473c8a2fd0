#pragma once

#include "flight/Session.h"
#include "logbook/LogbookAccess.h"

#include <deque>

namespace TARN {

/// Adds every flight that is opened to the logbook, where the user wants that, while it is looked
/// at: with all of its recordings, also those that were not opened.
class LogbookKeeper : public QObject
{
    Q_OBJECT

public:
    explicit LogbookKeeper(Session& session, QObject* parent = nullptr);

Q_SIGNALS:
    /// What the user should know of it.
    void signalMessage(const QString& text);
    /// There is a flight more in the logbook.
    void signalAdded();

private:
    void takeFlight();
    void next();

    Session& mSession;
    LogbookAccess mAccess;
    std::deque<QStringList> mWaiting; ///< recordings of a flight each
};

} // namespace TARN
