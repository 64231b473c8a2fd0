#pragma once

#include "flight/Job.h"
#include "flight/Session.h"

#include <optional>

namespace TARN {

/// Keeps the time offset on the card whenever the user changes it, beside the event loop: a card
/// may be slow. Offsets are written one after the other, the last one counts.
class OffsetKeeper : public QObject
{
    Q_OBJECT

public:
    explicit OffsetKeeper(Session& session, QObject* parent = nullptr);

    /// Waits a few seconds at most until everything is written; for the end of the program.
    void finish();

Q_SIGNALS:
    /// The offset could not be written; it holds until the program ends.
    void failed();

private:
    struct Wanted
    {
        QString folder;
        double seconds;
    };

    void keep();
    void saveNext();

    Session& mSession;
    Job<bool> mJob;
    std::optional<Wanted> mWanted;
};

} // namespace TARN
