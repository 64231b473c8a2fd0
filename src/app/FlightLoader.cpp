#include "app/FlightLoader.h"

#include "record/MemoryNeed.h"

namespace TARN {

FlightLoader::FlightLoader(Session& session, QObject* parent) : QObject(parent), mSession(session)
{
    mReading.setListener(
        [this](int percent, const QString& task) { Q_EMIT progressed(percent, task); });
    mReading.setOutOfMemory(
        [this] { end(tr("There is not enough memory for the recording; load fewer at once.")); });
    mUnderstanding.setOutOfMemory([this] {
        end(tr("There is not enough memory to show the recording; load fewer at once."));
    });
}

void FlightLoader::load(const std::list<QString>& files)
{
    std::list<QString> paths = files;
    paths.remove(QString()); // detail lines name no file
    if (paths.empty()) {
        return;
    }
    mReading.cancel();
    mSession.switches().loading.turn(true);
    Q_EMIT started(0.0);
    // A card that does not answer must not hold the window, so even sizes are asked for beside it.
    mMeasuring.start([paths](Progress&) { return promisedSamples(paths); },
                     [this, paths](double samples) { read(paths, samples); });
}

void FlightLoader::read(const std::list<QString>& files, double samples)
{
    if (!fitMemory(samples)) {
        mSession.setFlight(nullptr);
    }
    Q_EMIT started(samples);
    mReading.start(
        [files, offset = mSession.offset(), profile = mSession.profile(),
         task = tr("Looking for events")](Progress& progress) {
            return readFlight(files, offset, profile, task, progress);
        },
        [this](const ReadFlight& read) { take(read); });
}

void FlightLoader::take(const ReadFlight& read)
{
    if (read.flight == nullptr) {
        end(read.error);
    } else if (read.flight->profile() != mSession.profile()) {
        mReading.start([read, profile = mSession.profile()](
                           Progress& progress) { return understoodBy(profile, read, progress); },
                       [this](const ReadFlight& again) { take(again); });
    } else {
        mSession.switches().loading.turn(false);
        mSession.setFlight(read.flight);
        Q_EMIT finished();
    }
}

void FlightLoader::end(const QString& error)
{
    mSession.switches().loading.turn(false);
    Q_EMIT failed(error);
}

void FlightLoader::cancel()
{
    if (mSession.switches().loading.isOn()) {
        mMeasuring.cancel();
        mReading.cancel();
        end({});
    }
}

void FlightLoader::loadProfile(const QString& file)
{
    understand([file, before = mSession.profile()] { return Profile::load(file, before.get()); });
}

FlightLoader::Records FlightLoader::records() const
{
    const auto recordOf = [](const std::shared_ptr<const Flight>& flight) {
        return flight != nullptr ? flight->record() : nullptr;
    };
    return {recordOf(mSession.flight()), recordOf(mSession.reference().flight())};
}

void FlightLoader::understand(const std::function<std::shared_ptr<const Profile>()>& profile)
{
    mUnderstanding.start(
        [profile, records = records()](Progress& progress) {
            Understood result{profile(), nullptr, nullptr};
            const auto understood = [&](const std::shared_ptr<const Record>& record) {
                return record != nullptr ? Flight::make(record, result.profile, progress) : nullptr;
            };
            result.flight = understood(records.flight);
            result.reference = understood(records.reference);
            return result;
        },
        [this, records = records()](const Understood& result) { takeProfile(result, records); });
}

void FlightLoader::takeProfile(const Understood& understood, const Records& of)
{
    if (of != records()) {
        // Another recording has come meanwhile.
        understand([profile = understood.profile] { return profile; });
    } else {
        Q_EMIT profileReady(understood);
    }
}

} // namespace TARN
