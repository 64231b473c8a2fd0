#pragma once

#include "flight/Job.h"
#include "flight/Session.h"

namespace TARN {

/// Looks for all that went wrong in the session's flight at its offset, and in the reference
/// flight, with how long, beside the event loop, whenever one of them changes.
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
    /// Of the reference flight, on its own clock.
    const std::shared_ptr<const Troubles>& ofReference() const { return mOfReference; }
    /// Those of parameters out of range.
    std::shared_ptr<const Episodes> episodes() const;

Q_SIGNALS:
    void changed();
    void referenceChanged();

private:
    void look();
    void lookAtReference();

    Session& mSession;
    Job<std::shared_ptr<const Troubles>> mJob;
    std::shared_ptr<const Troubles> mTroubles;
    Job<std::shared_ptr<const Troubles>> mReferenceJob;
    std::shared_ptr<const Troubles> mOfReference;
    bool mIsShort = false;
};

} // namespace TARN
