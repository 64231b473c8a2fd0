#pragma once

#include "flight/Job.h"
#include "flight/Session.h"

#include <list>

namespace TARN {

/// Loads recordings and profiles beside the event loop and brings them into the session when they
/// are complete. What is asked for while something loads takes its place; until then, and where
/// loading fails or is cancelled, what was shown stays.
///
/// The recording that is shown stays in memory meanwhile where both fit the memory that the system
/// calls available (MemAvailable); otherwise it is let go before.
class FlightLoader : public QObject
{
    Q_OBJECT

public:
    explicit FlightLoader(Session& session, QObject* parent = nullptr);

    /// Empty paths are left out; with none left nothing happens.
    void load(const std::list<QString>& files);
    void loadProfile(const QString& file);
    /// Stops loading recordings.
    void cancel();

Q_SIGNALS:
    /// A recording is about to be read; told again when it is known of how many samples.
    void started(double samples);
    void progressed(int percent, const QString& task);
    /// The flight is in the session.
    void finished();
    /// Why not; the files are named. Empty when it was cancelled.
    void failed(const QString& reason);
    /// A profile, and the flight as it understands it, null when none is shown. It is not in the
    /// session yet.
    void profileReady(std::shared_ptr<const Profile> profile, std::shared_ptr<const Flight> flight);

private:
    struct Loaded
    {
        std::shared_ptr<const Record> record;
        std::shared_ptr<const Flight> flight;
        QString error;
    };
    struct Understood
    {
        std::shared_ptr<const Profile> profile;
        std::shared_ptr<const Flight> flight;
    };

    void read(const std::list<QString>& files, double samples);
    void take(const Loaded& loaded);
    void end(const QString& error);
    void understand(const std::function<std::shared_ptr<const Profile>()>& profile);
    void takeProfile(const Understood& understood, const std::shared_ptr<const Record>& record);
    std::shared_ptr<const Record> record() const;

    Session& mSession;
    Job<double> mMeasuring;
    Job<Loaded> mReading;
    Job<Understood> mUnderstanding;
};

} // namespace TARN
