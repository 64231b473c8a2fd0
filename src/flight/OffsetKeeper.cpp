#include "flight/OffsetKeeper.h"

#include "record/OffsetFile.h"

#include <utility>

namespace TARN {

OffsetKeeper::OffsetKeeper(Session& session, QObject* parent) : QObject(parent), mSession(session)
{
    connect(&session, &Session::offsetChanged, this, &OffsetKeeper::keep);
}

void OffsetKeeper::keep()
{
    if (mSession.flight() != nullptr) {
        mWanted = {mSession.flight()->record()->folder(), mSession.offset()};
        saveNext();
    }
}

void OffsetKeeper::saveNext()
{
    if (mJob.isRunning() || !mWanted) {
        return;
    }
    const Wanted wanted = *std::exchange(mWanted, std::nullopt);
    mJob.start([wanted](Progress&) { return OffsetFile(wanted.folder).save(wanted.seconds); },
               [this](bool saved) {
                   if (!saved) {
                       Q_EMIT failed();
                   }
                   saveNext();
               });
}

void OffsetKeeper::finish()
{
    constexpr std::chrono::seconds Longest(3);
    mJob.waitForEnd(Longest);
    if (mWanted) {
        mJob.cancel(); // its answer would come too late
        saveNext();
        mJob.waitForEnd(Longest);
    }
}

} // namespace TARN
