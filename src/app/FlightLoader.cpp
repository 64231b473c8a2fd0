#include "app/FlightLoader.h"

#include "base/FreeMemory.h"
#include "record/RecordHeader.h"

#include <QtCore/QFileInfo>

#include <algorithm>

namespace TARN {

namespace {

/// Bytes that a sample takes in memory while it is read, indexes included.
constexpr double BytesPerSample = 40.0;

/// Samples that files promise by their sizes.
double promisedSamples(const std::list<QString>& files)
{
    double samples = 0.0;
    for (const QString& file : files) {
        samples += static_cast<double>(std::max<qint64>(0, sampleCountOf(QFileInfo(file).size())));
    }
    return samples;
}

} // namespace

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
    mSession.loading().turn(true);
    Q_EMIT started(0.0);
    // A card that does not answer must not hold the window, so even sizes are asked for beside it.
    mMeasuring.start([paths](Progress&) { return promisedSamples(paths); },
                     [this, paths](double samples) { read(paths, samples); });
}

void FlightLoader::read(const std::list<QString>& files, double samples)
{
    const auto available = availableMemory();
    if (available && samples * BytesPerSample > static_cast<double>(*available)) {
        mSession.setFlight(nullptr);
    }
    Q_EMIT started(samples);
    mReading.start(
        [files, offset = mSession.offset(), profile = mSession.profile(),
         task = tr("Looking for events")](Progress& progress) {
            auto record = std::make_shared<Record>();
            if (!record->readRecordData(files, offset, progress)) {
                return Loaded{nullptr, nullptr, record->errorText()};
            }
            progress.begin(task);
            return Loaded{record, Flight::make(record, profile, progress), {}};
        },
        [this](const Loaded& loaded) { take(loaded); });
}

void FlightLoader::take(const Loaded& loaded)
{
    if (loaded.flight == nullptr) {
        end(loaded.error);
    } else if (loaded.flight->profile() != mSession.profile()) {
        // Another profile has come meanwhile.
        mReading.start(
            [record = loaded.record, profile = mSession.profile()](Progress& progress) {
                return Loaded{record, Flight::make(record, profile, progress), {}};
            },
            [this](const Loaded& again) { take(again); });
    } else {
        mSession.loading().turn(false);
        mSession.setFlight(loaded.flight);
        Q_EMIT finished();
    }
}

void FlightLoader::end(const QString& error)
{
    mSession.loading().turn(false);
    Q_EMIT failed(error);
}

void FlightLoader::cancel()
{
    if (mSession.loading().isOn()) {
        mMeasuring.cancel();
        mReading.cancel();
        end({});
    }
}

void FlightLoader::loadProfile(const QString& file)
{
    understand([file, before = mSession.profile()] { return Profile::load(file, before.get()); });
}

std::shared_ptr<const Record> FlightLoader::record() const
{
    return mSession.flight() != nullptr ? mSession.flight()->record() : nullptr;
}

void FlightLoader::understand(const std::function<std::shared_ptr<const Profile>()>& profile)
{
    mUnderstanding.start(
        [profile, record = record()](Progress& progress) {
            Understood result{profile(), nullptr};
            if (record != nullptr) {
                result.flight = Flight::make(record, result.profile, progress);
            }
            return result;
        },
        [this, record = record()](const Understood& result) { takeProfile(result, record); });
}

void FlightLoader::takeProfile(const Understood& understood,
                               const std::shared_ptr<const Record>& record)
{
    if (record != this->record()) {
        // Another recording has come meanwhile.
        understand([profile = understood.profile] { return profile; });
    } else {
        Q_EMIT profileReady(understood.profile, understood.flight);
    }
}

} // namespace TARN
