#pragma once

#include "app/FlightReading.h"
#include "flight/Job.h"
#include "flight/Session.h"

namespace TARN {

/// Loads recordings as the session's reference flight beside the event loop. What is asked for
/// while something loads takes its place; until then, and where loading fails or is cancelled, the
/// reference that was there stays. Nothing is let go for it: what does not fit the free memory
/// beside the flight is not loaded.
class ReferenceLoader : public QObject
{
    Q_OBJECT

public:
    explicit ReferenceLoader(Session& session, QObject* parent = nullptr);

    /// Empty paths are left out; with none left nothing happens.
    void load(std::list<QString> files);
    void cancel();

Q_SIGNALS:
    /// Files are about to be read; told again when it is known of how many samples.
    void started(double samples);
    void progressed(int percent, const QString& task);
    /// The reference is in the session.
    void finished();
    /// Why not; the files are named. Empty when it was cancelled.
    void failed(const QString& reason);

private:
    void read(const std::list<QString>& files, double samples);
    void take(const ReadFlight& read);

    Session& mSession;
    Job<double> mMeasuring;
    Job<ReadFlight> mReading;
};

} // namespace TARN
