#pragma once

#include "flight/Job.h"
#include "flight/Session.h"

namespace TARN {

/// Finds the shift of the session's reference flight beside the event loop, whenever one of the
/// flights, an offset or what is laid on what changes.
class Aligner : public QObject
{
    Q_OBJECT

public:
    explicit Aligner(Session& session, QObject* parent = nullptr);

    /// Whether what is to be laid on what exists in both flights.
    bool isPossible() const { return mIsPossible; }
    bool isRunning() const { return mJob.isRunning(); }

Q_SIGNALS:
    /// It is looked for, was found, or found not to exist.
    void changed();

private:
    void takeFlight();
    void takeOffset();
    void align();

    Session& mSession;
    std::shared_ptr<const Record> mRecord; ///< of the flight that was aligned
    double mOffset = 0.0;
    Job<std::optional<double>> mJob;
    bool mIsPossible = true;
};

} // namespace TARN
