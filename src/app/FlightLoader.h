#pragma once

#include "app/FlightReading.h"
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
    /// A profile, and the flights that are shown as it understands them, null where there are none.
    struct Understood
    {
        std::shared_ptr<const Profile> profile;
        std::shared_ptr<const Flight> flight;
        std::shared_ptr<const Flight> reference;
    };

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
    /// A profile was loaded. It is not in the session yet.
    void profileReady(const TARN::FlightLoader::Understood& understood);

private:
    struct Records
    {
        std::shared_ptr<const Record> flight;
        std::shared_ptr<const Record> reference;
        friend bool operator==(const Records&, const Records&) = default;
    };

    void read(const std::list<QString>& files, double samples);
    void take(const ReadFlight& read);
    void end(const QString& error);
    void understand(const std::function<std::shared_ptr<const Profile>()>& profile);
    void takeProfile(const Understood& understood, const Records& of);
    Records records() const;

    Session& mSession;
    Job<double> mMeasuring;
    Job<ReadFlight> mReading;
    Job<Understood> mUnderstanding;
};

} // namespace TARN
