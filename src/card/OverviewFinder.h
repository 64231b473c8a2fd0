#pragma once

#include "card/OverviewCache.h"
#include "flight/Job.h"

#include <QtCore/QObject>

#include <deque>

namespace TARN {

/// Looks into recordings beside the event loop, one after the other, and tells what they hold;
/// what was found before is not looked for again.
class OverviewFinder : public QObject
{
    Q_OBJECT

public:
    /// \p cacheFile may be empty: nothing is kept then.
    explicit OverviewFinder(const QString& cacheFile, QObject* parent = nullptr);

    /// Looks into these, files of a flight each, in place of those that are waiting.
    void look(const std::vector<std::list<QString>>& flights,
              std::shared_ptr<const Profile> profile);

    /// Waits, while the user waits for something else.
    void pause(bool on);

Q_SIGNALS:
    /// Nothing where they were not looked into.
    void found(const std::list<QString>& files, std::optional<TARN::Overview> overview);

private:
    void next();
    void take(const std::optional<Overview>& overview);

    std::shared_ptr<OverviewCache> mCache;
    std::shared_ptr<const Profile> mProfile;
    std::deque<std::list<QString>> mWaiting; ///< the first is being looked into
    Job<std::optional<Overview>> mJob;
    bool mIsPaused = false;
};

} // namespace TARN
