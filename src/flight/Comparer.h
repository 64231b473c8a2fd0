#pragma once

#include "flight/Comparison.h"
#include "flight/Job.h"
#include "flight/Session.h"

namespace TARN {

/// Compares parameters of the session's flight with its reference beside the event loop, anew
/// whenever the reference or its shift changes.
class Comparer : public QObject
{
    Q_OBJECT

public:
    using Indexes = std::vector<std::shared_ptr<const ComparisonIndex>>;

    explicit Comparer(Session& session, QObject* parent = nullptr);

    /// Of these parameters; what was made of others is gone.
    void compare(StatisticsIndexes flight);

    /// One for each parameter, in their order; none while they are being made and without a
    /// reference.
    const Indexes& indexes() const { return mIndexes; }

Q_SIGNALS:
    void changed();

private:
    struct Made
    {
        StatisticsIndexes references;
        Indexes indexes;
    };

    void forget();
    void start();

    Session& mSession;
    StatisticsIndexes mFlight;
    StatisticsIndexes mReferences; ///< of the same parameters; none until they are made
    Indexes mIndexes;
    Job<Made> mJob;
};

} // namespace TARN
