#pragma once

#include "flight/Job.h"
#include "flight/Session.h"

namespace TARN {

/// Looks for all that went wrong in the session's flight at its offset, with how long, beside the
/// event loop, whenever one of the two changes.
class EpisodeWatch : public QObject
{
    Q_OBJECT

public:
    using Episodes = std::vector<Episode>;

    explicit EpisodeWatch(Session& session, QObject* parent = nullptr);

    /// Memory did not suffice to look for them.
    bool isShort() const { return mIsShort; }

    // Null while they are being looked for, where there is no flight and where it is too large.

    const std::shared_ptr<const Troubles>& troubles() const { return mTroubles; }
    /// Those of parameters out of range.
    std::shared_ptr<const Episodes> episodes() const;

Q_SIGNALS:
    void changed();

private:
    void look();

    Session& mSession;
    Job<std::shared_ptr<const Troubles>> mJob;
    std::shared_ptr<const Troubles> mTroubles;
    bool mIsShort = false;
};

} // namespace TARN
